// SPDX-License-Identifier: MIT
#include "libOxUtils/utils/utils.h"
#include "tests/support/logcapture.h"
#include "tests/support/setclock.h"

#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <clocale>

#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int START_MS = 11000;
constexpr int FINISH_MS = 12000;
constexpr int SHORT_MS = 50;
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
        if (waits.size() > 1000)
            qFatal("a wait without end");
    }
    return int(syscall(SYS_ppoll, files, count, timeout ? &time : nullptr, mask, _NSIG / 8));
}

class TestUtils : public QObject
{
    Q_OBJECT

    QTemporaryDir m_directory;

private slots:
    void initTestCase() { std::setlocale(LC_MESSAGES, "C"); }
    void commands_data();
    void commands();
    void scripts();
    void scriptEndsWhileEventsAreServed();
    void otherMembers();
};

void TestUtils::commands_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second"); // null: a command alone
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("log");

    const auto row = [](const char *name, const char *first, const char *second, bool result,
                        const char *output, const char *error = "", const char *log = nullptr) {
        QTest::newRow(name) << first << second << result << output << error << log;
    };
    const char *unstarted = "C Starting process failed - waitForStarted.";
    const char *timedOut = "C Executing process timeout - waitForFinished.";
    const char *missing = "/nonexistent/program";
    row("writes to both", "sh -c \"echo out; echo err >&2\"", nullptr, true, "out\n", "err\n");
    row("exit code", "sh -c \"echo out; echo err >&2; exit 3\"", nullptr, false, "out\n", "err\n");
    row("ended by a signal", "sh -c \"echo out; kill -9 $$\"", nullptr, false, "out\n");
    row("no shell", "echo a | b > $HOME *", nullptr, true, "a | b > $HOME *\n");
    row("UTF-8 up to a NUL", "printf \\303\\244\\377x\\000y", nullptr, true, "\u00e4\ufffdx");
    row("missing", missing, nullptr, false, "old", "old", unstarted);
    row("empty", "", nullptr, false, "old", "old", unstarted);
    row("too long", "sleep 600", nullptr, false, "old", "old", timedOut);
    row("first too long", "sleep 600", "cat", false, "old", "old", timedOut);
    row("second too long", "echo x", "sleep 600", false, "old", "old", timedOut);
    row("quoted blank", "printf \"a b c\\nd e\\n\"", "cut -d \" \" -f 2", true, "b\ne\n");
    row("the second's errors only", "ls /nonexistent/", "sh -c \"echo 2 >&2\"", false, "", "2\n");
    row("first fails", "sh -c \"echo x; exit 1\"", "cat", false, "x\n");
    row("first missing", missing, "cat", false, "old", "old", unstarted);
    row("second missing", "echo x", missing, false, "old", "old", unstarted);
}

void TestUtils::commands()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QString output = text("old");
    QString error = text("old");
    const int finishMs = (first + second).contains(text("sleep")) ? SHORT_MS : FINISH_MS;
    waits.clear();
    const LogCapture log;
    QTEST(second.isNull()
              ? Utils::ExecShellCommand(first, output, error, START_MS, finishMs)
              : Utils::ExecPipeShellCommand(first, second, output, error, START_MS, finishMs),
          "result");
    QVERIFY(log.messages().isEmpty() ? waits.contains(11) && waits.contains(12)
                                     : !waits.contains(12));
    QTEST(output, "output");
    QTEST(error, "error");
    QTEST(log.texts(LOG_FILE).join(QLatin1Char('\n')), "log");
    QVERIFY(!hasChildren());
    const QString function =
        text("static bool Utils::%1const QString&, QString&, QString&, int, int)");
    const char *const name =
        second.isNull() ? "ExecShellCommand(" : "ExecPipeShellCommand(const QString&, ";
    if (!log.messages().isEmpty())
        QCOMPARE(log.messages().first().function, function.arg(text(name)));
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

void TestUtils::otherMembers()
{
    const QString program = m_directory.filePath(text("program"));
    write(program, "#!/bin/sh\n[ \"$*\" = -v ] && echo program 1.2.3 of today\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    waits.clear();
    QCOMPARE(Utils::GetProgramVersion(program), text("1.2.3"));
    QCOMPARE(Utils::GetProgramVersion(text("false")), QString());
    const LogCapture log;
    QString mountPoint;
    QVERIFY(Utils::GetMountPointFromDevNode(mountPoint, text("proc")));
    QCOMPARE(mountPoint, text("/proc"));
    QVERIFY(!Utils::GetMountPointFromDevNode(mountPoint, text("/dev/not-mounted")));
    QCOMPARE(mountPoint, text("/proc"));
    QCOMPARE(log.texts(LOG_FILE), QStringList(text("C \"\"")));
    std::sort(waits.begin(), waits.end());
    waits.erase(std::unique(waits.begin(), waits.end()), waits.end());
    QCOMPARE(waits, QList<int>({1, 3, 5}));

    const QDir dir(m_directory.path());
    const auto name = [](int days, const char *suffix) {
        return text("log%1%2").arg(QDate::currentDate().addDays(days).toString(text("yyyyMMdd")),
                                   text(suffix));
    };
    setClock(QDateTime(QDate(2019, 3, 1), QTime(0, 0)));
    for (const int days : {-6, -5, 5, 6})
        write(dir.filePath(name(days, ".txt")), "");
    write(dir.filePath(name(-6, ".log")), "");
    write(dir.filePath(text("log20190230.txt")), "");
    Utils::ClearOldFiles(dir.path(), {text("*.txt")}, 5);
    QCOMPARE(dir.entryList({text("log*")}, QDir::Files, QDir::Name),
             QStringList(
                 {name(-6, ".log"), name(-5, ".txt"), text("log20190230.txt"), name(5, ".txt")}));
    const QString removed = text("D Remove outdated old file ");
    QCOMPARE(log.texts(LOG_FILE).mid(1),
             QStringList({removed + name(-6, ".txt"), removed + name(6, ".txt")}));

    QSemaphore semaphore(2);
    for (const int count : {-4, 3, 10}) {
        Utils::InitSemaphore(&semaphore, count);
        QCOMPARE(semaphore.available(), qMax(0, count));
    }
    QCOMPARE(log.texts(LOG_FILE).last(), text("D available: 10"));
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
    write(dir.filePath(text("abc")), "abc");
    QCOMPARE(Utils::GetFileMd5(dir.filePath(text("abc"))),
             text("900150983CD24FB0D6963F7D28E17F72"));
}

QTEST_GUILESS_MAIN(TestUtils)
#include "tst_utils.moc"
