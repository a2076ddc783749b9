// SPDX-License-Identifier: MIT
#include "app/resolutionlist.h"

#include "display/modetext.h"
#include "display/monitor/modes.h"

#include <QStyle>

#include <algorithm>
#include <iterator>

ResolutionList::ResolutionList(QWidget *parent)
    : QListWidget(parent)
{
}

QSize ResolutionList::sizeHint() const
{
    int text = 0;
    for (const T_ResolutionEntry &entry : ALL_RESOLUTIONS) {
        text = std::max(text, fontMetrics().horizontalAdvance(modeItem(entry.mode())));
    }
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
    // The class between would choose a row here.
    QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
}
