// SPDX-License-Identifier: MIT
#include "maintenance/identity/appversion.h"
#include "maintenance/identity/productbarcode.h"

#include <QtTest>

#include <ctime>

class TestIdentity : public QObject
{
    Q_OBJECT

private slots:
    void versions()
    {
        // The zone's sign counts westwards; date and time are those of the build.
        const char *const rows[][4] = {
            {"1.2.921.74336", "CST-8", "Sep 21 2019", "07:43:36"},
            {"1.2.921.154336", "UTC0", "Sep 21 2019", "07:43:36"},
            {"1.2.101.00000", "UTC0", "Dec 31 2019", "16:00:00"},
            {"1.2.930.235959", "NZST-12", "Oct  1 2019", "03:59:59"},
            {"1.2.109.230509", "CST-8", "Jan  9 2026", "23:05:09"},
            {"1.2..", "CST-8", "??? ?? ????", "??:??:??"},
        };
        for (const auto &[version, zone, date, time] : rows) {
            qputenv("TZ", zone);
            tzset();
            QCOMPARE(appVersion(QString::fromLatin1(date), QString::fromLatin1(time)),
                     QLatin1String(version));
        }
    }

    void barcodes()
    {
        // The third line and what it gives. With the serial number 0, which is no number, the
        // barcode is kept but does not count; with -1 there is none.
        const struct
        {
            const char *barcode;
            int type, serialNo;
            quint32 flags;
        } rows[] =
            {{"000KH001", 0, 1, 0},     {"421KH001", 421, 1, 0},    {"437KH001", 437, 1, 0},
             {"458KH001", 458, 1, 32},  {"463KH001", 463, 1, 64},   {"509KH001", 509, 1, 1},
             {"516KH001", 516, 1, 17},  {"527KH001", 527, 1, 79},   {"548KH001", 548, 1, 68},
             {"552KH001", 552, 1, 71},  {"569KH001", 569, 1, 79},   {"574KH001", 574, 1, 79},
             {"681KH001", 681, 1, 192}, {"694KH001", 694, 1, 207},  {"999XY001", 458, 1, 32},
             {"abcXY001", 0, 1, 0},     {"573KH214", 421, 214, 0},  {"846WF507", 569, 507, 79},
             {"391WF628", 0, 628, 0},   {"391WF743", 0, 743, 0},    {"391WF860", 0, 860, 0},
             {"395PL476", 0, 476, 0},   {"395PL477", 458, 477, 32}, {"527AB0x1", 527, 0, 79},
             {"527AB01", 0, -1, 0},     {"527AB001 ", 0, -1, 0},    {"c|527AB001", 0, -1, 0}};
        for (const auto &[text, type, serialNo, flags] : rows) {
            const QString barcode = QString::fromLatin1(text);
            const QStringList lines = (QStringLiteral("a|b|") + barcode).split(QLatin1Char('|'));
            ProductBarcode::T_Barcode record{QStringLiteral("527AB001"), 527, QDate(), -1};
            QVERIFY(!ProductBarcode::DecodeBarcode(record, {QString(), barcode}));
            QVERIFY2(ProductBarcode::DecodeBarcode(record, lines) == (serialNo > 0), text);
            QCOMPARE(record.barcode, serialNo < 0 ? QString() : barcode);
            QVERIFY2(record.type == type && record.serialNo == serialNo, text);
            QVERIFY(record.productionDate.isNull());
            quint32 found = 1U << 31;
            ProductBarcode::GetTypeFlags(record, found);
            QVERIFY2(found == flags, text);
        }
    }
};

QTEST_APPLESS_MAIN(TestIdentity)
#include "tst_identity.moc"
