// SPDX-License-Identifier: MIT
#include "libOxUtils/fileio/conffile.h"
#include "tests/support/logcapture.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString LOG_FILE = QStringLiteral("libOxUtils/fileio/conffile");

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QString savedFile;
qint64 syncedBytes; // of the file at the last sync(), -1 before

} // namespace

// In place of the C library's.
extern "C" void sync() noexcept
{
    syncedBytes = QFileInfo(savedFile).size();
}

class TestConfFile : public QObject
{
    Q_OBJECT

    void put(const QByteArray &content);

    QTemporaryDir m_directory;
    QString m_path;

private slots:
    void initTestCase();
    void rewrites_data();
    void rewrites();
    void failures();
};

void TestConfFile::initTestCase()
{
    QVERIFY(m_directory.isValid());
    m_path = savedFile = m_directory.filePath(text("a %1.conf"));
}

void TestConfFile::put(const QByteArray &content)
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void TestConfFile::rewrites_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("change"); // key=value is set, key alone is got
    QTest::addColumn<QByteArray>("after");

    const auto row = [](const char *name, const QByteArray &before, const char *change,
                        const QByteArray &after) {
        QTest::newRow(name) << before << change << after;
    };
    row("empty", "", nullptr, "");
    row("comments", "#in degrees\n#\n ## x # y\n", nullptr, "# in degrees\n#\n# # x # y");
    row("a setting before a comment is lost", "a=1 # note\nb=2 #\n", nullptr, "# note\nb=2");
    row("the key is after the comment", "# a=1", "a=2", "# a=1\na=2");
    row("a missing key is asked for", "a=1", "b", "a=1\nb=");
    row("no setting", "[Desktop Entry]\n\n  words  \n=x\n = \n", nullptr,
        "[Desktop Entry]\n\nwords\n=x\n=");
    row("of two the first gets the later value", "a=1\nb=0\na=2", nullptr, "a=2\nb=0\na=2");
    row("of two the first is changed", "a=1\na=2", "a=3", "a=3\na=2");
    row("the first = counts", "Exec=run --opt=1\r\n\r\n\n", "Exec=v=w", "Exec=v=w");
    row("keys have case", "A = 1\na=2\n", "a=3", "A=1\na=3");
    row("UTF-8 and bytes that are none", "n=\xe4\xb8\xad\n\xff\n", nullptr,
        "n=\xe4\xb8\xad\n\xef\xbf\xbd");
}

void TestConfFile::rewrites()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, change);
    const LogCapture log;
    ConfFile conf(m_path);
    put("old=1\n" + before);
    QVERIFY(conf.LoadConf());
    put(before);
    QVERIFY(conf.LoadConf()); // in place of what it held
    const int equals = change.indexOf(QLatin1Char('='));
    if (equals >= 0)
        conf.SetValue(change.left(equals), change.mid(equals + 1));
    else if (!change.isNull())
        conf.GetValue(change);
    syncedBytes = -1;
    QVERIFY(conf.SaveConf());
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTEST(file.readAll(), "after");
    QCOMPARE(syncedBytes, file.size());
}

void TestConfFile::failures()
{
    const QString missing = m_directory.filePath(text("missing"));
    const QString directory = m_directory.filePath(text("%1 %2"));
    QVERIFY(QDir().mkdir(directory));
    for (const QString &path : {missing, directory}) {
        ConfFile conf(path);
        const LogCapture log;
        QVERIFY(!conf.LoadConf());
        conf.SetValue(text("a"), text("1"));
        QVERIFY(!conf.SaveConf());
        const QString reason = path == missing
                                   ? text("C File does not exist...")
                                   : text("C \"Cannot open file: ") + directory + text("!\"");
        QCOMPARE(log.texts(LOG_FILE), QStringList({reason, text("C Loading file failed..."),
                                                   text("D Cannot find key: a"), reason}));
        QCOMPARE(log.messages().at(2).function, text("bool ConfFile::SaveConf()"));
    }
    QVERIFY(!QFile::exists(missing));

    // Reading this process's memory from its start fails as a worn-out storage does.
    const LogCapture log;
    QVERIFY(!ConfFile(text("/proc/self/mem")).LoadConf());
    QCOMPARE(log.texts(LOG_FILE), QStringList({text("C \"Cannot read file: /proc/self/mem!\""),
                                               text("C Loading file failed...")}));
}

QTEST_GUILESS_MAIN(TestConfFile)
#include "tst_conffile.moc"
