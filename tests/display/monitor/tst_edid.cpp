// SPDX-License-Identifier: MIT
// The EDID decoder, and moniconf-edid on top of it.
#include "display/monitor/edid.h"
#include "tests/support/edidblock.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <tuple>

class TestEdid : public QObject
{
    Q_OBJECT

private slots:
    void parts();
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

const EdidBlock FULL_HD = EdidBlock().timing(0, 14850, 1920, 280, 1080, 45);

} // namespace

void TestEdid::parts()
{
    using Block = EdidBlock;
    const std::tuple<const char *, QByteArray, QByteArray> rows[] = {
        {"bare", Block(),
         "year: 1990\n"
         "Video input definition: analog signal, voltage level 0\n"
         "Monitor is non-RGB\n"
         "Maximum visible display size: 0 cm x 0 cm\n"
         "Power management features: no active off, no suspend, no standby\n"
         "Estabilished timings:\nStandard timings:\n\tNone\n"
         "native -1 1x2@3 limits -1 0-0 0-0"},
        {"bad first byte", Block(FULL_HD).set(0, "01").descriptor(1, '\xFD', "12345"),
         "Not a valid EDID\nnative 0 1920x1080@148500000 limits -1 0-0 0-0"},
        {"bad last byte", Block().set(7, "01"), "Not a valid EDID\n"},
        {"version 0", Block().set(18, "00"), "Not a valid EDID\n"},
        {"version 255.255", Block().set(18, "ffff"), "Not a valid EDID\n"},
        {"floating bus", QByteArray(EDID_BLOCK_SIZE, '\xFF'), "Not a valid EDID\n"},
        {"version 255.254", Block().set(18, "fffe"), "EDID version: 255.254\n"},
        {"version 255.0", Block().set(18, "ff00"), "EDID version: 255.0\n"},
        // From offset 8: manufacturer, product code, serial number.
        {"MAG", Block().set(8, "3427000001000007"), "MAG\nSerial number: 00000001\n"},
        {"MAG, none", Block().set(8, "34270000ffffffff"), "MAG\nSerial number: ffffffff\n"},
        {"OQI", Block().set(8, "3e290000f14b301b"), "OQI\nSerial number: 00000001\n"},
        {"VSC", Block().set(8, "5a630000ff9f2526"), "VSC\nSerial number: ffffffff\n"},
        {"digital", Block().set(20, "9a"),
         "digital signal, voltage level 0, blank to black, separate sync, sync on green\n"},
        {"established, some", Block().set(35, "400180"),
         "timings:\n\t720x400\t\t88 Hz (XGA2)\n\t1280x1024\t75 (VESA)\n"
         "\t1152x870\t75 (Mac II)\nStandard"},
        {"standard, nearly unused", Block().set(38, "0001010002413f3f014101c1"),
         "timings:\n\t248x155\t\t61 Hz\n\t256x160\t\t60 Hz\n\t264x198\t\t61 Hz\n\t752x470\t\t123 "
         "Hz\nnative"},
        {"totals of 0", Block(FULL_HD).timing(0, 9, 0, 0, 9, 9).timing(1, 9, 9, 9, 0, 0),
         "\t0x9\t\t1 Hz (detailed)\n\t9x0\t\t1 Hz (detailed)\nnative -1"},
        {"the first timing counts",
         Block().timing(0, 14850, 1000, 1200, 25, 1100).timing(1, 1, 1001, 9, 9, 9),
         "\t1000x25\t\t60 Hz (detailed)\n\t1001x9 \t0 Hz (detailed)\nnative 0 1000x25@148500000 "},
        {"the last slot", Block().timing(3, 1, 3000, 9, 2100, 9), "native 0 3000x2100@10000 "},
        {"ID", Block().descriptor(0, '\xFE', QByteArray(13, ' ')), "r ID: \n\tNone\n"},
        {"limits",
         Block().timing(0, 1, 9, 0xFD, 9, 9).descriptor(3, '\xFD', "\x01\xFF\x02\xFE\xFD"),
         "max pixel clock: 2530 MHz\nnative 0 9x9@10000 limits 0 2-254 1-255"},
    };
    for (const auto &[name, block, part] : rows) {
        const auto *edid = reinterpret_cast<const unsigned char *>(block.constData());
        const QByteArray text = decoded(edid);
        QVERIFY2(text.contains(part), name + (": " + text));
    }
}

void TestEdid::tool()
{
    const QTemporaryDir folder;
    const auto put = [&folder](const char *name, const QByteArray &bytes) {
        QFile file(folder.filePath(QLatin1String(name)));
        return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QFile block(QStringLiteral(TEST_DATA "/whole-block.txt"));
    QFile dump(QStringLiteral(TEST_DATA "/whole-dump.txt"));
    QVERIFY(block.open(QIODevice::ReadOnly) && dump.open(QIODevice::ReadOnly));
    const QByteArray whole = dump.readAll();
    QVERIFY(put("whole", QByteArray::fromHex(block.readAll())));
    QVERIFY(put("fullhd", FULL_HD + QByteArray(128, 'x'))); // with an extension
    QVERIFY(put("xga", EdidBlock().timing(0, 6500, 1024, 320, 768, 38)));
    QVERIFY(put("short", QByteArray(FULL_HD).left(127)));
    QVERIFY(put("bare", EdidBlock()));

    const QByteArray xga = "800 x 600\n1024 x 768\n";
    // An error is found in what is said; there is none if it is empty.
    const std::tuple<const char *, int, QByteArray, QByteArray> rows[] = {
        {"whole", 0, whole, ""},
        {"--modes fullhd", 0,
         xga + "1280 x 720\n1280 x 800\n1360 x 768\n1440 x 900\n1680 x 1050\n1920 x 1080\n",
         "8 wide modes\nmoniconf-edid: fullhd: the list ends"},
        {"--modes xga", 0, xga,
         "4 normal modes\nmoniconf-edid: xga: the list stops before 1280 x 960, which has 1228800 "
         "pixels, more than the 786432"},
        {"--modes bare", 1, "", "bare: no usable detailed timing"},
        {"missing short whole", 2, "short:\nNot a valid EDID\nwhole:\n" + whole,
         "missing: No such file or directory\nmoniconf-edid: short: only 127 "},
        {"--bus /dev/null", 2, "", "/dev/null: "}, // an emulator has a reason of its own
        {"--modes /dev/i2c-1", 2, "", "type: --bus /dev/i2c-1"},
        {"--modes", 2, "", "no file"},
    };
    for (const auto &[arguments, status, output, error] : rows) {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral(MONICONF_EDID),
                      QString::fromLatin1(arguments).split(QLatin1Char(' ')));
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAllStandardOutput(), output);
        const QByteArray errors = process.readAllStandardError();
        QVERIFY2(error.isEmpty() ? errors.isEmpty() : errors.contains(error), errors);
        QVERIFY2(process.exitCode() == status, arguments);
    }
}

QTEST_GUILESS_MAIN(TestEdid)
#include "tst_edid.moc"
