// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTimeEdit>

// An editor that reads its whole text with each key: while that is a date, it is the value; while
// it is none, the value is the one from before the typing, and comes back when the editor is left.
// A date has the numbers of the display format in their order, the year with four digits, the
// others with one or two, and anything between them. Typing goes over what is selected, or else
// over the parts from the cursor's on; a digit too many for a part begins the next one; a paste by
// key replaces the whole. The toolkit's editor corrects or refuses each key by itself, and so makes
// another date of one that is typed over a selection.
class DateTimeEdit : public QDateTimeEdit
{
public:
    using QDateTimeEdit::QDateTimeEdit;

protected:
    // Typed characters, Backspace and Delete go to type(); a paste is for the whole text.
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    // What changes the text in another way, such as the context menu, has to leave a date.
    QValidator::State validate(QString &text, int &place) const override;
    // The toolkit would make a date of what is none.
    void fixup(QString & /*text*/) const override {}
    // Invalid for a text that is no date, or one before the editor's first.
    QDateTime dateTimeFromText(const QString &text) const override;

private:
    // Adds a character to what is typed; Backspace takes the last one away. The first key, also one
    // that erases, replaces what is selected, or the part that the cursor is in.
    void type(QChar character, bool isBackspace);

    QDateTime m_before;  // the value from before the typing
    int m_keptSize = 0;  // the size of the text behind what the first key has replaced
    int m_typedSize = 0; // the size of the text up to the cursor, as the last key has left it
};
