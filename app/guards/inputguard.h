// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <utility>

// Keeps the keyboard and the pointer to what the user means by them:
// - A modal dialog belongs to the whole program, not to the window below it. To activate one that
//   does, matchbox activates that window first, if it is a dialog itself, as the main window is;
//   the toolkit then asks for the modal dialog again, and so on without end, with no key reaching
//   either.
// - The first answer to a dialog counts. The toolkit delivers what has piled up, while the program
//   was busy for example, in one go, also to a window that the first of it has closed: the click on
//   Keep that follows one on Restore would still be taken.
// - Escape, Enter and the function keys act once however long they are held. They would start their
//   action again and again, or end first the dialog that they were pressed in, then the one below
//   and at last the program.
class InputGuard : public QObject
{
public:
    using QObject::QObject;

    // Installed on the application. True: input that is not passed on.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The key that was let go last, and the server's time of that in milliseconds.
    std::pair<int, quint64> m_released;
};
