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
    // A digit that there is no room for replaces the part that it is typed before or into.
    void typeDigit(QKeyEvent *event);
    // Any separator goes on to the next part, unless a digit has just done so.
    void typeSeparator();

    // The text and the start of the selection, as a digit left them that went on to the next part.
    QString m_steppedText;
    int m_steppedStart = -1;
};
