// SPDX-License-Identifier: MIT
#include "app/guards/instancelock.h"
#include "app/guards/keyrepeatguard.h"
#include "app/shellprofile.h"
#include "tests/support/box.h"
#include "tests/support/logcapture.h"
#include "tests/support/text.h"

#include <QKeyEvent>
#include <QProcess>
#include <QTemporaryDir>

#include <tuple>
#include <unistd.h>

using Lock = InstanceLock::Result;

namespace {

QString profile;
QByteArray synchronised; // what the profile held then

} // namespace

// Found before the C library's.
extern "C" void sync() noexcept
{
    synchronised = box::read(profile);
}

class TestShell : public QObject
{
    Q_OBJECT

    const QTemporaryDir m_directory;

private slots:
    void localeLines()
    {
        QCOMPARE(localeLine("Chinese"_s), QByteArray("export LANG=zh_CN.UTF-8"));
        QCOMPARE(localeLine("English"_s), QByteArray("export LANG=en_US.UTF-8"));
        QCOMPARE(localeLine("chinese"_s), QByteArray("export LANG=en_US.UTF-8"));
    }

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
        profile = m_directory.filePath("profile"_s);
        for (const auto &[name, before, after] : rows) {
            box::write(profile, before);
            QVERIFY(writeLocaleLine(profile, zh));
            QVERIFY2(box::read(profile) == after, name);
            QVERIFY2(synchronised == after, name);
        }
    }

    void profilesThatCannotBeWritten()
    {
        const QString missing = m_directory.filePath("missing"_s);
        QVERIFY(!writeLocaleLine(missing, "x"));
        QVERIFY(!QFile::exists(missing));
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
            {"true", Lock::Taken},
            {"echo 1 >lock", Lock::Taken},
            {"mkfifo lock", Lock::Unusable},
            {"ln -s other lock", Lock::Unusable},
            {"ln -s missing lock", Lock::Unusable},
            {"ln other lock", Lock::Unusable},
            {"mkdir lock", Lock::Unusable},
            // Needs the superuser, and else leaves the file to its owner.
            {"touch lock; chown 65534 lock || true", getuid() == 0 ? Lock::Unusable : Lock::Taken},
        };
        for (const auto &[make, result] : rows) {
            const QTemporaryDir directory;
            const QString there = "cd %1; echo 2 >other; "_s.arg(directory.path());
            QCOMPARE(std::system(qPrintable(there + QLatin1String(make))), 0);
            QVERIFY2(InstanceLock(directory.filePath("lock"_s)).take() == result, make);
            QVERIFY(!QFile::exists(directory.filePath("missing"_s)));
        }
    }

    void lockEndsWithItsHolder()
    {
        const QString file = m_directory.filePath("lock"_s);
        InstanceLock second(file);
        QProcess child;
        {
            InstanceLock first(file);
            QCOMPARE(first.take(), Lock::Taken);
            QCOMPARE(second.take(), Lock::Held);
            child.start("cat"_s, QStringList());
            QVERIFY(child.waitForStarted());
        }
        QCOMPARE(second.take(), Lock::Taken);
        // Nor does a program that outlives its holder keep it.
        QCOMPARE(child.state(), QProcess::Running);
        child.closeWriteChannel();
        QVERIFY(child.waitForFinished());
    }

    void heldKeys()
    {
        const struct
        {
            const char *does;
            Qt::Key key;
            const char *text;
            bool isRepeated;
            Qt::KeyboardModifier modifiers = Qt::NoModifier;
        } rows[] = {
            {"starts the upgrader", Qt::Key_F12, "", false},
            {"ends a dialog", Qt::Key_Escape, "\x1b", false},
            {"presses a button", Qt::Key_Return, "\r", false},
            {"opens the prompt", Qt::Key_E, "\x05", false, Qt::ControlModifier},
            {"presses a button by its letter", Qt::Key_Y, "y", false, Qt::AltModifier},
            {"types a capital", Qt::Key_E, "E", true, Qt::ShiftModifier},
            {"moves in the list", Qt::Key_Down, "", true},
        };
        for (const auto &row : rows) {
            KeyRepeatGuard guard;
            const auto passes = [&](QEvent::Type type, ulong time, bool isMarked) {
                QKeyEvent event(type, row.key, row.modifiers, QLatin1String(row.text), isMarked);
                event.setTimestamp(time);
                return !guard.eventFilter(this, &event);
            };
            for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
                // Whether or not the toolkit has noticed that the key is held.
                for (const bool isMarked : {true, false}) {
                    QVERIFY2(passes(QEvent::KeyRelease, 1660, isMarked), row.does);
                    QVERIFY2(passes(type, 1660, isMarked) == row.isRepeated, row.does);
                }
                QVERIFY2(passes(type, 1790, false), row.does); // pressed again by hand
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestShell)
#include "tst_shell.moc"
