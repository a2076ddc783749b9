// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTimeEdit>

// An editor that takes a date as it shows it. The toolkit's goes on to the next part by itself once
// a part is full, and once more for the separator that is typed then; where no part is selected, or
// several are, it refuses the digits and takes the rest; and a whole date is pasted into one part.
class DateTimeEdit : public QDateTimeEdit
{
public:
    using QDateTimeEdit::QDateTimeEdit;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    // The first digit behind anything else replaces the part that the cursor is in.
    void typeDigit(QKeyEvent *event);
    // Any separator goes on to the next part, unless a digit has just done so.
    void typeSeparator();
    void rememberTyping(bool hasStepped);
    bool isStillTyping() const;

    // What the last key that typed or erased has left: the text, the cursor's place, and whether
    // the cursor has gone on to the next part.
    QString m_typedText;
    int m_typedPlace = -1;
    bool m_hasStepped = false;
};
