// SPDX-License-Identifier: MIT
#include "maintenance/identity/appversion.h"
#include "maintenance/identity/productbarcode.h"

#include <QtTest>

#include <ctime>

class TestIdentity : public QObject
{
    Q_OBJECT

private slots:
    void versions_data();
    void versions();
    void barcodes_data();
    void barcodes();
};

void TestIdentity::versions_data()
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

void TestIdentity::versions()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, date);
    QFETCH(QString, time);
    qputenv("TZ", zone);
    tzset();
    QCOMPARE(appVersion(date, time), QLatin1String(QTest::currentDataTag()));
}

void TestIdentity::barcodes_data()
{
    QTest::addColumn<bool>("read");
    QTest::addColumn<QString>("barcode");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("serialNo"); // -1 before
    QTest::addColumn<uint>("flags");

    const auto good = [](const QByteArray &barcode, int type, int serialNo, uint flags) {
        QTest::newRow(("a|b|" + barcode).constData())
            << true << QString::fromLatin1(barcode) << type << serialNo << flags;
    };
    const std::pair<int, uint> types[] = {{0, 0},    {421, 0},  {437, 0},   {458, 32}, {463, 64},
                                          {509, 1},  {516, 17}, {527, 79},  {548, 68}, {552, 71},
                                          {569, 79}, {574, 79}, {681, 192}, {694, 207}};
    for (const auto &[type, flags] : types)
        good(QByteArray::number(1000 + type).mid(1) + "KH001", type, 1, flags);
    good("999XY001", 458, 1, 32);
    good("abcXY001", 0, 1, 0);
    good("573KH214", 421, 214, 0);
    good("846WF507", 569, 507, 79);
    good("391WF628", 0, 628, 0);
    good("391WF743", 0, 743, 0);
    good("391WF860", 0, 860, 0);
    good("395PL476", 0, 476, 0);
    good("395PL477", 458, 477, 32);
    QTest::newRow("a|b|527AB0x1") << false << QStringLiteral("527AB0x1") << 527 << 0 << 79U;
    for (const char *lines : {"", "a|527AB001", "a|b|c|527AB001", "a|b|527AB01", "a|b|527AB001 "})
        QTest::newRow(lines) << false << QString() << 0 << -1 << 0U;
}

void TestIdentity::barcodes()
{
    ProductBarcode::T_Barcode record{QStringLiteral("527AB001"), 527, QDate(), -1};
    const QString lines = QString::fromLatin1(QTest::currentDataTag());
    QTEST(ProductBarcode::DecodeBarcode(record, lines.split(QLatin1Char('|'))), "read");
    QTEST(record.barcode, "barcode");
    QTEST(record.type, "type");
    QTEST(record.serialNo, "serialNo");
    QVERIFY(record.productionDate.isNull());

    quint32 flags = 1U << 31;
    ProductBarcode::GetTypeFlags(record, flags);
    QTEST(flags, "flags");
}

QTEST_APPLESS_MAIN(TestIdentity)
#include "tst_identity.moc"
