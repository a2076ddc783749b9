// SPDX-License-Identifier: MIT
#include "maintenance/identity/productbarcode.h"

#include <QtTest>

class TestProductBarcode : public QObject
{
    Q_OBJECT

private slots:
    void barcodes_data();
    void barcodes();
};

void TestProductBarcode::barcodes_data()
{
    QTest::addColumn<bool>("read");
    QTest::addColumn<QString>("barcode");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("serialNo"); // -1 before
    QTest::addColumn<uint>("flags");

    const auto good = [](const char *barcode, int type, int serialNo, uint flags) {
        QTest::newRow((QByteArray("a|b|") + barcode).constData())
            << true << QString::fromLatin1(barcode) << type << serialNo << flags;
    };
    good("000AA000", 0, 0, 0);
    good("574KH001", 574, 1, 79);
    good("999XY001", 458, 1, 32);
    good("abcXY001", 0, 1, 0);
    good("573KH214", 421, 214, 0);
    good("846WF507", 569, 507, 79);
    good("391WF860", 0, 860, 0);
    good("395PL477", 458, 477, 32);
    QTest::newRow("a|b|527AB0x1") << false << QStringLiteral("527AB0x1") << 527 << 0 << 79U;
    for (const char *lines : {"", "a|527AB001", "a|b|c|527AB001", "a|b|527AB01", "a|b|527AB001 "})
        QTest::newRow(lines) << false << QString() << 0 << -1 << 0U;
}

void TestProductBarcode::barcodes()
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

QTEST_APPLESS_MAIN(TestProductBarcode)
#include "tst_productbarcode.moc"
