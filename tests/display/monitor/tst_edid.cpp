// SPDX-License-Identifier: MIT
// The EDID decoder, and moniconf-edid on top of it.
#include "display/monitor/edid.h"
#include "tests/support/edidblock.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestEdid : public QObject
{
    Q_OBJECT

private slots:
    void parts_data();
    void parts();
    void wholeDump();
    void tool_data();
    void tool();
};

namespace {

// The dump, and behind it what the two getters say, over values that they find there.
QByteArray decoded(const unsigned char *edid)
{
    T_NativeTiming native = {1, 2, 3};
    unsigned h1 = 1, h2 = 2, v1 = 3, v2 = 4;
    const int timing = getNativeTiming(edid, native);
    const int limits = getRangeLimits(edid, h1, h2, v1, v2);
    return QByteArray::fromStdString(edidText(edid)) +
           QString::asprintf("native %d %ux%u@%u limits %d %u-%u %u-%u", timing, native.width,
                             native.height, native.pixelClock, limits, h1, h2, v1, v2)
               .toLatin1();
}

EdidBlock fullHd()
{
    return EdidBlock().timing(0, 14850, 1920, 280, 1080, 45);
}

} // namespace

void TestEdid::parts_data()
{
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<QByteArray>("part");
    const auto row = [](const char *name, const QByteArray &block, const QByteArray &part) {
        QTest::newRow(name) << block << part;
    };
    using Block = EdidBlock;

    row("bare", Block(),
        "year: 1990\n"
        "Video input definition: analog signal, voltage level 0\n"
        "Monitor is non-RGB\n"
        "Maximum visible display size: 0 cm x 0 cm\n"
        "Power management features: no active off, no suspend, no standby\n"
        "Estabilished timings:\nStandard timings:\n\tNone\n"
        "native -1 1x2@3 limits -1 0-0 0-0");
    row("bad first byte", fullHd().set(0, "01").descriptor(1, '\xFD', "12345"),
        "Not a valid EDID\nnative 0 1920x1080@148500000 limits -1 0-0 0-0");
    row("bad last byte", Block().set(7, "01"), "Not a valid EDID\n");
    row("version 0", Block().set(18, "00"), "Not a valid EDID\n");
    row("version 255.255", Block().set(18, "ffff"), "Not a valid EDID\n");
    row("version 255.254", Block().set(18, "fffe"), "EDID version: 255.254\n");
    row("floating bus", QByteArray(EDID_BLOCK_SIZE, '\xFF'), "Not a valid EDID\n");
    // From offset 8: manufacturer, product code, serial number.
    row("MAG", Block().set(8, "3427000001000007"), "MAG\nSerial number: 00000001\n");
    row("MAG, none", Block().set(8, "34270000ffffffff"), "MAG\nSerial number: ffffffff\n");
    row("OQI", Block().set(8, "3e290000f14b301b"), "OQI\nSerial number: 00000001\n");
    row("VSC", Block().set(8, "5a630000ff9f2526"), "VSC\nSerial number: ffffffff\n");
    row("digital", Block().set(20, "9a"),
        "digital signal, voltage level 0, blank to black, separate sync, sync on green\n");
    row("established, some", Block().set(35, "400180"),
        "timings:\n\t720x400\t\t88 Hz (XGA2)\n\t1280x1024\t75 (VESA)\n"
        "\t1152x870\t75 (Mac II)\nStandard");
    row("standard, nearly unused", Block().set(38, "0001010002413f3f014101c1"),
        "timings:\n\t248x155\t\t61 Hz\n\t256x160\t\t60 Hz\n\t264x198\t\t61 Hz\n\t752x470\t\t123 "
        "Hz\nnative");
    row("totals of 0", fullHd().timing(0, 9, 0, 0, 9, 9).timing(1, 9, 9, 9, 0, 0),
        "\t0x9\t\t1 Hz (detailed)\n\t9x0\t\t1 Hz (detailed)\nnative -1");
    row("the first timing counts",
        Block().timing(0, 14850, 1000, 1200, 25, 1100).timing(1, 1, 1001, 9, 9, 9),
        "\t1000x25\t\t60 Hz (detailed)\n\t1001x9 \t0 Hz (detailed)\nnative 0 1000x25@148500000 ");
    row("the last slot", Block().timing(3, 1, 3000, 9, 2100, 9), "native 0 3000x2100@10000 ");
    row("text of blanks", Block().descriptor(0, '\xFE', QByteArray(13, ' ')), "r ID: \n\tNone\n");
    row("limits", Block().timing(0, 1, 9, 0xFD, 9, 9).descriptor(3, '\xFD', "\x01\xFF\x02\xFE\xFD"),
        "\nMonitor range limits, horizontal sync: 2-254 kHz, vertical refresh: 1-255 Hz, "
        "max pixel clock: 2530 MHz\nnative 0 9x9@10000 limits 0 2-254 1-255");
}

