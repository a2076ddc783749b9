// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

// A modal box with an error's text and one OK button. A text that the screen cannot take is shown
// shortened: after exec(), text() is then another than the one given. It opens over its parent, or
// in the middle of the screen while the parent is not shown yet.
class ErrorBox : public QMessageBox
{
    Q_OBJECT

public:
    ErrorBox(QWidget &parent, const QString &title, const QString &text);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fitScreen();
};
