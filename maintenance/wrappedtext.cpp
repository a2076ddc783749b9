// SPDX-License-Identifier: MIT
#include "maintenance/wrappedtext.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>

#include <algorithm>

namespace {

// Whether a label would start a line there, or show a box, beside the line feed.
bool isControl(QChar character)
{
    return character != u'\n' &&
           (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator);
}

} // namespace

QString wrappedText(const QString &text, const QFont &font, int width, int mostLines)
{
    QString rest = text;
    std::replace_if(rest.begin(), rest.end(), isControl, u' ');
    rest.replace(u'\n', QChar(QChar::LineSeparator));
    QTextLayout layout(rest, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (;;) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        if (lines.size() == mostLines - 1) {
            const QString last = rest.mid(line.textStart()).replace(QChar::LineSeparator, u' ');
            lines << QFontMetrics(font).elidedText(last, Qt::ElideRight, width);
            break;
        }
        line.setLineWidth(width);
        lines << rest.mid(line.textStart(), line.textLength()).remove(QChar::LineSeparator);
    }
    layout.endLayout();
    return lines.join(u'\n');
}
