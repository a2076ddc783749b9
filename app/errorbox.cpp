// SPDX-License-Identifier: MIT
#include "app/errorbox.h"

#include "display/screenarea.h"
#include "maintenance/wrappedtext.h"

#include <QLabel>

namespace {

constexpr QChar ELLIPSIS = u'\u2026';

// The most characters of a text that are looked at: it may have megabytes.
constexpr int MOST_CHARACTERS = 2000;

// Pixels of the screen that are left for the box's frame and the panel, in both directions.
constexpr int SCREEN_MARGIN = 40;

// What the smallest screen has room for. On larger ones the toolkit lets no box be much wider.
constexpr int WIDEST = 800 - SCREEN_MARGIN;

QString beginning(const QString &text)
{
    return text.size() <= MOST_CHARACTERS ? text : text.left(MOST_CHARACTERS) + ELLIPSIS;
}

} // namespace

ErrorBox::ErrorBox(QWidget &parent, const QString &title, const QString &text)
    : QMessageBox(QMessageBox::Critical, title, beginning(text), QMessageBox::Ok, &parent)
{
    // The text can be another program's.
    setTextFormat(Qt::PlainText);
}

bool ErrorBox::IsShortened() const
{
    return text().endsWith(ELLIPSIS);
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
    const int highest = screenArea().height() - SCREEN_MARGIN;
    if (!label || (height() <= highest && label->minimumSizeHint().width() <= label->width()))
        return;
    // The toolkit makes it half of the screen wide, and breaks no word.
    const QString whole = text();
    const int widestText = WIDEST - width() + label->width();
    int lines = (highest - height() + label->height()) / label->fontMetrics().lineSpacing();
    label->setMinimumWidth(widestText);
    do {
        // Lines in another font, for what the label's own cannot write, are higher.
        setText(wrappedText(whole, label->font(), widestText, lines));
    } while (height() > highest && --lines > 0);
}
