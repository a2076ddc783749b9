// SPDX-License-Identifier: MIT
#include "libOxUtils/utils/commandline.h"
#include "libOxUtils/utils/utils.h"
#include "tests/logcapture.h"

#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

#include <climits>
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
    void detached();
    void mountPointAndVersion();
    void oldFiles();
    void semaphores();
    void textsAndDigests();
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
    const QByteArray large = QByteArray("y\n").repeated(150000);
    row("writes to both", "sh -c \"echo out; echo err >&2\"", nullptr, true, "out\n", "err\n");
    row("exit code", "sh -c \"echo out; echo err >&2; exit 3\"", nullptr, false, "out\n", "err\n");
    row("ended by a signal", "sh -c \"echo out; kill -9 $$\"", nullptr, false, "out\n");
    row("no shell", "echo a | b > $HOME *", nullptr, true, "a | b > $HOME *\n");
    row("quoted words", "printf %s. \"two words\"  \" \" a\"b c\"d", nullptr, true,
        "two words. .ab cd.");
    row("UTF-8 up to a NUL", "printf \\303\\244\\377x\\000y", nullptr, true, "\u00e4\ufffdx");
    row("more than a pipe holds", "sh -c \"yes | head -c 300000\"", nullptr, true,
        large.constData());
    row("missing", missing, nullptr, false, "old", "old", unstarted);
    row("empty", "", nullptr, false, "old", "old", unstarted);
    row("only quotes", " \"\" ", nullptr, false, "old", "old", unstarted);
    row("too long", "sleep 600", nullptr, false, "old", "old", timedOut);
    row("quoted blank", "printf \"a b c\\nd e\\n\"", "cut -d \" \" -f 2", true, "b\ne\n");
    row("the second's errors only", "ls /nonexistent/", "sh -c \"echo 2 >&2\"", false, "", "2\n");
    row("first fails", "sh -c \"echo x; exit 1\"", "cat", false, "x\n");
    row("first ended by a signal", "sh -c \"echo x; kill -9 $$\"", "cat", false, "x\n");
    row("second fails", "echo x", "grep y", false, "");
    row("first missing", missing, "cat", false, "old", "old", unstarted);
    row("second missing", "echo x", missing, false, "old", "old", unstarted);
    row("both empty", "", "", false, "old", "old", unstarted);
    row("first too long", "sleep 600", "cat", false, "old", "old", timedOut);
    row("second too long", "echo x", "sleep 600", false, "old", "old", timedOut);
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

void TestUtils::detached()
{
    const QString mark = m_directory.filePath(text("mark"));
    QVERIFY(startDetachedCommand(text("sh -c \"mkdir '%1'\"").arg(mark)));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(mark), AMPLE_MS);
    QVERIFY(!startDetachedCommand(text("/nonexistent/program x")));
    QVERIFY(!startDetachedCommand(QString()));
}

void TestUtils::mountPointAndVersion()
{
    QFile mounts(text("/proc/mounts"));
    QVERIFY(mounts.open(QIODevice::ReadOnly));
    const QByteArrayList fields = mounts.readLine().split(' ');
    QString mountPoint;
    QVERIFY(Utils::GetMountPointFromDevNode(mountPoint, QString::fromUtf8(fields.at(0))));
    QCOMPARE(mountPoint, QString::fromUtf8(fields.at(1)));
    const LogCapture log;
    QVERIFY(!Utils::GetMountPointFromDevNode(mountPoint, text("/dev/not-mounted")));
    QCOMPARE(mountPoint, QString::fromUtf8(fields.at(1)));
    QCOMPARE(log.texts(LOG_FILE), QStringList(text("C \"\"")));

    const QString program = m_directory.filePath(text("program"));
    write(program, "#!/bin/sh\n[ \"$*\" = -v ] && echo program 1.2.3 of today\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    QCOMPARE(Utils::GetProgramVersion(program), text("1.2.3"));
    QCOMPARE(Utils::GetProgramVersion(text("/nonexistent/program")), QString());
}

void TestUtils::oldFiles()
{
    const QTemporaryDir directory;
    const QDir dir(directory.path());
    const auto name = [](int days) {
        const QDate date = QDate::currentDate().addDays(days);
        return text("log%1x.txt").arg(date.toString(text("yyyyMMdd")));
    };
    const QStringList outdated{name(-7), name(7)};
    const QStringList kept{text("log20000101.dat"), text("log20190230.txt"), name(-3), name(3),
                           text("short.txt")};
    for (const QString &file : outdated + kept)
        write(dir.filePath(file), "x");
    QVERIFY(dir.mkdir(text("log20000101.txt")));

    const LogCapture log;
    Utils::ClearOldFiles(dir.path(), {text("*.txt")}, 5);
    const QString removed = text("D Remove outdated old file ");
    QCOMPARE(log.texts(LOG_FILE), QStringList({removed + outdated[0], removed + outdated[1]}));
    QCOMPARE(dir.entryList(QDir::Files, QDir::Name), kept);
    Utils::ClearOldFiles(dir.path(), {text("*.txt")}, -1);
    QCOMPARE(dir.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
    Utils::ClearOldFiles(dir.filePath(text("missing")), {}, -1);
}

void TestUtils::semaphores()
{
    QSemaphore semaphore(2);
    for (const int count : {2, -4, 3, 2, 10}) {
        const LogCapture log;
        Utils::InitSemaphore(&semaphore, count);
        QCOMPARE(semaphore.available(), qMax(0, count));
        QCOMPARE(log.texts(LOG_FILE).value(0), text("D available: %1").arg(qMax(0, count)));
    }
    const auto drain = [](int n, int timeoutMs, bool &result) {
        QSemaphore ten(10);
        result = Utils::DrainSemaphore(&ten, n, timeoutMs);
        return ten.available();
    };
    bool result = false;
    for (const int timeoutMs : {INT_MIN, -1, INT_MAX}) {
        QCOMPARE(drain(3, timeoutMs, result), 1);
        QVERIFY(result);
    }
    QCOMPARE(drain(-1, -1, result), 10);
    QVERIFY(result);
    for (const int timeoutMs : {0, 1, 5, 6, 10}) {
        QCOMPARE(drain(3, timeoutMs, result), timeoutMs <= 5 ? 7 : 4);
        QVERIFY(!result);
    }
}

void TestUtils::textsAndDigests()
{
    const auto stripped = [](const char *source, const char *marker) {
        QString result = text(source);
        Utils::StripComments(result, result, text(marker));
        return result;
    };
    QCOMPARE(stripped("\na // b // c\n\n//d\ne\n", "//"), text("a \n\ne"));
    QCOMPARE(stripped("a REM b\na rem b", "rem"), text("a REM b\na "));
    QCOMPARE(stripped("a\nb", ""), text("\n"));

    QCOMPARE(Utils::ErrnoString(text("read %2"), 2),
             text("read %2 [ERRNO: 2 No such file or directory]"));

    const QString path = m_directory.filePath(text("digest"));
    write(path, QByteArray(1000000, 'a'));
    const LogCapture log;
    QCOMPARE(Utils::GetFileMd5(path), text("7707D6AE4E027C70EEA2A935C2296F21")); // by md5sum
    for (const QString &unreadable : {text("/nonexistent"), m_directory.path()})
        QCOMPARE(Utils::GetFileMd5(unreadable), text("D41D8CD98F00B204E9800998ECF8427E"));
    QVERIFY(log.messages().isEmpty());
}

QTEST_GUILESS_MAIN(TestUtils)
#include "tst_utils.moc"
