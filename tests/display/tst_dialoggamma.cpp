// SPDX-License-Identifier: MIT
#include "display/dialoggamma.h"

#include "tests/support/modal.h"

#include <QLineEdit>
#include <QMessageBox>

#include <limits>

class TestDialogGamma : public QObject
{
    Q_OBJECT

private slots:
    void entries_data();
    void entries();
};

void TestDialogGamma::entries_data()
{
    QTest::addColumn<QString>("typed"); // over the proposal, which is selected
    QTest::addColumn<float>("gamma");   // 1.5 before
    QTest::addColumn<bool>("error");

    const auto row = [](const char *name, const char *typed, float gamma, bool error = false) {
        QTest::newRow(name) << QString::fromLatin1(typed) << gamma << error;
    };
    row("kept in full", "2.25", 2.25F);
    row("negative", "-1.5", -1.5F);
    row("infinite", "inf", std::numeric_limits<float>::infinity());
    row("a word closes as accepted with 0", "abc", 0.0F, true);
    row("nothing", "\b", 0.0F, true);
    row("decimal comma", "2,2", 0.0F, true);
    row("too large for a float", "1e39", 0.0F, true);
}

void TestDialogGamma::entries()
{
    QFETCH(QString, typed);
    QFETCH(bool, error);

    std::vector<ModalAnswers::Action> actions{[&](QWidget *dialog) {
        QTest::keyClicks(dialog->focusWidget(), typed);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    }};
    if (error) {
        actions.emplace_back([](QWidget *widget) {
            const auto *box = qobject_cast<QMessageBox *>(widget);
            QVERIFY(box);
            QCOMPARE(box->windowTitle(), QString());
            QCOMPARE(box->text(), QStringLiteral("Error"));
            QCOMPARE(box->icon(), QMessageBox::Critical);
            pressButton(widget, QDialogButtonBox::Ok);
        });
    }
    const ModalAnswers answers(actions);

    DialogGamma dialog(nullptr);
    dialog.SetGamma(1.5F);
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QTEST(dialog.GetGamma(), "gamma");

    dialog.SetGamma(2.25F);
    QCOMPARE(dialog.findChild<QLineEdit *>()->text(), QStringLiteral("2.3"));
}

QTEST_MAIN(TestDialogGamma)
#include "tst_dialoggamma.moc"
