// SPDX-License-Identifier: MIT
// The mode tables and which of their modes fit a monitor.
#include "display/monitor/modes.h"

#include <QtTest>

class TestModes : public QObject
{
    Q_OBJECT

private slots:
    void offered();
};

namespace {

// "800x600 1024x768", after a look at the texts of the rows.
QString sizes(const T_ResolutionEntry *begin, const T_ResolutionEntry *end)
{
    QStringList list;
    for (; begin != end; ++begin) {
        list += QString::asprintf("%ux%u", begin->width, begin->height);
        if (list.last() + QStringLiteral("@60") != QLatin1String(begin->text))
            list += QLatin1String(begin->text);
    }
    return list.join(QLatin1Char(' '));
}

const struct
{
    quint32 width;
    quint32 height;
    bool isNormal;
    int count; // of the modes offered
} ROWS[] = {
    {640, 480, true, 0},    {1024, 768, true, 2},   {1280, 1024, true, 4},
    {1400, 1050, true, 4},  {1600, 1200, true, 4},  {2501, 1876, true, 4}, // 7500.99..., cut off
    {1152, 870, false, 3},  {1680, 1050, false, 7}, {1920, 1079, false, 7},
    {1920, 1080, false, 8}, {480, 1000, false, 1}, // its pixels count, not its width
    {0, 1080, false, 0},    {1080, 0, false, 0},
};

} // namespace

void TestModes::offered()
{
    const QString list[] = {
        QStringLiteral("800x600 1024x768 1280x720 1280x800 1360x768 1440x900 1680x1050 1920x1080"),
        QStringLiteral("800x600 1024x768 1280x960 1280x1024"),
    };
    for (const auto &row : ROWS) {
        const QStringList all = list[row.isNormal].split(QLatin1Char(' '));
        const QString native = QStringLiteral("%1x%2: ").arg(row.width).arg(row.height);
        const T_MonitorModes found = monitorModes({row.width, row.height, 0});
        QCOMPARE(found.isNormal, row.isNormal);
        QCOMPARE(native + sizes(found.entries.data(), found.entries.data() + found.entries.size()),
                 native + QStringList(all.mid(0, row.count)).join(QLatin1Char(' ')));
        // The mode that is too large.
        QCOMPARE(native + sizes(found.tooLarge, found.tooLarge + (found.tooLarge ? 1 : 0)),
                 native + all.value(row.count));
    }
}

QTEST_APPLESS_MAIN(TestModes)
#include "tst_modes.moc"
