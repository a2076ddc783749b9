// SPDX-License-Identifier: MIT
#include "maintenance/wrappedtext.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>

#include <algorithm>

namespace {

// Whether a label would start a line there, or show a box.
bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

} // namespace

QString wrappedText(const QString &text, const QFont &font, int width, int mostLines)
{
    QString rest = text;
    std::replace_if(rest.begin(), rest.end(), isControl, u' ');
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
            lines << QFontMetrics(font).elidedText(rest.mid(line.textStart()), Qt::ElideRight,
                                                   width);
            break;
        }
        line.setLineWidth(width);
        lines << rest.mid(line.textStart(), line.textLength());
    }
    layout.endLayout();
    return lines.join(u'\n');
}
