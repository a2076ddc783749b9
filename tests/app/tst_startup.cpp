// SPDX-License-Identifier: MIT
#include "app/startup.h"

#include <QtTest>

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void versionQuery();
};

void TestStartup::versionQuery()
{
    const char *const arguments[] = {"moniconf", "--version", "-v"};
    QVERIFY(isVersionQuery(2, arguments));
    QVERIFY(isVersionQuery(2, arguments + 1)); // -v
    QVERIFY(!isVersionQuery(1, arguments));
    QVERIFY(!isVersionQuery(3, arguments));
}

QTEST_APPLESS_MAIN(TestStartup)
#include "tst_startup.moc"
