// SPDX-License-Identifier: MIT
#include "maintenance/identity/appversion.h"
#include "maintenance/identity/productbarcode.h"
#include "tests/support/text.h"

#include <QtTest>

#include <ctime>
#include <map>

class TestIdentity : public QObject
{
    Q_OBJECT

private slots:
    void versions()
    {
        // The zone's sign counts westwards; date and time are those of the build.
        const char *const rows[][4] = {
            {"1.2.101.00000", "UTC0", "Dec 31 2019", "16:00:00"},
            {"1.2.930.235959", "NZST-12", "Oct  1 2019", "03:59:59"},
        };
        for (const auto &[version, zone, date, time] : rows) {
            qputenv("TZ", zone);
            tzset();
            QCOMPARE(appVersion(QLatin1String(date), QLatin1String(time)), QLatin1String(version));
        }
    }

    void barcodes()
    {
        // All product types with their capability flags, of which 8 is the OTP application.
        const std::map<int, quint32> flagsOfType = {
            {0, 0},    {421, 0},  {437, 0},  {458, 32}, {463, 64}, {509, 1},   {516, 17},
            {527, 79}, {548, 68}, {552, 71}, {569, 79}, {574, 79}, {681, 192}, {694, 207},
        };
        // Barcodes with their type and serial number.
        std::map<QString, QString> rows = {
            {"573KH214"_s, "421, 214"_s}, {"846WF507"_s, "569, 507"_s},
            {"391WF628"_s, "0, 628"_s},   {"391WF743"_s, "0, 743"_s},
            {"391WF860"_s, "0, 860"_s},   {"395PL476"_s, "0, 476"_s},
            {"abcXY001"_s, "0, 1"_s},     {"527AB0x1"_s, "527, no number"_s},
        };
        for (int number = 0; number < 1000; ++number)
            rows["%1KH001"_s.arg(number, 3, 10, QLatin1Char('0'))] =
                "%1, 1"_s.arg(flagsOfType.count(number) == 1 ? number : 458);
        for (const auto &[barcode, wanted] : rows) {
            ProductBarcode::T_Barcode record;
            const bool isWell = ProductBarcode::DecodeBarcode(record, {"a"_s, "b"_s, barcode});
            const QString serialNo = isWell ? QString::number(record.serialNo) : "no number"_s;
            QCOMPARE("%1, %2"_s.arg(record.type).arg(serialNo), wanted);
            quint32 flags = 1U << 31;
            ProductBarcode::GetTypeFlags(record, flags);
            QCOMPARE(flags, flagsOfType.at(record.type));
        }
        for (const char *lines : {"a|527AB001", "a|b|527AB001|d", "a|b|527AB01", "a|b|527AB001 "}) {
            ProductBarcode::T_Barcode record{"527AB001"_s, 527, QDate(), 1};
            QVERIFY(!ProductBarcode::DecodeBarcode(record, QString::fromLatin1(lines).split(u'|')));
            QVERIFY2(record.barcode.isEmpty() && record.type == 0, lines);
        }
    }
};

QTEST_APPLESS_MAIN(TestIdentity)
#include "tst_identity.moc"
