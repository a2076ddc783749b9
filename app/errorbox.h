// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

// A modal box with an error's text, cut to what a screen can take, and one OK button. It opens over
// its parent, or in the middle of the screen while the parent is not shown yet.
class ErrorBox : public QMessageBox
{
    Q_OBJECT

public:
    ErrorBox(QWidget &parent, const QString &title, const QString &text);

protected:
    void showEvent(QShowEvent *event) override;
};
