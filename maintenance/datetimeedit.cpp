// SPDX-License-Identifier: MIT
#include "maintenance/datetimeedit.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>

void DateTimeEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isCommand = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const QChar typed = event->text().isEmpty() || isCommand ? QChar() : event->text().at(0);
    const bool isBackspace = event->key() == Qt::Key_Backspace;
    if (event->matches(QKeySequence::Paste)) {
        selectAll();
        QDateTimeEdit::keyPressEvent(event);
        setDateTime(dateTime()); // in place of the text that was pasted
    } else if (typed.isPrint() || isBackspace || event->key() == Qt::Key_Delete) {
        type(typed, isBackspace);
    } else {
        QDateTimeEdit::keyPressEvent(event);
    }
}

void DateTimeEdit::focusOutEvent(QFocusEvent *event)
{
    QDateTimeEdit::focusOutEvent(event);
    lineEdit()->setModified(false);
}

QValidator::State DateTimeEdit::validate(QString &text, int & /*place*/) const
{
    return dateTimeFromText(text).isValid() ? QValidator::Acceptable : QValidator::Invalid;
}

QDateTime DateTimeEdit::dateTimeFromText(const QString &text) const
{
    const QRegularExpression notLetters(QStringLiteral("[^A-Za-z]+"));
    const QRegularExpression twoLetters(QStringLiteral("\\b(\\w)\\1\\b"));
    const QRegularExpression notDigits(QStringLiteral("[^0-9]+"));
    const QString blank(u' ');
    // A single letter reads a number with or without a leading zero.
    const QString format =
        displayFormat().replace(notLetters, blank).replace(twoLetters, QStringLiteral("\\1"));
    const QString numbers = QString(text).replace(notDigits, blank).trimmed();
    const QDateTime date = QDateTime::fromString(numbers, format);
    return date >= minimumDateTime() ? date : QDateTime();
}

void DateTimeEdit::type(QChar character, bool isBackspace)
{
    const QRegularExpression notDigits(QStringLiteral("[^0-9]+"));
    const QRegularExpression digitsAtStart(QStringLiteral("^[0-9]+"));
    const QRegularExpression digitsAtEnd(QStringLiteral("[0-9]+$"));
    QLineEdit *const edit = lineEdit();
    const QString selected = edit->selectedText();
    const int cursor = selected.isEmpty() ? edit->cursorPosition() : edit->selectionStart();
    QString typed = edit->text().left(cursor);
    // A text that the toolkit has set is unmodified.
    if (!edit->isModified() || !selected.isEmpty() || cursor != m_typedSize) {
        m_before = dateTime();
        QString kept = edit->text().mid(cursor + selected.size());
        m_keptSize = int(kept.remove(digitsAtStart).size());
        typed.remove(digitsAtEnd);
    } else if (isBackspace) {
        typed.chop(1);
    }
    const auto digits = digitsAtEnd.match(typed).capturedLength();
    if (character.isDigit() && digits >= (currentSection() == YearSection ? 4 : 2))
        typed += u' ';
    if (character.isPrint())
        typed += character;

    // The parts that it has not come to are as they were, unless they were selected.
    const int part = int(typed.count(QRegularExpression(QStringLiteral("[0-9][^0-9]"))));
    QString behind = textFromDateTime(m_before).section(notDigits, part);
    if (typed.contains(digitsAtEnd))
        behind.remove(digitsAtStart);
    const QString text = typed + behind.right(m_keptSize);
    const QDateTime date = dateTimeFromText(text);
    setDateTime(date.isValid() ? date : m_before);
    setCurrentSectionIndex(part);
    // The toolkit would put its own text there once the cursor comes to another part.
    const QSignalBlocker blocker(edit);
    edit->setText(text);
    m_typedSize = int(typed.size());
    edit->setCursorPosition(m_typedSize);
    edit->setModified(true);
}
