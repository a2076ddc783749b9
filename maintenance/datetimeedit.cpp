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
    if (event->matches(QKeySequence::Paste) &&
        dateTimeFromText(QGuiApplication::clipboard()->text().simplified()).isValid())
        lineEdit()->selectAll();

    if (typed.isDigit())
        typeDigit(event);
    else if (typed.isPrint() && !typed.isLetter())
        typeSeparator();
    else
        QDateTimeEdit::keyPressEvent(event);
}

void DateTimeEdit::typeDigit(QKeyEvent *event)
{
    const int section = currentSectionIndex();
    const QString before = lineEdit()->text();
    const int place =
        lineEdit()->hasSelectedText() ? lineEdit()->selectionStart() : lineEdit()->cursorPosition();
    QDateTimeEdit::keyPressEvent(event);
    const bool isRefused = lineEdit()->text() == before && currentSectionIndex() == section;
    if (isRefused && place < before.size() && before.at(place).isDigit()) {
        lineEdit()->setCursorPosition(place);
        setSelectedSection(currentSection());
        QDateTimeEdit::keyPressEvent(event);
    }
    if (currentSectionIndex() != section) {
        m_steppedText = lineEdit()->text();
        m_steppedStart = lineEdit()->selectionStart();
    }
}

void DateTimeEdit::typeSeparator()
{
    const bool hasStepped =
        lineEdit()->text() == m_steppedText && lineEdit()->selectionStart() == m_steppedStart;
    m_steppedText.clear();
    if (!hasStepped)
        setSelectedSection(sectionAt(currentSectionIndex() + 1));
}
