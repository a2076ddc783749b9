// SPDX-License-Identifier: MIT
#include "libOxUtils/fileio/conffile.h"
#include "libOxUtils/utils/utils.h"
#include "tests/support/logcapture.h"
#include "tests/support/setclock.h"
#include "tests/support/syncedfile.h"

#include <QSemaphore>
#include <QTemporaryDir>

#include <csignal>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

const QString UTILS_LOG = "libOxUtils/utils/utils"_s;

// The time-outs, in seconds and rounded up, with which the toolkit has waited for processes.
QList<int> waits;

} // namespace

// Found before the C library's by the toolkit as well. Half a minute is over in a moment.
extern "C" int ppoll(pollfd *files, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    timespec time = timeout ? *timeout : timespec{};
    waits << int(time.tv_sec) + (time.tv_nsec > 0 ? 1 : 0);
    if (waits.last() >= 20)
        time = {0, 200000000};
    return int(syscall(SYS_ppoll, files, count, timeout ? &time : nullptr, mask, _NSIG / 8));
}

class TestOxUtils : public QObject
{
    Q_OBJECT

    const QTemporaryDir m_directory;

private slots:
    void commands()
    {
        const char *const unstarted =
            "fails, output 'old', error 'old', C Starting process failed - waitForStarted.";
        const char *const timedOut =
            "fails, output 'old', error 'old', C Executing process timeout - waitForFinished.";
        // A command, one that it is piped into or none, and what comes of it.
        const char *const rows[][3] = {
            {"sh -c \"echo out; echo err >&2\"", "", "succeeds, output 'out\n', error 'err\n'"},
            {"sh -c \"echo x; echo y >&2; exit 3\"", "", "fails, output 'x\n', error 'y\n'"},
            {"sh -c \"echo out; kill -9 $$\"", "", "fails, output 'out\n', error ''"},
            {"echo a | b > $HOME *", "", "succeeds, output 'a | b > $HOME *\n', error ''"},
            {"printf \\303\\244x\\000y", "", "succeeds, output '\u00e4x', error ''"},
            {"/nonexistent/program", "", unstarted},
            {"sleep 600", "", timedOut},
            {"echo x", "sleep 600", timedOut},
            {"printf \"a b\\nc d\\n\"", "cut -d \" \" -f 2", "succeeds, output 'b\nd\n', error ''"},
            {"ls /nonexistent/", "sh -c \"echo 2 >&2\"", "fails, output '', error '2\n'"},
            {"echo x", "sh -c \"cat; exit 1\"", "fails, output 'x\n', error ''"},
            {"echo x", "/nonexistent/program", unstarted},
        };
        for (const auto &[one, two, outcome] : rows) {
            const QString first = QString::fromUtf8(one), second = QString::fromUtf8(two);
            const int finishMs = (first + second).contains("sleep"_s) ? 50 : 12000;
            QString output = "old"_s, error = "old"_s;
            waits.clear();
            const LogCapture log;
            const bool result =
                *two ? Utils::ExecPipeShellCommand(first, second, output, error, 11000, finishMs)
                     : Utils::ExecShellCommand(first, output, error, 11000, finishMs);
            const QString what = "%1, output '%2', error '%3'"_s;
            const QStringList found{what.arg(result ? "succeeds"_s : "fails"_s, output, error)};
            QCOMPARE((found + log.texts(UTILS_LOG)).join(", "_s), QString::fromUtf8(outcome));
            QVERIFY(!log.messages().isEmpty() || (waits.contains(11) && waits.contains(12)));
        }
    }

    void scripts()
    {
        // A script, where it runs, and what is logged.
        const char *const rows[][3] = {
            {"echo $# \"$2\"; pwd; printf '\\303\\244' >&2", "/",
             "D readAllStandardOutput: 2 b  c\n/\n|D readAllStandardError: \u00e4|"
             "D exitCode: 0 exitStatus: 0"},
            {"kill -9 $$", "",
             "D readAllStandardOutput: |D readAllStandardError: |D exitCode: 9 exitStatus: 1"},
            {"exit 0", "/nonexistent", "D Executing shell command failed."},
        };
        const QString path = m_directory.filePath("script with blanks.sh"_s);
        for (const auto &[script, directory, logged] : rows) {
            box::write(path, script);
            const LogCapture log;
            QCOMPARE(Utils::ExecShellFile(path, {"a"_s, "b  c"_s}, QString::fromUtf8(directory)),
                     QByteArray(logged).endsWith("exitCode: 0 exitStatus: 0"));
            QCOMPARE(log.texts(UTILS_LOG).join(u'|'), QString::fromUtf8(logged));
        }
    }

