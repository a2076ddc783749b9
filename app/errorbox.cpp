// SPDX-License-Identifier: MIT
#include "app/errorbox.h"

#include "app/shortenedmessage.h"
#include "display/screenarea.h"

#include <QLabel>

namespace {

// Pixels of the screen that are left for the box's frame and the panel, in both directions.
constexpr int SCREEN_MARGIN = 40;

constexpr int FEWEST_LINES = 3;

} // namespace

ErrorBox::ErrorBox(QWidget &parent, const QString &title, const QString &text)
    : QMessageBox(&parent)
{
    setIcon(QMessageBox::Critical);
    setWindowTitle(title);
    // The text can be another program's.
    setTextFormat(Qt::PlainText);
    const QString shown = shortenedMessage(text);
    m_isShortened = shown != text;
    setText(shown);
    setStandardButtons(QMessageBox::Ok);
}

void ErrorBox::showEvent(QShowEvent *event)
{
    // The box has its size after this and is not on the screen yet.
    QMessageBox::showEvent(event);
    fitScreen();
    if (!parentWidget()->isVisible())
        centreOnScreen(this);
}

void ErrorBox::fitScreen()
{
    auto *label = findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    if (!label)
        return;
    const QSize room = screenArea().size() - QSize(SCREEN_MARGIN, SCREEN_MARGIN);
    if (label->minimumSizeHint().width() > label->width())
        setText(breakableMessage(text(), label->width() / fontMetrics().horizontalAdvance(u'W')));
    const QString whole = text();
    if (height() > room.height()) {
        // The toolkit makes it half of the screen wide and sizes it anew with each text.
        label->setMinimumWidth(room.width() - (width() - label->width()));
        setText(whole);
    }
    for (int lines = MOST_MESSAGE_LINES; height() > room.height() && lines > FEWEST_LINES;
         --lines) {
        setText(shortenedMessage(whole, lines - 1));
        m_isShortened = true;
    }
}
