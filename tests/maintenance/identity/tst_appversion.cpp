// SPDX-License-Identifier: MIT
#include "maintenance/identity/appversion.h"

#include <QtTest>

#include <ctime>

class TestAppVersion : public QObject
{
    Q_OBJECT

private slots:
    void versions_data();
    void versions();
};

void TestAppVersion::versions_data()
{
    QTest::addColumn<QByteArray>("zone"); // its sign counts westwards
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");

    const auto row = [](const char *version, const char *zone, const char *date, const char *time) {
        QTest::newRow(version) << QByteArray(zone) << QString::fromLatin1(date)
                               << QString::fromLatin1(time);
    };
    row("1.2.921.74336", "CST-8", "Sep 21 2019", "07:43:36");
    row("1.2.921.154336", "UTC0", "Sep 21 2019", "07:43:36");
    row("1.2.101.00000", "UTC0", "Dec 31 2019", "16:00:00");
    row("1.2.930.235959", "NZST-12", "Oct  1 2019", "03:59:59");
    row("1.2.109.230509", "CST-8", "Jan  9 2026", "23:05:09");
    row("1.2..", "CST-8", "??? ?? ????", "??:??:??");
}

void TestAppVersion::versions()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, date);
    QFETCH(QString, time);
    qputenv("TZ", zone);
    tzset();
    QCOMPARE(appVersion(date, time), QLatin1String(QTest::currentDataTag()));
}

QTEST_APPLESS_MAIN(TestAppVersion)
#include "tst_appversion.moc"
