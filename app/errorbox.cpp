// SPDX-License-Identifier: MIT
#include "app/errorbox.h"

#include "display/screenarea.h"
#include "maintenance/wrappedtext.h"

#include <QLabel>

#include <limits>

namespace {

// Stands for what is left out.
const QString GAP = QStringLiteral("\n\u2026\n");

// The most characters of a text that are looked at: it may have megabytes.
constexpr int MOST_CHARACTERS = 2000;

// Pixels of the screen that are left for the box's frame and the panel, in both directions.
constexpr int SCREEN_MARGIN = 40;

// What the smallest screen has room for. On larger ones the toolkit lets no box be much wider.
constexpr int WIDEST = 800 - SCREEN_MARGIN;

QString firstAndLastCharacters(const QString &text)
{
    if (text.size() <= MOST_CHARACTERS)
        return text;
    return text.left(MOST_CHARACTERS / 2) + GAP + text.right(MOST_CHARACTERS / 2);
}

// The gap takes one of the lines.
QString firstAndLastLines(const QStringList &lines, int most)
{
    if (lines.size() <= most)
        return lines.join(u'\n');
    const int first = most / 2;
    const int last = most - first - 1;
    return lines.mid(0, first).join(u'\n') + GAP + lines.mid(lines.size() - last).join(u'\n');
}

} // namespace

ErrorBox::ErrorBox(QWidget &parent, const QString &title, const QString &text)
    : QMessageBox(QMessageBox::Critical, title, firstAndLastCharacters(text), QMessageBox::Ok,
                  &parent)
{
    // The text can be another program's.
    setTextFormat(Qt::PlainText);
}

bool ErrorBox::IsShortened() const
{
    return text().contains(GAP);
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
    const int widestText = WIDEST - width() + label->width();
    const QStringList lines =
        wrappedText(text(), label->font(), widestText, std::numeric_limits<int>::max())
            .split(u'\n');
    int most = (highest - height() + label->height()) / label->fontMetrics().lineSpacing();
    label->setMinimumWidth(widestText);
    do {
        // Lines in another font, for what the label's own cannot write, are higher.
        setText(firstAndLastLines(lines, most));
    } while (height() > highest && --most > 0);
}
