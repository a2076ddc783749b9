// SPDX-License-Identifier: MIT
#include "maintenance/datetimeedit.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>

void DateTimeEdit::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    const QChar typed = text.isEmpty() ? QChar() : text.at(0);
    // A whole date replaces what is shown, not only the part that is selected.
    const QDateTime pasted =
        event->matches(QKeySequence::Paste)
            ? dateTimeFromText(QGuiApplication::clipboard()->text().simplified())
            : QDateTime();
    if (pasted.isValid()) {
        setDateTime(pasted);
    } else if (typed.isDigit()) {
        typeDigit(event);
    } else if (typed.isPrint() && !typed.isLetter()) {
        typeSeparator();
    } else {
        QDateTimeEdit::keyPressEvent(event);
        if (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete)
            rememberTyping(false);
    }
}

void DateTimeEdit::typeDigit(QKeyEvent *event)
{
    if (!isStillTyping()) {
        if (lineEdit()->hasSelectedText())
            lineEdit()->setCursorPosition(lineEdit()->selectionStart());
        setSelectedSection(currentSection());
    }
    const int section = currentSectionIndex();
    QDateTimeEdit::keyPressEvent(event);
    rememberTyping(currentSectionIndex() != section);
}

void DateTimeEdit::typeSeparator()
{
    const bool hasSteppedAlready = isStillTyping() && m_hasStepped;
    m_typedText.clear();
    if (!hasSteppedAlready)
        setSelectedSection(sectionAt(currentSectionIndex() + 1));
}

void DateTimeEdit::rememberTyping(bool hasStepped)
{
    m_typedText = lineEdit()->text();
    m_typedPlace = lineEdit()->cursorPosition();
    m_hasStepped = hasStepped;
}

bool DateTimeEdit::isStillTyping() const
{
    return lineEdit()->text() == m_typedText && lineEdit()->cursorPosition() == m_typedPlace;
}
