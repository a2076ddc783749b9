// SPDX-License-Identifier: MIT
#include "maintenance/identity/nonemptylines.h"

#include <QTemporaryDir>
#include <QtTest>

class TestNonEmptyLines : public QObject
{
    Q_OBJECT

private slots:
    void files_data();
    void files();
};

void TestNonEmptyLines::files_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArrayList>("lines");
    QTest::newRow("empty") << QByteArray() << QByteArrayList();
    QTest::newRow("CRLF, empty lines between")
        << QByteArray("\r\na\r\n\r\n b \r\nc") << QByteArrayList{"a", " b ", "c"};
    QTest::newRow("blanks are a line") << QByteArray("  \na\n") << QByteArrayList{"  ", "a"};
    QTest::newRow("NUL bytes") << QByteArray("\0a\0\nb ", 6)
                               << QByteArrayList{QByteArray("\0a\0", 3), "b "};
    const QByteArray endless(5'000'000, 'x');
    QTest::newRow("megabytes of one line") << endless << QByteArrayList{endless};
}

void TestNonEmptyLines::files()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArrayList, lines);
    QVERIFY(nonEmptyLines(QDir::tempPath()).isEmpty());
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(content);
    file.close();
    QByteArrayList kept;
    for (const QString &line : nonEmptyLines(file.fileName()))
        kept << line.toLatin1();
    QCOMPARE(kept, lines);
}

QTEST_GUILESS_MAIN(TestNonEmptyLines)
#include "tst_nonemptylines.moc"
