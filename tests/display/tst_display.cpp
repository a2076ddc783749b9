// SPDX-License-Identifier: MIT
#include "display/connectors.h"
#include "display/gammacurve.h"
#include "display/i2cdevice.h"
#include "display/modetext.h"
#include "display/screenconfiguration.h"
#include "tests/support/box.h"
#include "tests/support/logcapture.h"

#include <QTemporaryFile>

#include <cstring>
#include <tuple>
#include <unistd.h>

class TestDisplay : public QObject
{
    Q_OBJECT

private slots:
    void modeTexts()
    {
        using Result = ModeTextResult;
        // A text, and what comes of it over 7x8@9, which the mode held before.
        const std::tuple<const char *, Result, DisplayMode> rows[] = {
            {"1920x1080M@60", Result::Read, {1920, 1080, 60}},
            {"1024X768", Result::Read, {1024, 768, 60}},
            {"1280 x 1024", Result::Read, {1280, 1024, 60}},
            {"800x600m@75", Result::Read, {800, 600, 75}},
            {"800xabc@60", Result::Read, {800, 0, 60}},
            {"800x", Result::LastIsBad, {800, 0, 60}},
            {"-800x600", Result::NoWidth, {0, 8, 9}},
            {"4294967296x600", Result::NoWidth, {0, 8, 9}},
            {"", Result::NoWidth, {7, 8, 9}},
        };
        for (const auto &[text, result, wanted] : rows) {
            DisplayMode mode{7, 8, 9};
            QVERIFY2(parseModeText(QLatin1String(text), mode) == result, text);
            QVERIFY2(isSameSize(mode, wanted) && mode.refreshRate == wanted.refreshRate, text);
        }
    }

    // Against a table that was derived apart from it, in another language: arctangent and power
    // with 400 bits, each result then rounded to single or double precision as the curve's
    // definition names it, the integer steps in 32 bits. It is too large to be rounded away, so it
    // shows every last bit; it saturates and wraps. The curves of usual gammas show where the main
    // window sets one.
    void gammaCurves()
    {
        const GammaCurve wanted = {1,
                                   {1, 62, 264, 242, 168, 340, 299, 267, 118, 205, 304, 82, 238,
                                    282, 12, 360},
                                   {-32, 1593408528, -118364736, -291103208, -20366676, 2145879511,
                                    2147309024, 2147447659, 2147472983, 2147479651, 2147481890,
                                    2147482780, 2147483180, 2147483378, 2147483484, 2147483546}};
        const GammaCurve curve = gammaCurve(-0.25F);
        QVERIFY(std::memcmp(&curve, &wanted, sizeof(curve)) == 0);
    }

    // What is shown after the command that is to bring 800 x 600 back, where a monitor of
    // 1920 x 1080 and one of 1024 x 768 were shown before.
    void knowsLostPicture()
    {
        const LitCrtc first{1, 0, 0, 1920, 1080, 50, 1, {7}};
        const LitCrtc second{2, 1920, 0, 1024, 768, 51, 1, {8}};
        const std::tuple<const char *, bool, std::vector<LitCrtc>> rows[] = {
            {"nothing has changed", false, {first, second}},
            {"the wanted mode", false, {{1, 0, 0, 800, 600, 52, 1, {7}}, second}},
            {"the wanted mode, upright", false, {{1, 0, 0, 600, 800, 52, 2, {7}}, second}},
            {"the wanted mode on one monitor", true, {{1, 0, 0, 800, 600, 52, 1, {7}}}},
            {"another mode", true, {{1, 0, 0, 800, 480, 52, 1, {7}}, second}},
            {"another rate", true, {{1, 0, 0, 1920, 1080, 60, 1, {7}}, second}},
            {"upside down", true, {{1, 0, 0, 1920, 1080, 50, 4, {7}}, second}},
            {"nothing", true, {}},
        };
        for (const auto &[what, isLost, now] : rows)
            QVERIFY2(isPictureLost(now, {first, second}, {800, 600, 60}) == isLost, what);
        QVERIFY(!isPictureLost({first}, {}, {800, 600, 60}));
    }

    // As the board is wired. The simulated box is built from the table and so agrees with it.
    void connectors()
    {
        QByteArrayList found;
        for (const auto &[name, ddcBus, ddcSwitch] : CONNECTORS)
            found << name << ddcBus << (ddcSwitch ? ddcSwitch : "no switch");
        QCOMPARE(found.join(' '),
                 QByteArray("vga /dev/i2c-2 /sys/class/leds/vga-i2c-enb/brightness "
                            "hdmi /dev/i2c-1 no switch"));
    }

    void devices()
    {
        const QString missing = "/nowhere/%1"_s;
        QTemporaryFile file;
        QVERIFY(file.open() && file.write("ab") == 2 && file.flush());
        const LogCapture log;
        I2CDevice device;
        QVERIFY(device.CloseDevice());
        QVERIFY(!device.OpenDevice(missing));
        QCOMPARE(device.GetErrorString(), "Error opening /nowhere/%1. "_s);
        QVERIFY(device.OpenDevice(file.fileName()));
        QVERIFY(device.OpenDevice(missing)); // keeps the first
        QVERIFY(device.WriteString("1"_s));
        QCOMPARE(box::read(file.fileName()), QByteArray("1b"));

        const int descriptor = device.Descriptor();
        ::close(descriptor);
        QVERIFY(!device.CloseDevice());
        QCOMPARE(device.Descriptor(), descriptor);
        QCOMPARE(log.texts("basedevice"_s).join(u'|'),
                 "C \"Error opening /nowhere/%1. \"|C \"Close file error. Errno is: 9\""_s);
        QCOMPARE(log.messages().first().function,
                 "virtual bool BaseDevice::OpenDevice(const QString&)"_s);
    }
};

QTEST_GUILESS_MAIN(TestDisplay)
#include "tst_display.moc"
