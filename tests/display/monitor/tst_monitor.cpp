// SPDX-License-Identifier: MIT
// The mode tables and the EDID decoder, and moniconf-edid on top of them.
#include "display/monitor/modes.h"
#include "tests/support/box.h"
#include "tests/support/edidblock.h"

#include <QProcess>
#include <QTemporaryDir>

#include <tuple>

namespace {

const QByteArray WIDE = "800x600@60 1024x768@60 1280x720@60 1280x800@60 1360x768@60 1440x900@60 "
                        "1680x1050@60 1920x1080@60 ";
const QByteArray NORMAL = "800x600@60 1024x768@60 1280x960@60 1280x1024@60 ";

QByteArray texts(const std::vector<T_ResolutionEntry> &modes)
{
    QByteArray result;
    for (const T_ResolutionEntry &entry : modes)
        result += entry.text + QByteArray(" ");
    return result;
}

// What the decoder makes of a block: the dump, and the numbers that it finds or leaves as they
// were.
QByteArray decoded(const EdidBlock &block)
{
    const auto *edid = reinterpret_cast<const unsigned char *>(block.constData());
    T_NativeTiming native = {1, 2, 3};
    unsigned h1 = 1, h2 = 2, v1 = 3, v2 = 4;
    const int timing = getNativeTiming(edid, native);
    const int limits = getRangeLimits(edid, h1, h2, v1, v2);
    return QByteArray::fromStdString(edidText(edid)) +
           QString::asprintf("timing %d: %ux%u, %u Hz; limits %d: %u-%u kHz, %u-%u Hz", timing,
                             native.width, native.height, native.pixelClock, limits, h1, h2, v1, v2)
               .toLatin1();
}

const QString DATA = QStringLiteral(TEST_DATA "/");
const EdidBlock FULL_HD = EdidBlock().timing(0, 14850, 1920, 280, 1080, 45);

} // namespace

class TestMonitor : public QObject
{
    Q_OBJECT

private slots:
    void offered()
    {
        // A monitor's size, the table for its aspect, and the last mode that is offered. The aspect
        // of 2501x1876 is cut off to 4:3, and the pixels of 480x1000 count, not its width.
        const std::tuple<quint32, quint32, QByteArray, QByteArray> rows[] = {
            {1024, 768, NORMAL, "1024x768"},   {1280, 1024, NORMAL, "1280x1024"},
            {2501, 1876, NORMAL, "1280x1024"}, {1152, 870, WIDE, "1280x720"},
            {480, 1000, WIDE, "800x600"},      {1920, 1079, WIDE, "1680x1050"},
            {1920, 1080, WIDE, "1920x1080"},   {0, 1080, WIDE, "none"},
        };
        for (const auto &[width, height, table, last] : rows) {
            const QByteArray native = QByteArray::number(width) + ": ";
            const int end = last == "none" ? 0 : table.indexOf(last) + last.size() + 4;
            QCOMPARE(native + texts(monitorModes({width, height, 0}).entries),
                     native + table.left(end));
        }
    }

    void dumps()
    {
        const std::pair<QString, QByteArray> rows[] = {
            {"bare"_s, "timing -1: 1x2, 3 Hz; limits -1: 0-0 kHz, 0-0 Hz"},
            {"odd"_s, "timing 0: 3000x2100, 148480000 Hz; limits 0: 2-254 kHz, 1-255 Hz"},
            {"whole"_s, "timing 0: 1920x1080, 148500000 Hz; limits 0: 30-81 kHz, 50-76 Hz"},
        };
        for (const auto &[name, numbers] : rows)
            QCOMPARE(decoded(EdidBlock().set(0, box::read(DATA + name + "-block.txt"_s))),
                     box::read(DATA + name + "-dump.txt"_s) + numbers);
    }

