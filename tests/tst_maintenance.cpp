// SPDX-License-Identifier: MIT
#include "app/globalvars.h"
#include "maintenance/dialogabout.h"
#include "maintenance/dialogclock.h"
#include "maintenance/dialogfantempparam.h"
#include "maintenance/dialogpreference.h"
#include "maintenance/embeddedscript.h"
#include "tests/logcapture.h"
#include "tests/modal.h"

#include <QCryptographicHash>
#include <QDate>
#include <QDateTimeEdit>
#include <QFile>
#include <QLabel>
#include <QRadioButton>
#include <QTemporaryDir>

class TestMaintenance : public QObject
{
    Q_OBJECT

private slots:
    void about();
    void clock();
    void fan();
    void preference_data();
    void preference();
    void scripts();
    void scriptWithoutResource();
};

void TestMaintenance::about()
{
    GlobalVars::ThisProductBarcode.barcode = QStringLiteral("527AB001");
    QFont large = QApplication::font();
    large.setPointSize(24);
    QApplication::setFont(large);
    const ModalAnswers answers({[](QWidget *dialog) {
        QStringList texts;
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            texts << label->text();
            QVERIFY2(label->isHidden() || label->width() >= label->sizeHint().width(),
                     qPrintable(label->objectName()));
        }
        QVERIFY(texts.contains(QStringLiteral("Barcode: 527AB001")));
        QVERIFY(texts.contains(
            QStringLiteral("Copyright (C) 2013-%1 Orvex").arg(QDate::currentDate().year())));
        pressButton(dialog, QDialogButtonBox::Ok);
    }});
    QCOMPARE(DialogAbout(nullptr).exec(), int(QDialog::Accepted));
}

void TestMaintenance::clock()
{
    const ModalAnswers answers({[](QWidget *dialog) {
        auto *edit = dialog->findChild<QDateTimeEdit *>();
        QCOMPARE(edit->text(), QStringLiteral("2015-01-02 7:08:09"));
        edit->setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClicks(edit, QStringLiteral("16"));
        pressButton(dialog, QDialogButtonBox::Ok);
    }});
    DialogClock dialog(nullptr);
    dialog.SetDateTime(QDateTime({2015, 1, 2}, {7, 8, 9}));
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QDateTime chosen;
    dialog.GetDateTime(chosen);
    QCOMPARE(chosen, QDateTime({2015, 1, 2}, {16, 8, 9}));
}

void TestMaintenance::fan()
{
    const auto accepted = [](int lower, int upper) {
        const ModalAnswers answers({[](QWidget *w) { pressButton(w, QDialogButtonBox::Ok); }});
        DialogFanTempParam dialog(nullptr);
        dialog.SetThresholds(lower, upper);
        dialog.exec();
        dialog.GetThresholds(lower, upper);
        return QPair<int, int>(lower, upper);
    };
    QCOMPARE(accepted(80, 70), qMakePair(80, 70));
    QCOMPARE(accepted(95, 101), qMakePair(90, 100));
    QCOMPARE(accepted(0, -1), qMakePair(1, 1));
}

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
