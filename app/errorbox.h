// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

// A modal box with an error's text and one OK button. Of a text that has more than 2000 characters,
// or that the screen cannot take, it shows the beginning and the end. It opens over its parent, or
// in the middle of the screen while the parent is not shown yet.
class ErrorBox : public QMessageBox
{
    Q_OBJECT

public:
    ErrorBox(QWidget &parent, const QString &title, const QString &text);

    // Whether something is left out of the text; known after exec().
    bool IsShortened() const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fitScreen();
};
