// SPDX-License-Identifier: MIT
#include "app/resolutionlist.h"

#include "display/monitor/modes.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <iterator>

void ResolutionList::reset()
{
    QListWidget::reset();
    // Only a list that has been told its current row, be it none, leaves that alone when it gets
    // the focus.
    setCurrentIndex(QModelIndex());
}

QSize ResolutionList::sizeHint() const
{
    const int text = fontMetrics().horizontalAdvance(QStringLiteral("0000 x 0000"));
    const int rows = fontMetrics().height() * static_cast<int>(std::size(ALL_RESOLUTIONS));
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int frame = 2 * frameWidth();
    return {text + scrollBar + frame, rows + frame};
}

void ResolutionList::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        QListWidget::mousePressEvent(event);
}

void ResolutionList::paintEvent(QPaintEvent *event)
{
    QListWidget::paintEvent(event);
    if (!hasFocus())
        return;
    // Lines alone: the style's own frame would tint the rows, too.
    const int width = 2 * qMax(1, logicalDpiY() / 96);
    QPainter painter(viewport());
    painter.setPen(QPen(palette().highlight(), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    // Half of each line lies outside the view.
    painter.drawRect(viewport()->rect());
}

void ResolutionList::scrollContentsBy(int dx, int dy)
{
    QListWidget::scrollContentsBy(dx, dy);
    // The frame does not move with the rows.
    viewport()->update();
}