void TestEdid::parts()
{
    QFETCH(QByteArray, block);
    QFETCH(QByteArray, part);
    const QByteArray text = decoded(reinterpret_cast<const unsigned char *>(block.constData()));
    QVERIFY2(text.contains(part), text.constData());
}

void TestEdid::wholeDump()
{
    QFile block(QStringLiteral(TEST_DATA "/whole-block.txt"));
    QFile dump(QStringLiteral(TEST_DATA "/whole-dump.txt"));
    QVERIFY(block.open(QIODevice::ReadOnly) && dump.open(QIODevice::ReadOnly));
    const QByteArray bytes = QByteArray::fromHex(block.readAll());
    QCOMPARE(bytes.size(), int(EDID_BLOCK_SIZE));
    const auto *edid = reinterpret_cast<const unsigned char *>(bytes.constData());
    QCOMPARE(QByteArray::fromStdString(edidText(edid)), dump.readAll());
}

void TestEdid::tool_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QByteArray>("error"); // found in it; empty if it must be
    const auto row = [](const char *arguments, int status, const QByteArray &output,
                        const QByteArray &error) {
        QTest::newRow(arguments) << status << output << error;
    };
    const QByteArray dump = QByteArray::fromStdString(edidText(fullHd().bytes()));
    const QByteArray xga = "800 x 600\n1024 x 768\n";
    const QByteArray wide =
        xga + "1280 x 720\n1280 x 800\n1360 x 768\n1440 x 900\n1680 x 1050\n1920 x 1080\n";

    row("fullhd", 0, dump, "");
    row("--modes fullhd", 0, wide, "8 wide modes\nmoniconf-edid: fullhd: the list ends");
    row("--modes xga", 0, xga,
        "4 normal modes\nmoniconf-edid: xga: the list stops before 1280 x 960, which has 1228800 "
        "pixels, more than the 786432");
    row("short", 1, "Not a valid EDID\n", "short: only 127 ");
    row("--modes bare", 1, "", "bare: no usable detailed timing");
    row("missing short fullhd", 2, "short:\nNot a valid EDID\nfullhd:\n" + dump,
        "missing: No such file");
    row("--bus /dev/null", 2, "", "/dev/null: "); // an emulator has a reason of its own
    row("--modes /dev/i2c-1", 2, "", "type: --bus /dev/i2c-1");
    row("--modes", 2, "", "no file");
}

void TestEdid::tool()
{
    QTemporaryDir folder;
    const auto put = [&folder](const char *name, const QByteArray &bytes) {
        QFile file(folder.filePath(QLatin1String(name)));
        return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QVERIFY(put("fullhd", fullHd() + QByteArray(128, 'x'))); // with an extension
    QVERIFY(put("xga", EdidBlock().timing(0, 6500, 1024, 320, 768, 38)));
    QVERIFY(put("short", QByteArray(fullHd()).left(127)));
    QVERIFY(put("bare", EdidBlock()));

    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.setStandardInputFile(folder.filePath(QStringLiteral("fullhd")));
    process.start(QStringLiteral(MONICONF_EDID),
                  QString::fromLatin1(QTest::currentDataTag()).split(QLatin1Char(' ')));
    QVERIFY(process.waitForFinished());
    QTEST(process.exitCode(), "status");
    QTEST(process.readAllStandardOutput(), "output");
    const QByteArray errors = process.readAllStandardError();
    QFETCH(QByteArray, error);
    QVERIFY2(error.isEmpty() ? errors.isEmpty() : errors.contains(error), errors.constData());
}

QTEST_GUILESS_MAIN(TestEdid)
#include "tst_edid.moc"
