// SPDX-License-Identifier: MIT
#include "display/modetext.h"

#include "display/monitor/modes.h"

namespace {

constexpr quint32 DEFAULT_REFRESH_HZ = 60;

}

ModeTextResult parseModeText(const QString &text, quint32 &width, quint32 &height,
                             quint32 &refreshRate)
{
    QString mode = text;
    mode.remove(QLatin1Char('M'), Qt::CaseInsensitive);

    const int x = mode.indexOf(QLatin1Char('x'), 0, Qt::CaseInsensitive);
    const int at = mode.indexOf(QLatin1Char('@'));
    if (x < 0)
        return ModeTextResult::NoWidth;

    bool ok = false;
    width = mode.left(x).trimmed().toUInt(&ok);
    if (!ok)
        return ModeTextResult::NoWidth;

    if (at < 0) {
        height = mode.mid(x + 1).trimmed().toUInt(&ok);
        refreshRate = DEFAULT_REFRESH_HZ;
    } else {
        // Whether the height is a number is not asked, on purpose; a bad one counts as 0.
        height = mode.mid(x + 1, at - x - 1).toUInt();
        refreshRate = mode.mid(at + 1).toUInt(&ok);
    }
    return ok ? ModeTextResult::Read : ModeTextResult::LastIsBad;
}

QString switchScreenCommand(quint32 width, quint32 height, quint32 refreshRate)
{
    return QStringLiteral("xrandr -s %1x%2 -r %3")
        .arg(QString::number(width), QString::number(height), QString::number(refreshRate));
}

QString storeModeCommand(quint32 width, quint32 height, quint32 refreshRate)
{
    // Without the letter M, even where it was read with one.
    return QStringLiteral("fw_setenv display %1x%2@%3")
        .arg(QString::number(width), QString::number(height), QString::number(refreshRate));
}

QString modeItem(quint32 width, quint32 height)
{
    return QString::fromStdString(modeItemText(width, height));
}
