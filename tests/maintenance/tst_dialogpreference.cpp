// SPDX-License-Identifier: MIT
#include "app/globalvars.h"
#include "maintenance/dialogpreference.h"
#include "tests/support/modal.h"

#include <QFile>
#include <QRadioButton>
#include <QTemporaryDir>

class TestDialogPreference : public QObject
{
    Q_OBJECT

private slots:
    void preference_data();
    void preference();
};

void TestDialogPreference::preference_data()
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

void TestDialogPreference::preference()
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

QTEST_MAIN(TestDialogPreference)
#include "tst_dialogpreference.moc"
