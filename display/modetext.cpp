// SPDX-License-Identifier: MIT
#include "display/modetext.h"

ModeTextResult parseModeText(const QString &text, DisplayMode &mode)
{
    QString cleaned = text;
    cleaned.remove(QLatin1Char('M'), Qt::CaseInsensitive);

    const int x = cleaned.indexOf(QLatin1Char('x'), 0, Qt::CaseInsensitive);
    const int at = cleaned.indexOf(QLatin1Char('@'));
    if (x < 0)
        return ModeTextResult::NoWidth;

    bool ok = false;
    mode.width = cleaned.left(x).trimmed().toUInt(&ok);
    if (!ok)
        return ModeTextResult::NoWidth;

    if (at < 0) {
        mode.height = cleaned.mid(x + 1).trimmed().toUInt(&ok);
        mode.refreshRate = STANDARD_REFRESH_HZ;
    } else {
        // A bad height passes as 0: the mode then has a size that no list holds.
        mode.height = cleaned.mid(x + 1, at - x - 1).toUInt();
        mode.refreshRate = cleaned.mid(at + 1).toUInt(&ok);
    }
    return ok ? ModeTextResult::Read : ModeTextResult::LastIsBad;
}

QString modeItem(const DisplayMode &mode)
{
    return QString::fromStdString(modeItemText(mode));
}

QStringList modeItems(const std::vector<T_ResolutionEntry> &entries)
{
    QStringList items;
    for (const T_ResolutionEntry &entry : entries)
        items << modeItem(entry.mode());
    return items;
}
