// SPDX-License-Identifier: MIT
// The mode tables and which of their modes fit a monitor.
#include "display/monitor/modes.h"

#include <QtTest>

class TestModes : public QObject
{
    Q_OBJECT

private slots:
    void offered_data();
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

} // namespace

void TestModes::offered_data()
{
    QTest::addColumn<quint32>("width");
    QTest::addColumn<quint32>("height");
    QTest::addColumn<bool>("isNormal");
    QTest::addColumn<QString>("modes");
    QTest::addColumn<QString>("next"); // the mode that is too large

    const QString list[] = {
        QStringLiteral("800x600 1024x768 1280x960 1280x1024"),
        QStringLiteral("800x600 1024x768 1280x720 1280x800 1360x768 1440x900 1680x1050 1920x1080"),
    };
    const auto row = [&list](quint32 width, quint32 height, bool isNormal, int count) {
        const QStringList all = list[isNormal ? 0 : 1].split(QLatin1Char(' '));
        QTest::addRow("%ux%u", width, height)
            << width << height << isNormal << QStringList(all.mid(0, count)).join(QLatin1Char(' '))
            << all.value(count);
    };
    const bool normal = true;
    const bool wide = false;
    row(640, 480, normal, 0);
    row(1024, 768, normal, 2);
    row(1280, 1024, normal, 4);
    row(1400, 1050, normal, 4);
    row(1600, 1200, normal, 4);
    row(2501, 1876, normal, 4); // 7500.99..., cut off
    row(1152, 870, wide, 3);
    row(1680, 1050, wide, 7);
    row(1920, 1079, wide, 7);
    row(1920, 1080, wide, 8);
    row(480, 1000, wide, 1); // its pixels count, not its width
    row(0, 1080, wide, 0);
    row(1080, 0, wide, 0);
}

void TestModes::offered()
{
    QFETCH(quint32, width);
    QFETCH(quint32, height);
    const T_MonitorModes found = monitorModes({width, height, 0});
    QTEST(found.isNormal, "isNormal");
    QTEST(sizes(found.entries.data(), found.entries.data() + found.entries.size()), "modes");
    QTEST(sizes(found.tooLarge, found.tooLarge == nullptr ? nullptr : found.tooLarge + 1), "next");
}

QTEST_APPLESS_MAIN(TestModes)
#include "tst_modes.moc"
