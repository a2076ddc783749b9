// SPDX-License-Identifier: MIT
// The mode tables and which of their modes fit a monitor.
#include "display/monitor/modes.h"

#include <QtTest>

#include <tuple>

class TestModes : public QObject
{
    Q_OBJECT

private slots:
    void offered();
};

void TestModes::offered()
{
    const QByteArray list[] = {
        "800x600 1024x768 1280x720 1280x800 1360x768 1440x900 1680x1050 1920x1080",
        "800x600 1024x768 1280x960 1280x1024",
    };
    // Size, whether it counts as 4:3 or 5:4, and how many modes are offered. The aspect of
    // 2501x1876 is cut off to 7500, and the pixels of 480x1000 count, not its width.
    const std::tuple<quint32, quint32, bool, int> rows[] = {
        {640, 480, true, 0},    {1024, 768, true, 2},   {1280, 1024, true, 4},
        {1400, 1050, true, 4},  {1600, 1200, true, 4},  {2501, 1876, true, 4},
        {1152, 870, false, 3},  {480, 1000, false, 1},  {1680, 1050, false, 7},
        {1920, 1079, false, 7}, {1920, 1080, false, 8}, {0, 1080, false, 0},
    };
    for (const auto &[width, height, isNormal, count] : rows) {
        const T_MonitorModes found = monitorModes({width, height, 0});
        QByteArrayList sizes;
        for (const T_ResolutionEntry &entry : found.entries)
            sizes += QByteArray::number(entry.width) + 'x' + QByteArray::number(entry.height);
        const QByteArray native = QByteArray::number(width) + ": ";
        QCOMPARE(native + sizes.join(' '),
                 native + list[isNormal].split(' ').mid(0, count).join(' '));
    }
}

QTEST_APPLESS_MAIN(TestModes)
#include "tst_modes.moc"
