// SPDX-License-Identifier: MIT
#include "libOxUtils/utils/utils.h"
#include "tests/support/logcapture.h"

#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

#include <clocale>

#include <sys/wait.h>

namespace {

constexpr int AMPLE_MS = 60000;
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

} // namespace

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
    const int finishMs = (first + second).contains(text("sleep")) ? 50 : AMPLE_MS;
    const LogCapture log;
    QTEST(second.isNull()
              ? Utils::ExecShellCommand(first, output, error, AMPLE_MS, finishMs)
              : Utils::ExecPipeShellCommand(first, second, output, error, AMPLE_MS, finishMs),
          "result");
    QTEST(output, "output");
    QTEST(error, "error");
    QTEST(log.texts(LOG_FILE).join(QLatin1Char('\n')), "log");
    QVERIFY(!hasChildren());
    if (log.messages().isEmpty())
        return;
    const LogCapture::Message message = log.messages().constFirst();
    const QString function =
        text("static bool Utils::%1const QString&, QString&, QString&, int, int)");
    QCOMPARE(message.function,
             function.arg(text(second.isNull() ? "ExecShellCommand("
                                               : "ExecPipeShellCommand(const QString&, ")));
    QCOMPARE(message.category, text("default"));
    QVERIFY(message.line > 0);
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

// The timer is served after the first 30 seconds only. It lets the script end, and goes on serving
// events until the toolkit has taken notice of that.
void TestUtils::scriptEndsWhileEventsAreServed()
{
    const QString path = m_directory.filePath(text("wait.sh"));
    const QString go = m_directory.filePath(text("go"));
    write(path, "while [ ! -e \"$1\" ]; do sleep 0.1; done; echo late");
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, [go] {
        write(go, "");
        while (hasChildren())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    });
    timer.start(0);
    const LogCapture log;
    QVERIFY(Utils::ExecShellFile(path, {go}, QString()));
    QCOMPARE(log.texts(LOG_FILE).value(0), text("D readAllStandardOutput: late\n"));
}

void TestUtils::otherMembers()
{
    const QString program = m_directory.filePath(text("program"));
    write(program, "#!/bin/sh\n[ \"$*\" = -v ] && echo program 1.2.3 of today\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    QCOMPARE(Utils::GetProgramVersion(program), text("1.2.3"));
    QString mountPoint;
    QVERIFY(Utils::GetMountPointFromDevNode(mountPoint, text("proc")));
    QCOMPARE(mountPoint, text("/proc"));
    QVERIFY(!Utils::GetMountPointFromDevNode(mountPoint, text("/dev/not-mounted")));

    const QDir dir(m_directory.path());
    const QDate today = QDate::currentDate();
    for (const int days : {-7, -3, 3, 7})
        write(dir.filePath(text("log%1.txt").arg(today.addDays(days).toString(text("yyyyMMdd")))),
              "");
    write(dir.filePath(text("log20190230.txt")), "");
    Utils::ClearOldFiles(dir.path(), {text("*.txt")}, 5);
    QCOMPARE(dir.entryList({text("*.txt")}).size(), 3);

    QSemaphore semaphore(2);
    for (const int count : {-4, 3, 10}) {
        Utils::InitSemaphore(&semaphore, count);
        QCOMPARE(semaphore.available(), qMax(0, count));
    }
    QVERIFY(!Utils::DrainSemaphore(&semaphore, 3, 6));
    QCOMPARE(semaphore.available(), 4);
    QVERIFY(Utils::DrainSemaphore(&semaphore, 3, -1));

    QString stripped;
    Utils::StripComments(stripped, text("\na // b // c\n\n//d\ne\n"), text("//"));
    QCOMPARE(stripped, text("a \n\ne"));
    QCOMPARE(Utils::ErrnoString(text("a %2"), 2),
             text("a %2 [ERRNO: 2 No such file or directory]"));
    QCOMPARE(Utils::GetFileMd5(text("/nonexistent")), text("D41D8CD98F00B204E9800998ECF8427E"));
}

QTEST_GUILESS_MAIN(TestUtils)
#include "tst_utils.moc"
