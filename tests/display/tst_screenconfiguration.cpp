// SPDX-License-Identifier: MIT
#include "display/screenconfiguration.h"

#include <QtTest>

class TestScreenConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void knowsRejectedMode();
};

// That a command has failed shows in the box's tests, but not with modes of one size.
void TestScreenConfiguration::knowsRejectedMode()
{
    const ScreenConfiguration at50Hz{1920, 1080, 1, 50};
    const ScreenConfiguration at60Hz{1920, 1080, 1, 60};
    const ScreenConfiguration upsideDown{1920, 1080, 4, 50};
    const DisplayMode fullHd{1920, 1080, 60};
    const DisplayMode small{800, 600, 60};
    QVERIFY(!isRejectedModeLeft(at50Hz, at50Hz, small));
    QVERIFY(isRejectedModeLeft(at60Hz, at50Hz, small));
    QVERIFY(isRejectedModeLeft(upsideDown, at50Hz, small));
    QVERIFY(!isRejectedModeLeft(at60Hz, at50Hz, fullHd));
}

QTEST_APPLESS_MAIN(TestScreenConfiguration)
#include "tst_screenconfiguration.moc"
