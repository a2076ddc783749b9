// SPDX-License-Identifier: MIT
#include "maintenance/embeddedscript.h"
#include "tests/support/logcapture.h"

#include <QCryptographicHash>
#include <QFile>
#include <QtTest>

class TestEmbeddedScript : public QObject
{
    Q_OBJECT

private slots:
    void scripts();
    void scriptWithoutResource();
};

void TestEmbeddedScript::scripts()
{
    const auto sha1 = [](const char *name) {
        QFile script(QStringLiteral("://") + QLatin1String(name));
        script.open(QIODevice::ReadOnly);
        return QCryptographicHash::hash(script.readAll(), QCryptographicHash::Sha1).toHex();
    };
    QCOMPARE(sha1("calclock.sh"), QByteArray("bb5ff0810ac0bde7d464f8304816755f5fcf87a3"));
    QCOMPARE(sha1("autobootapp.sh"), QByteArray("1bf6ba42aff078ab6ae27aa7ddbe3523b5428628"));
}

void TestEmbeddedScript::scriptWithoutResource()
{
    const LogCapture log;
    const QString name =
        QStringLiteral("moniconf-test-%1.sh").arg(QCoreApplication::applicationPid());
    const oxlog::Site caller{"here", 7, "void caller()"};
    QCOMPARE(runEmbeddedScript(name, {}, caller), ScriptResult::CopyFailed);
    QCOMPARE(LogCapture::texts(QStringLiteral("here")),
             QStringList(QStringLiteral("C Copying %1 failed.").arg(name)));
    QCOMPARE(LogCapture::messages().last().function, QStringLiteral("void caller()"));
}

QTEST_GUILESS_MAIN(TestEmbeddedScript)
#include "tst_embeddedscript.moc"
