// SPDX-License-Identifier: MIT
#include "display/modetext.h"

#include <QtTest>

class TestModeText : public QObject
{
    Q_OBJECT

private slots:
    void modeTexts_data();
    void modeTexts();
};

void TestModeText::modeTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("numbers"); // over 7x8@9, what the record held before

    const auto row = [](const char *text, ModeTextResult result, const char *numbers) {
        QTest::newRow(text) << QString::fromLatin1(text) << int(result)
                            << QString::fromLatin1(numbers);
    };
    row("1920x1080M@60", ModeTextResult::Read, "1920x1080@60");
    row("1024X768", ModeTextResult::Read, "1024x768@60");
    row("1280 x 1024", ModeTextResult::Read, "1280x1024@60");
    row("800xabc@60", ModeTextResult::Read, "800x0@60");
    row("800x600@", ModeTextResult::LastIsBad, "800x600@0");
    row("800x", ModeTextResult::LastIsBad, "800x0@60");
    row("60@800x600", ModeTextResult::NoWidth, "0x8@9");
    row("abcx600@60", ModeTextResult::NoWidth, "0x8@9");
    row("-800x600", ModeTextResult::NoWidth, "0x8@9");
    row("4294967296x600", ModeTextResult::NoWidth, "0x8@9");
    row("", ModeTextResult::NoWidth, "7x8@9");
}

void TestModeText::modeTexts()
{
    QFETCH(QString, text);
    DisplayMode mode{7, 8, 9};
    QTEST(int(parseModeText(text, mode)), "result");
    QTEST(QStringLiteral("%1x%2@%3").arg(mode.width).arg(mode.height).arg(mode.refreshRate),
          "numbers");
}

QTEST_APPLESS_MAIN(TestModeText)
#include "tst_modetext.moc"