    // Events are served after each half-minute, however many they are. The third time they let the
    // script end, and go on until it has.
    void scriptEndsWhileEventsAreServed()
    {
        const QString path = m_directory.filePath("wait.sh"_s), go = m_directory.filePath("go"_s);
        box::write(path, "while [ ! -e \"$1\" ]; do sleep 0.1; done; echo late");
        int served = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&served, go] {
            if (++served != 3)
                return;
            box::write(go, "");
            QTest::qWait(1000);
        });
        timer.start(0);
        waits.clear();
        const LogCapture log;
        QVERIFY(Utils::ExecShellFile(path, {go}, QString()));
        QVERIFY(waits.count(30) >= 4); // for the start, and after it
        QCOMPARE(log.texts(UTILS_LOG).value(0), "D readAllStandardOutput: late\n"_s);
    }

    void versionAndMountPoint()
    {
        const QString program = m_directory.filePath("program"_s);
        box::write(program, "[ \"$*\" = -v ] && echo program 1.2.3 of today");
        waits.clear();
        QCOMPARE(Utils::GetProgramVersion("sh "_s + program), "1.2.3"_s);
        QVERIFY(waits.first() == 3 && waits.contains(5));
        QCOMPARE(Utils::GetProgramVersion("false"_s), QString());
        const LogCapture log;
        QString mountPoint;
        QVERIFY(Utils::GetMountPointFromDevNode(mountPoint, "proc"_s));
        QVERIFY(!Utils::GetMountPointFromDevNode(mountPoint, "/dev/not-mounted"_s));
        QCOMPARE(mountPoint, "/proc"_s);
        QCOMPARE(log.texts(UTILS_LOG), QStringList("C \"\""_s));
    }

    void oldFiles()
    {
        const QDir dir(m_directory.path());
        setClock(QDateTime(QDate(2019, 3, 1), QTime(0, 0)));
        for (const char *name : {"log20190223.log", "log20190223.txt", "log20190224.txt",
                                 "log20190230.txt", "log20190306.txt", "log20190307.txt"})
            box::write(dir.filePath(QLatin1String(name)), "");
        const LogCapture log;
        Utils::ClearOldFiles(dir.path(), {"*.txt"_s}, 5);
        QCOMPARE(dir.entryList({"log*"_s}).join(u' '),
                 "log20190223.log log20190224.txt log20190230.txt log20190306.txt"_s);
        QCOMPARE(log.texts(UTILS_LOG).last(), "D Remove outdated old file log20190307.txt"_s);
    }

    void semaphores()
    {
        const LogCapture log;
        QSemaphore semaphore(2);
        for (const int count : {3, 3, 0, 10}) {
            Utils::InitSemaphore(&semaphore, count);
            QCOMPARE(log.texts(UTILS_LOG).last(), "D available: %1"_s.arg(count));
        }
        for (const int timeoutMs : {0, 5, 6}) // one take, one, and two
            QVERIFY(!Utils::DrainSemaphore(&semaphore, 1, timeoutMs));
        QCOMPARE(semaphore.available(), 6);
        QVERIFY(Utils::DrainSemaphore(&semaphore, 4, -1));
        QCOMPARE(semaphore.available(), 2);
    }

    void texts()
    {
        QString stripped;
        Utils::StripComments(stripped, "\na // b // c\n\n//d\ne\n"_s, "//"_s);
        QCOMPARE(stripped, "a \n\ne"_s);
        QCOMPARE(Utils::ErrnoString("a %2"_s, 2), "a %2 [ERRNO: 2 No such file or directory]"_s);
        QCOMPARE(Utils::GetFileMd5("/nonexistent"_s), "D41D8CD98F00B204E9800998ECF8427E"_s);
        const QString file = m_directory.filePath("abc"_s);
        box::write(file, "abc");
        QCOMPARE(Utils::GetFileMd5(file), "900150983CD24FB0D6963F7D28E17F72"_s);
    }

    void confFiles()
    {
        // A file, a key with the value that it is to have, and the file when it is saved.
        const QByteArray rows[][5] = {
            {"empty", "", "", "", ""},
            {"comments", "#in degrees\n#\n ## x # y\n", "", "", "# in degrees\n#\n# # x # y"},
            {"setting before a comment is lost", "a=1 # note\nb=2 #\n", "", "", "# note\nb=2"},
            {"key is after the comment", "# a=1", "a", "2", "# a=1\na=2"},
            {"missing key is asked for", "a=1", "b", "", "a=1\nb="},
            {"no setting", "[Entry]\n\n  words  \n=x\n", "", "", "[Entry]\n\nwords\n=x"},
            {"of two the first gets the later value", "a=1\nb=0\na=2", "", "", "a=2\nb=0\na=2"},
            {"of two the first is changed", "a=1\na=2", "a", "3", "a=3\na=2"},
            {"first = counts", "Exec=run --opt=1\r\n\r\n\n", "Exec", "v=w", "Exec=v=w"},
            {"keys have case", "A = 1\na=2\n", "a", "3", "A=1\na=3"},
            {"UTF-8", "n=\xe4\xb8\xad", "", "", "n=\xe4\xb8\xad"},
        };
        syncedFile = m_directory.filePath("a %1.conf"_s);
        ConfFile conf(syncedFile);
        for (const auto &[name, before, key, value, after] : rows) {
            box::write(syncedFile, before);
            QVERIFY(conf.LoadConf()); // in place of what it held
            if (!key.isEmpty() && conf.GetValue(QLatin1String(key)) != QLatin1String(value))
                conf.SetValue(QLatin1String(key), QLatin1String(value));
            QVERIFY(conf.SaveConf());
            QVERIFY2(syncedContent == after, name);
        }
    }

    // A file that is missing when it is saved is shown with the fan's.
    void confFilesThatCannotBeRead()
    {
        const QString directory = m_directory.path();
        const QString rows[][2] = {
            {directory + "/missing"_s, "File does not exist..."_s},
            {directory, "\"Cannot open file: %1!\""_s.arg(directory)},
            // Reading this process's memory from its start fails as a worn-out storage does.
            {"/proc/self/mem"_s, "\"Cannot read file: /proc/self/mem!\""_s},
        };
        for (const auto &[path, reason] : rows) {
            const LogCapture log;
            QVERIFY(!ConfFile(path).LoadConf());
            QCOMPARE(log.texts("libOxUtils/fileio/conffile"_s).join(u'|'),
                     "C %1|C Loading file failed..."_s.arg(reason));
        }
    }
};

QTEST_GUILESS_MAIN(TestOxUtils)
#include "tst_oxutils.moc"
