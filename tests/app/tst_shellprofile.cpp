// SPDX-License-Identifier: MIT
#include "app/shellprofile.h"
#include "tests/support/box.h"
#include "tests/support/logcapture.h"

#include <QTemporaryDir>

#include <tuple>

namespace {

QString profile;
QByteArray synchronised; // what the profile held then

} // namespace

// Found before the C library's.
extern "C" void sync() noexcept
{
    synchronised = box::read(profile);
}

class TestShellProfile : public QObject
{
    Q_OBJECT

    const QTemporaryDir m_directory;

private slots:
    void localeLines()
    {
        const QByteArray zh = "export LANG=zh_CN.UTF-8";
        const QByteArray noText("\xff\xfe\xc3(\0\x80\n# \xe4\xb8\nx\n", 14);
        const std::tuple<const char *, QByteArray, QByteArray> rows[] = {
            {"of two", "export LANG=en_US.UTF-8\n export LANG=C\n", zh + "\n export LANG=C\n"},
            {"none, joined to an unended line", "a", "a" + zh},
            {"a longer one", "  export LANG=en_US.UTF-8 # x\nb\n", zh + "-8 # x\nb\n"},
            {"a shorter one", "#export LANG=C\n0123456789\n", zh + "89\n"},
            {"none, after bytes that are no text", noText, noText + zh},
        };
        profile = m_directory.filePath(QStringLiteral("profile"));
        for (const auto &[name, before, after] : rows) {
            box::write(profile, before);
            QVERIFY(writeLocaleLine(profile, localeLine(QStringLiteral("Chinese"))));
            QVERIFY2(box::read(profile) == after, name);
            QVERIFY2(synchronised == after, name);
        }
        QCOMPARE(localeLine(QStringLiteral("chinese")), QByteArray("export LANG=en_US.UTF-8"));
    }

    void failures()
    {
        const QString missing = m_directory.filePath(QStringLiteral("missing"));
        QVERIFY(!writeLocaleLine(missing, "x"));
        QVERIFY(!QFile::exists(missing));
        QVERIFY(!writeLocaleLine(m_directory.path(), "x"));

        // Reading this process's memory from its start fails as a worn-out storage does.
        if (!QFile(QStringLiteral("/proc/self/mem")).open(QIODevice::ReadWrite))
            QSKIP("/proc can only be read here, as where packages are built");
        const LogCapture log;
        QVERIFY(writeLocaleLine(QStringLiteral("/proc/self/mem"), "x"));
        QCOMPARE(log.texts(QStringLiteral("shellprofile")).join(QString()),
                 QStringLiteral("C Reading /proc/self/mem failed, nothing is written."));
    }
};

QTEST_GUILESS_MAIN(TestShellProfile)
#include "tst_shellprofile.moc"
