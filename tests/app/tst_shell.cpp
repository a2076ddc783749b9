// SPDX-License-Identifier: MIT
#include "app/guards/instancelock.h"
#include "app/shellprofile.h"
#include "tests/support/logcapture.h"
#include "tests/support/syncedfile.h"
#include "tests/support/text.h"

#include <QProcess>
#include <QTemporaryDir>

#include <tuple>
#include <unistd.h>

using Lock = InstanceLock::Result;

class TestShell : public QObject
{
    Q_OBJECT

    const QTemporaryDir m_directory;

private slots:
    void profiles()
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
        syncedFile = m_directory.filePath("profile"_s);
        for (const auto &[name, before, after] : rows) {
            box::write(syncedFile, before);
            QVERIFY(writeLocaleLine(syncedFile, localeLine("Chinese"_s)));
            QVERIFY2(syncedContent == after, name);
        }
        QCOMPARE(localeLine("chinese"_s), QByteArray("export LANG=en_US.UTF-8"));
    }

    void profilesThatCannotBeRead()
    {
        QVERIFY(!writeLocaleLine(m_directory.path(), "x"));
        // Reading this process's memory from its start fails as a worn-out storage does.
        const QString memory = "/proc/self/mem"_s;
        if (!QFile(memory).open(QIODevice::ReadWrite))
            QSKIP("/proc can only be read here, as where packages are built");
        const LogCapture log;
        QVERIFY(writeLocaleLine(memory, "x"));
        QCOMPARE(log.texts("shellprofile"_s),
                 QStringList("C Reading /proc/self/mem failed, nothing is written."_s));
    }

    void locks()
    {
        // What makes that which stands under the name "lock", and what comes of it.
        const std::pair<const char *, Lock> rows[] = {
            {"echo 1 >lock", Lock::Taken},
            {"ln -s other lock", Lock::Unusable},
            {"ln other lock", Lock::Unusable},
            // Needs the superuser, and else leaves the file to its owner.
            {"touch lock; chown 65534 lock || true", getuid() == 0 ? Lock::Unusable : Lock::Taken},
        };
        for (const auto &[make, result] : rows) {
            const QTemporaryDir directory;
            const QString there = "cd %1; echo 2 >other; "_s.arg(directory.path());
            QCOMPARE(std::system(qPrintable(there + QLatin1String(make))), 0);
            QVERIFY2(InstanceLock().take(directory.filePath("lock"_s)) == result, make);
        }
    }

    void lockEndsWithItsHolder()
    {
        const QString file = m_directory.filePath("lock"_s);
        QProcess outlivesTheHolder;
        {
            InstanceLock holder;
            QCOMPARE(holder.take(file), Lock::Taken);
            QVERIFY(!(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther)));
            outlivesTheHolder.start("cat"_s, QStringList());
            QVERIFY(outlivesTheHolder.waitForStarted());
        }
        QCOMPARE(InstanceLock().take(file), Lock::Taken);
        QCOMPARE(outlivesTheHolder.state(), QProcess::Running);
        outlivesTheHolder.kill();
        QVERIFY(outlivesTheHolder.waitForFinished());
    }
};

QTEST_GUILESS_MAIN(TestShell)
#include "tst_shell.moc"