    void parts()
    {
        using Block = EdidBlock;
        const char *const limits = "000000fd003132333435"; // a descriptor
        const std::tuple<const char *, EdidBlock, QByteArray> rows[] = {
            {"first byte", Block(FULL_HD).timing(1, 1, 1, 1, 1, 1).set(0, "01").set(90, limits),
             "Not a valid EDID\ntiming 0: 1920x1080, 148500000 Hz; limits -1: 0-0 kHz, 0-0 Hz"},
            {"last byte", Block().set(7, "01"), "Not a valid EDID\n"},
            {"version 0", Block().set(18, "00"), "Not a valid EDID\n"},
            {"version 255.255", Block().set(18, "ffff"), "Not a valid EDID\n"},
            // From offset 8: manufacturer, product code, serial number.
            {"MAG, none", Block().set(8, "34270000ffffffff"), "MAG\nSerial number: ffffffff\n"},
            {"OQI", Block().set(8, "3e290000f14b301b"), "OQI\nSerial number: 00000001\n"},
            {"VSC", Block().set(8, "5a630000ff9f2526"), "VSC\nSerial number: ffffffff\n"},
            {"no height, then the last",
             Block().timing(0, 9, 9, 9, 0, 0).timing(3, 1, 1001, 9, 9, 9),
             "9x0\t\t1 Hz (detailed)\n\t1001x9 \t0 Hz (detailed)\ntiming 0: 1001x9, "},
        };
        for (const auto &[name, block, part] : rows)
            QVERIFY2(decoded(block).contains(part), name + (": " + decoded(block)));
    }

    void tool()
    {
        const QTemporaryDir folder;
        const QByteArray whole = box::read(DATA + "whole-dump.txt"_s);
        const EdidBlock wholeBlock = EdidBlock().set(0, box::read(DATA + "whole-block.txt"_s));
        box::write(folder.filePath("whole"_s), wholeBlock + "and an extension");
        box::write(folder.filePath("xga"_s), EdidBlock().timing(0, 6500, 1024, 320, 768, 38));
        box::write(folder.filePath("short"_s), QByteArray(FULL_HD).left(127));
        box::write(folder.filePath("bare"_s), EdidBlock());

        enum Status { WELL, INVALID, TROUBLE };
        const QByteArray xga = "800 x 600\n1024 x 768\n";
        // What it prints, and what its errors hold.
        const std::tuple<QString, Status, QByteArray, QByteArray> rows[] = {
            {"--modes whole"_s, WELL,
             xga + "1280 x 720\n1280 x 800\n1360 x 768\n1440 x 900\n1680 x 1050\n1920 x 1080\n",
             "8 wide modes\nmoniconf-edid: whole: the list ends"},
            {"--modes xga"_s, WELL, xga,
             "4 normal modes\nmoniconf-edid: xga: the list stops before 1280 x 960, which has "
             "1228800 pixels, more than the 786432"},
            {"--modes bare"_s, INVALID, "", "bare: no usable detailed timing"},
            {"short whole"_s, INVALID, "short:\nNot a valid EDID\nwhole:\n" + whole,
             "short: only 127 "},
            // An emulator has its own reason.
            {"missing --bus /dev/null"_s, TROUBLE, "",
             "missing: No such file or directory\nmoniconf-edid: /dev/null: "},
            {"--modes /dev/i2c-1"_s, TROUBLE, "", "type: --bus /dev/i2c-1"},
            {"--modes"_s, TROUBLE, "", "no file"},
        };
        for (const auto &[arguments, status, output, error] : rows) {
            QProcess process;
            process.setWorkingDirectory(folder.path());
            process.start(QStringLiteral(MONICONF_EDID), arguments.split(u' '));
            QVERIFY(process.waitForFinished());
            QCOMPARE(process.readAllStandardOutput(), output);
            const QByteArray errors = process.readAllStandardError();
            QVERIFY2(errors.contains(error), errors);
            QCOMPARE(process.exitCode(), int(status));
        }
    }
};

QTEST_GUILESS_MAIN(TestMonitor)
#include "tst_monitor.moc"
