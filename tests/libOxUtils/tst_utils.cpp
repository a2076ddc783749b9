// SPDX-License-Identifier: MIT
#include "libOxUtils/utils/utils.h"
#include "tests/support/logcapture.h"
#include "tests/support/setclock.h"

#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

#include <tuple>

#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString LOG_FILE = QStringLiteral("libOxUtils/utils/utils");

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

// Whether this process has children, ended and not yet collected ones included.
bool hasChildren()
{
    siginfo_t info = {};
    return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

// The time-outs, in seconds and rounded up, with which the toolkit has waited for processes.
QList<int> waits;

} // namespace

// In place of the C library's, found before it by the toolkit. Half a minute is over in a moment.
extern "C" int ppoll(pollfd *files, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    timespec time = timeout ? *timeout : timespec{};
    if (timeout) {
        waits << int(time.tv_sec) + (time.tv_nsec > 0 ? 1 : 0);
        if (waits.last() >= 20)
            time = {0, 20000000};
    }
    return int(syscall(SYS_ppoll, files, count, timeout ? &time : nullptr, mask, _NSIG / 8));
}

class TestUtils : public QObject
{
    Q_OBJECT

    QTemporaryDir m_directory;

private slots:
    void commands();
    void scripts();
    void scriptEndsWhileEventsAreServed();
    void mountPointAndVersion();
    void oldFiles();
    void semaphoresAndTexts();
};

void TestUtils::commands()
{
    const char *const unstarted = "C Starting process failed - waitForStarted.";
    const char *const timedOut = "C Executing process timeout - waitForFinished.";
    const char *const missing = "/nonexistent/program";
    using Text = const char *;
    // Two commands, or one; whether they succeed; output, error and log.
    const std::tuple<Text, Text, bool, Text, Text, Text> rows[] = {
        {"sh -c \"echo out; echo err >&2\"", nullptr, true, "out\n", "err\n", ""},
        {"sh -c \"echo out; echo err >&2; exit 3\"", nullptr, false, "out\n", "err\n", ""},
        {"sh -c \"echo out; kill -9 $$\"", nullptr, false, "out\n", "", ""},
        {"echo a | b > $HOME *", nullptr, true, "a | b > $HOME *\n", "", ""},
        {"printf \\303\\244x\\000y", nullptr, true, "\u00e4x", "", ""},
        {missing, nullptr, false, "old", "old", unstarted},
        {"sleep 600", nullptr, false, "old", "old", timedOut},
        {"sleep 600", "cat", false, "old", "old", timedOut},
        {"echo x", "sleep 600", false, "old", "old", timedOut},
        {"printf \"a b c\\nd e\\n\"", "cut -d \" \" -f 2", true, "b\ne\n", "", ""},
        {"ls /nonexistent/", "sh -c \"echo 2 >&2\"", false, "", "2\n", ""},
        {"sh -c \"echo x; exit 1\"", "cat", false, "x\n", "", ""},
        {missing, "cat", false, "old", "old", unstarted},
        {"echo x", missing, false, "old", "old", unstarted},
    };
    for (const auto &[one, two, isWell, expectedOutput, expectedError, logged] : rows) {
        QString output = text("old");
        QString error = text("old");
        const QString first = text(one);
        const QString second = text(two);
        const int finishMs = (first + second).contains(text("sleep")) ? 50 : 12000;
        waits.clear();
        const LogCapture log;
        const bool result =
            two ? Utils::ExecPipeShellCommand(first, second, output, error, 11000, finishMs)
                : Utils::ExecShellCommand(first, output, error, 11000, finishMs);
        QVERIFY2(result == isWell, one);
        QCOMPARE(output, text(expectedOutput));
        QCOMPARE(error, text(expectedError));
        QCOMPARE(log.texts(LOG_FILE).join(QString()), text(logged));
        QVERIFY(!hasChildren());
        if (log.messages().isEmpty())
            QVERIFY(waits.contains(11) && waits.contains(12));
        else
            QVERIFY(log.messages().first().function.contains(
                text(two ? " Utils::ExecPipeShellCommand(" : " Utils::ExecShellCommand(")));
    }
}

void TestUtils::scripts()
{
    const QString path = m_directory.filePath(text("script with blanks.sh"));
    const auto run = [path](const char *script, const char *workingDirectory) {
        write(path, script);
        const LogCapture log;
        const QStringList arguments{text("a"), text("b  c")};
        const bool result = Utils::ExecShellFile(path, arguments, text(workingDirectory));
        return (result ? "true" : "false") + log.texts(LOG_FILE).join(QString()).toUtf8();
    };
    QCOMPARE(run("echo $# \"$2\"; pwd; printf '\\303\\244' >&2", "/"),
             QByteArray("trueD readAllStandardOutput: 2 b  c\n/\nD readAllStandardError: \u00e4"
                        "D exitCode: 0 exitStatus: 0"));
    const QByteArray silent = "falseD readAllStandardOutput: D readAllStandardError: ";
    QCOMPARE(run("exit 5", ""), silent + "D exitCode: 5 exitStatus: 0");
    QCOMPARE(run("kill -9 $$", ""), silent + "D exitCode: 9 exitStatus: 1");
    QCOMPARE(run("exit 0", "/nonexistent"), QByteArray("falseD Executing shell command failed."));
}

