// SPDX-License-Identifier: MIT
#include "app/instancelock.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

using Result = InstanceLock::Result;
Q_DECLARE_METATYPE(Result)

class TestInstanceLock : public QObject
{
    Q_OBJECT

private slots:
    void underItsName_data();
    void underItsName();
    void endsWithItsHolder();
};

void TestInstanceLock::underItsName_data()
{
    QTest::addColumn<QString>("command"); // makes what stands under the name "lock"
    QTest::addColumn<Result>("result");

    const auto row = [](const char *name, const char *command, Result result) {
        QTest::newRow(name) << QString::fromLatin1(command) << result;
    };
    row("nothing", "true", Result::Taken);
    row("left over", "echo 1 >lock", Result::Taken);
    row("left over, large", "truncate -s 8G lock", Result::Taken);
    row("pipe", "mkfifo lock", Result::Unusable);
    row("link to a pipe", "mkfifo pipe; ln -s pipe lock", Result::Unusable);
    row("link without an end", "ln -s /dev/zero lock", Result::Unusable);
    row("link to a file", "ln -s other lock", Result::Unusable);
    row("link to nothing", "ln -s missing lock", Result::Unusable);
    row("second name of a file", "ln other lock", Result::Unusable);
    row("directory", "mkdir lock", Result::Unusable);
    if (getuid() == 0)
        row("another user's", "touch lock; chmod 666 lock; chown 65534 lock", Result::Unusable);
}

void TestInstanceLock::underItsName()
{
    QFETCH(QString, command);
    const QTemporaryDir directory;
    QProcess shell;
    shell.setWorkingDirectory(directory.path());
    shell.start(QStringLiteral("sh"),
                {QStringLiteral("-c"), QStringLiteral("echo 2 >other; ") + command});
    QVERIFY(shell.waitForFinished());

    InstanceLock lock(directory.filePath(QStringLiteral("lock")));
    QTEST(lock.take(), "result");
    QFile other(directory.filePath(QStringLiteral("other")));
    QVERIFY(other.open(QIODevice::ReadOnly));
    QCOMPARE(other.readAll(), QByteArray("2\n"));
    QVERIFY(!QFile::exists(directory.filePath(QStringLiteral("missing"))));
}

void TestInstanceLock::endsWithItsHolder()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("lock"));
    InstanceLock second(file);
    QProcess child;
    {
        InstanceLock first(file);
        QCOMPARE(first.take(), Result::Taken);
        QCOMPARE(second.take(), Result::Held);
        child.start(QStringLiteral("cat"), QStringList());
        QVERIFY(child.waitForStarted());
    }
    QCOMPARE(second.take(), Result::Taken);
    // Nor does a program that outlives its holder keep it.
    QCOMPARE(child.state(), QProcess::Running);
    child.closeWriteChannel();
    QVERIFY(child.waitForFinished());
}

QTEST_GUILESS_MAIN(TestInstanceLock)
#include "tst_instancelock.moc"
