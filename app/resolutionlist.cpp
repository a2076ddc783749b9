// SPDX-License-Identifier: MIT
#include "app/resolutionlist.h"

#include "display/modetext.h"
#include "display/monitor/modes.h"

#include <QStyle>

#include <iterator>

ResolutionList::ResolutionList(QWidget *parent)
    : QListWidget(parent)
{
}

QSize ResolutionList::sizeHint() const
{
    const T_ResolutionEntry &widest = *std::prev(std::end(ALL_RESOLUTIONS));
    const int text = fontMetrics().horizontalAdvance(modeItem(widest.width, widest.height));
    const int rows = fontMetrics().height() * static_cast<int>(std::size(ALL_RESOLUTIONS));
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int frame = 2 * frameWidth();
    return {text + scrollBar + frame, rows + frame};
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
