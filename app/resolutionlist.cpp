// SPDX-License-Identifier: MIT
#include "app/resolutionlist.h"

ResolutionList::ResolutionList(QWidget *parent)
    : QListWidget(parent)
{
}

void ResolutionList::focusInEvent(QFocusEvent *event)
{
    if (currentRow() >= 0) {
        QListWidget::focusInEvent(event);
        return;
    }
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}
