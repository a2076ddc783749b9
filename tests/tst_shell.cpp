// SPDX-License-Identifier: MIT
// What the main window relies on and what needs no window.
#include "app/errortext.h"
#include "app/profile.h"
#include "app/startup.h"
#include "display/modetext.h"
#include "display/screenkeeper.h"

#include <QTemporaryDir>
#include <QtTest>

class TestShell : public QObject
{
    Q_OBJECT

private slots:
    void modeTexts_data();
    void modeTexts();
    void localeLines_data();
    void localeLines();
    void missingProfileStaysMissing();
    void longMessages();
    void versionQuery();
    void placesOnScreen();
};

void TestShell::modeTexts_data()
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

void TestShell::modeTexts()
{
    QFETCH(QString, text);
    quint32 width = 7;
    quint32 height = 8;
    quint32 refreshRate = 9;
    QTEST(int(parseModeText(text, width, height, refreshRate)), "result");
    QTEST(QStringLiteral("%1x%2@%3").arg(width).arg(height).arg(refreshRate), "numbers");
}

void TestShell::localeLines_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after"); // for Chinese

    const QByteArray zh = "export LANG=zh_CN.UTF-8";
    QTest::newRow("middle") << QByteArray("a\nexport LANG=en_US.UTF-8\nb\n")
                            << "a\n" + zh + "\nb\n";
    QTest::newRow("none") << QByteArray("a\n") << "a\n" + zh;
    QTest::newRow("none, joined to an unended line") << QByteArray("a") << "a" + zh;
    QTest::newRow("empty") << QByteArray() << zh;
    QTest::newRow("a longer line keeps its tail")
        << QByteArray("  export LANG=en_US.UTF-8 # set\nb\n") << zh + "-8 # set\nb\n";
    QTest::newRow("a shorter comment runs into the next line")
        << QByteArray("#export LANG=C\n0123456789\n") << zh + "89\n";
    QTest::newRow("CRLF") << QByteArray("a\r\nexport LANG=en_US.UTF-8\r\nb\r\n")
                          << "a\r\n" + zh + "\r\nb\r\n";
    QTest::newRow("bytes that are no text")
        << QByteArray("\xff\xfe\xc3(\0\x80\n# \xe4\xb8\nx\n", 14)
        << QByteArray("\xff\xfe\xc3(\0\x80\n# \xe4\xb8\nx\n", 14) + zh;
    const QByteArray large = QByteArray(2 * 1024 * 1024, 'x').replace(99, 1, "\n");
    QTest::newRow("beyond any buffer") << large + "\nexport LANG=en_US.UTF-8\n"
                                       << large + "\n" + zh + "\n";
}

void TestShell::localeLines()
{
    QFETCH(QByteArray, before);
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("profile")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(before);
    file.close();

    QVERIFY(writeLocaleLine(file.fileName(), localeLine(QStringLiteral("Chinese"))));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTEST(file.readAll(), "after");
}

void TestShell::missingProfileStaysMissing()
{
    const QTemporaryDir directory;
    const QString missing = directory.filePath(QStringLiteral("profile"));
    QVERIFY(!writeLocaleLine(missing, "x"));
    QVERIFY(!QFile::exists(missing));
    QVERIFY(!writeLocaleLine(directory.path(), "x"));
    QCOMPARE(localeLine(QStringLiteral("chinese")), QByteArray("export LANG=en_US.UTF-8"));
}

void TestShell::longMessages()
{
    const QString fits = QStringLiteral("1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n");
    QCOMPARE(shortenedMessage(fits), fits);
    QCOMPARE(shortenedMessage(QString()), QString());
    const QString ellipsis = QChar(0x2026);
    QCOMPARE(shortenedMessage(fits + QStringLiteral("11")), fits.trimmed() + ellipsis);
    QCOMPARE(shortenedMessage(QString(2000000, QLatin1Char('x'))).size(), 1001);
}

void TestShell::versionQuery()
{
    const char *const arguments[] = {"moniconf", "--version", "-v"};
    QVERIFY(isVersionQuery(2, arguments));
    QVERIFY(isVersionQuery(2, arguments + 1)); // -v
    QVERIFY(!isVersionQuery(1, arguments));
    QVERIFY(!isVersionQuery(3, arguments));
}

void TestShell::placesOnScreen()
{
    const auto place = [](int x, int y, int width = 286, int height = 323) {
        return placeOnScreen(QRect(x, y, width, height), QRect(0, 0, 800, 600));
    };
    QCOMPARE(place(514, 277), QPoint(514, 277));
    QCOMPARE(place(900, 800), QPoint(514, 277));
    QCOMPARE(place(-20, -5), QPoint(0, 0));
    QCOMPARE(place(30, 30, 1000, 700), QPoint(0, 0));
}

QTEST_GUILESS_MAIN(TestShell)
#include "tst_shell.moc"