// Events are served after each half-minute, however many they are. The third time they let the
// script end, and go on until the toolkit has taken notice of that.
void TestUtils::scriptEndsWhileEventsAreServed()
{
    const QString path = m_directory.filePath(text("wait.sh"));
    const QString go = m_directory.filePath(text("go"));
    write(path, "while [ ! -e \"$1\" ]; do sleep 0.1; done; echo late");
    int served = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&served, go] {
        if (++served != 3)
            return;
        write(go, "");
        while (hasChildren())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    });
    timer.start(0);
    waits.clear();
    const LogCapture log;
    QVERIFY(Utils::ExecShellFile(path, {go}, QString()));
    QVERIFY(waits.count(30) >= 4); // for the start, and after it
    QCOMPARE(log.texts(LOG_FILE).value(0), text("D readAllStandardOutput: late\n"));
}

void TestUtils::mountPointAndVersion()
{
    const QString program = m_directory.filePath(text("program"));
    write(program, "[ \"$*\" = -v ] && echo program 1.2.3 of today");
    waits.clear();
    QCOMPARE(Utils::GetProgramVersion(text("sh ") + program), text("1.2.3"));
    QVERIFY(waits.first() == 3 && waits.contains(5));
    QCOMPARE(Utils::GetProgramVersion(text("false")), QString());
    waits.clear();
    const LogCapture log;
    QString mountPoint;
    QVERIFY(Utils::GetMountPointFromDevNode(mountPoint, text("proc")));
    QVERIFY(waits.first() == 1 && waits.contains(5));
    QVERIFY(!Utils::GetMountPointFromDevNode(mountPoint, text("/dev/not-mounted")));
    QCOMPARE(mountPoint, text("/proc"));
    QCOMPARE(log.texts(LOG_FILE), QStringList(text("C \"\"")));
}

void TestUtils::oldFiles()
{
    const QDir dir(m_directory.path());
    setClock(QDateTime(QDate(2019, 3, 1), QTime(0, 0)));
    for (const char *name :
         {"0223.log", "0223.txt", "0224.txt", "0230.txt", "0306.txt", "0307.txt"})
        write(dir.filePath(text("log2019") + text(name)), "");
    const LogCapture log;
    Utils::ClearOldFiles(dir.path(), {text("*.txt")}, 5);
    QCOMPARE(dir.entryList({text("log*")}).join(QLatin1Char(' ')),
             text("log20190223.log log20190224.txt log20190230.txt log20190306.txt"));
    QCOMPARE(log.texts(LOG_FILE).join(QLatin1Char(' ')),
             text("D Remove outdated old file log20190223.txt "
                  "D Remove outdated old file log20190307.txt"));
}

void TestUtils::semaphoresAndTexts()
{
    const LogCapture log;
    QSemaphore semaphore(2);
    for (const int count : {3, 3, 0, 10}) {
        Utils::InitSemaphore(&semaphore, count);
        QCOMPARE(semaphore.available(), count);
        QCOMPARE(log.texts(LOG_FILE).last(), text("D available: %1").arg(count));
    }
    const int taken[][2] = {{0, 1}, {5, 1}, {6, 2}, {10, 2}, {11, 3}}; // time-out and takes
    for (const auto &[timeoutMs, takes] : taken) {
        QVERIFY(!Utils::DrainSemaphore(&semaphore, 1, timeoutMs));
        QCOMPARE(semaphore.available(), 10 - takes);
        semaphore.release(takes);
    }
    QVERIFY(Utils::DrainSemaphore(&semaphore, 3, -1));
    QCOMPARE(semaphore.available(), 1);

    QString stripped;
    Utils::StripComments(stripped, text("\na // b // c\n\n//d\ne\n"), text("//"));
    QCOMPARE(stripped, text("a \n\ne"));
    QCOMPARE(Utils::ErrnoString(text("a %2"), 2),
             text("a %2 [ERRNO: 2 No such file or directory]"));
    QCOMPARE(Utils::GetFileMd5(text("/nonexistent")), text("D41D8CD98F00B204E9800998ECF8427E"));
    const QString file = m_directory.filePath(text("abc"));
    write(file, "abc");
    QCOMPARE(Utils::GetFileMd5(file), text("900150983CD24FB0D6963F7D28E17F72"));
}

QTEST_GUILESS_MAIN(TestUtils)
#include "tst_utils.moc"
