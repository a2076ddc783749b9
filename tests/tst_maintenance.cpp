// SPDX-License-Identifier: MIT
#include "app/globalvars.h"
#include "maintenance/dialogpreference.h"
#include "maintenance/embeddedscript.h"
#include "tests/logcapture.h"
#include "tests/modal.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRadioButton>
#include <QTemporaryDir>

class TestMaintenance : public QObject
{
    Q_OBJECT

private slots:
    void preference_data();
    void preference();
    void scripts();
    void scriptWithoutResource();
};

void TestMaintenance::preference_data()
{
    QTest::addColumn<bool>("otp");
    QTest::newRow("") << false; // no file
    QTest::newRow("AutoStartApp=1\n") << false;
    QTest::newRow("[Preference]\nAutoStartApp=0\n") << false;
    QTest::newRow("[Preference]\nAutoStartApp=1\n") << true;
    QTest::newRow("[Preference]\nAutoStartApp=2\n") << true;
    QTest::newRow("[Preference]\nAutoStartApp=vxotp\n") << false;
    QTest::newRow("\xff[\n=]\r") << false;
}

void TestMaintenance::preference()
{
    QFETCH(bool, otp);
    const QByteArray ini = QTest::currentDataTag();
    const QTemporaryDir directory;
    GlobalVars::APP_PATH = directory.path() + QLatin1Char('/');
    QFile file(directory.filePath(QStringLiteral("ui.ini")));
    if (!ini.isEmpty() && file.open(QIODevice::WriteOnly))
        file.write(ini);
    file.close();

    const ModalAnswers answers({[otp](QWidget *dialog) {
        auto *first = dialog->findChild<QRadioButton *>(QStringLiteral("m_rdoVexastd"));
        auto *second = dialog->findChild<QRadioButton *>(QStringLiteral("m_rdoVxotp"));
        QCOMPARE(first->isChecked(), !otp);
        (otp ? first : second)->click();
        QCOMPARE(second->isChecked(), !otp);
        pressButton(dialog, QDialogButtonBox::Cancel);
    }});
    QCOMPARE(DialogPreference(nullptr).exec(), int(QDialog::Rejected));
    QCOMPARE(file.exists(), !ini.isEmpty());
}

void TestMaintenance::scripts()
{
    const auto sha1 = [](const char *name) {
        QFile script(QStringLiteral("://") + QLatin1String(name));
        script.open(QIODevice::ReadOnly);
        return QCryptographicHash::hash(script.readAll(), QCryptographicHash::Sha1).toHex();
    };
    QCOMPARE(sha1("calclock.sh"), QByteArray("bb5ff0810ac0bde7d464f8304816755f5fcf87a3"));
    QCOMPARE(sha1("autobootapp.sh"), QByteArray("1bf6ba42aff078ab6ae27aa7ddbe3523b5428628"));
}

void TestMaintenance::scriptWithoutResource()
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

QTEST_MAIN(TestMaintenance)
#include "tst_maintenance.moc"
