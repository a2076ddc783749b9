// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

// The main window's Apply, over which the window's menu opens while it is disabled as well: the
// toolkit's own button then takes every request for a menu and does nothing with it.
class ApplyButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ApplyButton(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
};
