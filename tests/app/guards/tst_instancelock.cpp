// SPDX-License-Identifier: MIT
#include "app/guards/instancelock.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>
#include <utility>

using Result = InstanceLock::Result;

class TestInstanceLock : public QObject
{
    Q_OBJECT

private slots:
    void underItsName();
    void endsWithItsHolder();
};

void TestInstanceLock::underItsName()
{
    // What makes that which stands under the name "lock", and what comes of it.
    const std::pair<const char *, Result> rows[] = {
        {"true", Result::Taken},
        {"echo 1 >lock", Result::Taken},
        {"mkfifo lock", Result::Unusable},
        {"ln -s other lock", Result::Unusable},
        {"ln -s missing lock", Result::Unusable},
        {"ln other lock", Result::Unusable},
        {"mkdir lock", Result::Unusable},
        // Needs the superuser, and else leaves the file to its owner.
        {"touch lock; chown 65534 lock || true", getuid() == 0 ? Result::Unusable : Result::Taken},
    };
    for (const auto &[command, result] : rows) {
        const QTemporaryDir directory;
        const QString make = QStringLiteral("cd %1; echo 2 >other; %2")
                                 .arg(directory.path(), QString::fromLatin1(command));
        QCOMPARE(QProcess::execute(QStringLiteral("sh"), {QStringLiteral("-c"), make}), 0);
        InstanceLock lock(directory.filePath(QStringLiteral("lock")));
        QVERIFY2(lock.take() == result, command);
        QVERIFY(!QFile::exists(directory.filePath(QStringLiteral("missing"))));
    }
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
