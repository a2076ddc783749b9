// SPDX-License-Identifier: MIT
#include "libOxUtils/fileio/conffile.h"
#include "tests/support/logcapture.h"

#include <QTemporaryDir>
#include <QtTest>

#include <tuple>

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

    const QTemporaryDir m_directory;

private slots:
    void rewrites();
    void failures();
};

void TestConfFile::rewrites()
{
    // A key without a value is asked for.
    const std::tuple<const char *, QByteArray, const char *, const char *, QByteArray> rows[] = {
        {"empty", "", "", nullptr, ""},
        {"comments", "#in degrees\n#\n ## x # y\n", "", nullptr, "# in degrees\n#\n# # x # y"},
        {"a setting before a comment is lost", "a=1 # note\nb=2 #\n", "", nullptr, "# note\nb=2"},
        {"the key is after the comment", "# a=1", "a", "2", "# a=1\na=2"},
        {"a missing key is asked for", "a=1", "b", nullptr, "a=1\nb="},
        {"no setting", "[Desktop Entry]\n\n  words  \n=x\n", "", nullptr,
         "[Desktop Entry]\n\nwords\n=x"},
        {"of two the first gets the later value", "a=1\nb=0\na=2", "", nullptr, "a=2\nb=0\na=2"},
        {"of two the first is changed", "a=1\na=2", "a", "3", "a=3\na=2"},
        {"the first = counts", "Exec=run --opt=1\r\n\r\n\n", "Exec", "v=w", "Exec=v=w"},
        {"keys have case", "A = 1\na=2\n", "a", "3", "A=1\na=3"},
        {"UTF-8", "n=\xe4\xb8\xad", "", nullptr, "n=\xe4\xb8\xad"},
    };
    savedFile = m_directory.filePath(text("a %1.conf"));
    QFile file(savedFile);
    const auto put = [&file](const QByteArray &content) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
    };
    for (const auto &[name, before, key, value, after] : rows) {
        ConfFile conf(savedFile);
        put("old=1\n" + before);
        QVERIFY(conf.LoadConf());
        put(before);
        QVERIFY(conf.LoadConf()); // in place of what it held
        if (value)
            conf.SetValue(text(key), text(value));
        else if (*key)
            conf.GetValue(text(key));
        syncedBytes = -1;
        QVERIFY(conf.SaveConf());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY2(file.readAll() == after, name);
        QCOMPARE(syncedBytes, file.size());
        file.close();
    }
}

void TestConfFile::failures()
{
    const QString missing = m_directory.filePath(text("missing"));
    const QString directory = m_directory.path();
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
