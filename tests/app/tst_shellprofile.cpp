// SPDX-License-Identifier: MIT
#include "app/shellprofile.h"
#include "tests/support/logcapture.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

QString profile;
QByteArray synchronised; // what the profile held then

QByteArray content()
{
    QFile file(profile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// Found before the C library's.
extern "C" void sync() noexcept
{
    synchronised = content();
}

class TestShellProfile : public QObject
{
    Q_OBJECT

private slots:
    void localeLines_data();
    void localeLines();
    void missingProfileStaysMissing();
    void readErrorKeepsProfile();
};

void TestShellProfile::localeLines_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after"); // for Chinese

    const QByteArray zh = "export LANG=zh_CN.UTF-8";
    QTest::newRow("middle") << QByteArray("a\nexport LANG=en_US.UTF-8\nb\n")
                            << "a\n" + zh + "\nb\n";
    QTest::newRow("the first of two") << QByteArray("export LANG=en_US.UTF-8\n export LANG=C # x\n")
                                      << zh + "\n export LANG=C # x\n";
    QTest::newRow("none") << QByteArray("a\n") << "a\n" + zh;
    QTest::newRow("none, joined to an unended line") << QByteArray("a") << "a" + zh;
    QTest::newRow("a longer line keeps its tail")
        << QByteArray("  export LANG=en_US.UTF-8 # set\nb\n") << zh + "-8 # set\nb\n";
    QTest::newRow("a shorter comment runs into the next line")
        << QByteArray("#export LANG=C\n0123456789\n") << zh + "89\n";
    QTest::newRow("bytes that are no text")
        << QByteArray("\xff\xfe\xc3(\0\x80\n# \xe4\xb8\nx\n", 14)
        << QByteArray("\xff\xfe\xc3(\0\x80\n# \xe4\xb8\nx\n", 14) + zh;
    const QByteArray large = QByteArray(2 * 1024 * 1024, 'x').replace(99, 1, "\n");
    QTest::newRow("beyond any buffer") << large + "\nexport LANG=en_US.UTF-8\n"
                                       << large + "\n" + zh + "\n";
}

void TestShellProfile::localeLines()
{
    QFETCH(QByteArray, before);
    const QTemporaryDir directory;
    profile = directory.filePath(QStringLiteral("profile"));
    QFile file(profile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(before);
    file.close();

    QVERIFY(writeLocaleLine(file.fileName(), localeLine(QStringLiteral("Chinese"))));
    QTEST(content(), "after");
    QTEST(synchronised, "after");
}

void TestShellProfile::missingProfileStaysMissing()
{
    const QTemporaryDir directory;
    const QString missing = directory.filePath(QStringLiteral("profile"));
    QVERIFY(!writeLocaleLine(missing, "x"));
    QVERIFY(!QFile::exists(missing));
    QVERIFY(!writeLocaleLine(directory.path(), "x"));
    QCOMPARE(localeLine(QStringLiteral("chinese")), QByteArray("export LANG=en_US.UTF-8"));
}

void TestShellProfile::readErrorKeepsProfile()
{
    // Reading this process's memory from its start fails as a worn-out storage does.
    const LogCapture log;
    QVERIFY(writeLocaleLine(QStringLiteral("/proc/self/mem"), "x"));
    QCOMPARE(log.texts(QStringLiteral("shellprofile")),
             QStringList(QStringLiteral("C Reading /proc/self/mem failed, nothing is written.")));
}

QTEST_GUILESS_MAIN(TestShellProfile)
#include "tst_shellprofile.moc"
