// SPDX-License-Identifier: MIT
#include "display/dialogconfirm.h"

#include "display/screenarea.h"
#include "libOxUtils/utils/picture.h"
#include "ui_dialogconfirm.h"

#include <QMoveEvent>

namespace {

constexpr int TICK_MS = 1000;

// The question comes with the switch, before the toolkit has heard of the new screen's size: it has
// to fit the smallest mode of all. In pixels, less the window's frame.
constexpr int WIDEST = 800 - 16;

// A window manager that puts the window back must not be argued with for ever.
constexpr int MOST_MOVES = 10;

} // namespace

int distanceFromPointer(const QRect &rect, const QRect &buttons, const QPoint &pointer,
                        const QRect &area)
{
    const QRect taken = buttons.translated(rect.topLeft());
    if (!taken.contains(pointer))
        return 0;
    const int down = pointer.y() - taken.top() + 1;
    return rect.bottom() + down <= area.bottom() ? down : pointer.y() - taken.bottom() - 1;
}

DialogConfirm::DialogConfirm(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DialogConfirm)
    , m_secondsLeft(COUNTDOWN_SECONDS)
{
    ui->setupUi(this);
    showPicture(*ui->label_2, QStringLiteral("question"));
    showSecondsLeft();
    fitSmallestMode();
    connect(ui->m_btnRestorePreConfig, &QPushButton::clicked, this,
            &DialogConfirm::btnRestorePreConfig_clicked);
    connect(ui->m_btnKeepThisConfig, &QPushButton::clicked, this,
            &DialogConfirm::btnKeepThisConfig_clicked);
    connect(&m_countdown, &QTimer::timeout, this, &DialogConfirm::countdown_timeout);
    m_countdown.start(TICK_MS);
}

DialogConfirm::~DialogConfirm() = default;

void DialogConfirm::fitSmallestMode()
{
    const QMargins margins = layout()->contentsMargins();
    const int widest =
        static_cast<int>(WIDEST / devicePixelRatioF()) - margins.left() - margins.right();
    if (ui->horizontalLayout->sizeHint().width() > widest)
        ui->horizontalLayout->setDirection(QBoxLayout::TopToBottom);
    const int widestText =
        widest - ui->label_2->minimumWidth() - ui->gridLayout->horizontalSpacing();
    for (QLabel *text : {ui->label, ui->m_lblQuestion}) {
        const int width = qMin(text->sizeHint().width(), widestText);
        text->setWordWrap(true);
        // The window keeps its size when the number gets shorter.
        text->setFixedSize(width, text->heightForWidth(width));
    }
}

void DialogConfirm::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // Placed before the window is mapped, so that nobody sees it move.
    centreOnScreen(this);
    moveButtonsFromPointer();
}

void DialogConfirm::moveEvent(QMoveEvent *event)
{
    QDialog::moveEvent(event);
    if (isVisible() && event->pos() != event->oldPos())
        moveButtonsFromPointer();
}

void DialogConfirm::moveButtonsFromPointer()
{
    // More than a hand moves between two clicks.
    const int margin = ui->m_btnKeepThisConfig->height();
    const QRect buttons =
        (ui->m_btnRestorePreConfig->geometry() | ui->m_btnKeepThisConfig->geometry())
            .marginsAdded({margin, margin, margin, margin});
    const int distance = distanceFromPointer(geometry(), buttons, QCursor::pos(), screenArea());
    if (distance != 0 && m_moves++ < MOST_MOVES)
        setGeometry(geometry().translated(0, distance));
}

void DialogConfirm::btnRestorePreConfig_clicked()
{
    reject();
}

void DialogConfirm::btnKeepThisConfig_clicked()
{
    accept();
}

void DialogConfirm::countdown_timeout()
{
    --m_secondsLeft;
    showSecondsLeft();
    ui->m_lblQuestion->repaint();
    if (m_secondsLeft < 1)
        reject();
}

void DialogConfirm::showSecondsLeft()
{
    ui->m_lblQuestion->setText(
        tr("The display will be reset to its previous configuration in %1 seconds")
            .arg(m_secondsLeft));
}
