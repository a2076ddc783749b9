// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

// Lets the first answer to a dialog count. The toolkit delivers what has piled up from the keyboard
// and the pointer in one go, while the program was busy for example, also to a window that the
// first of it has closed: the click on Keep that follows one on Restore would still be taken.
class AnsweredGuard : public QObject
{
public:
    using QObject::QObject;

    // Installed on the application. True: input for a window that is no longer shown, which is not
    // passed on.
    bool eventFilter(QObject *watched, QEvent *event) override;
};
