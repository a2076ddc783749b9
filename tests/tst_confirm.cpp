// SPDX-License-Identifier: MIT
#include "display/dialogconfirm.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

class TestConfirm : public QObject
{
    Q_OBJECT

private slots:
    void countsDownAndRejects();
    void endings_data();
    void endings();
};

void TestConfirm::countsDownAndRejects()
{
    DialogConfirm dialog(nullptr);
    const QSignalSpy rejected(&dialog, &QDialog::rejected);
    const auto *sentence = dialog.findChild<QLabel *>(QStringLiteral("m_lblQuestion"));
    const QString text =
        QStringLiteral("The display will be reset to its previous configuration in %1 seconds");
    dialog.show();

    for (int left = 30; left > 0; --left) {
        QCOMPARE(sentence->text(), text.arg(left));
        QCOMPARE(rejected.count(), 0);
        QMetaObject::invokeMethod(&dialog, "countdown_timeout");
    }
    QCOMPARE(sentence->text(), text.arg(0));
    QCOMPARE(rejected.count(), 1);
}

void TestConfirm::endings_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("focus"); // empty: where the dialog puts it
    QTest::addColumn<int>("result");
    QTest::newRow("Enter without looking")
        << int(Qt::Key_Return) << QString() << int(QDialog::Rejected);
    QTest::newRow("Space without looking")
        << int(Qt::Key_Space) << QString() << int(QDialog::Rejected);
    QTest::newRow("Escape") << int(Qt::Key_Escape) << QString() << int(QDialog::Rejected);
    QTest::newRow("Enter on Keep")
        << int(Qt::Key_Return) << QStringLiteral("m_btnKeepThisConfig") << int(QDialog::Accepted);
}

void TestConfirm::endings()
{
    QFETCH(int, key);
    QFETCH(QString, focus);
    DialogConfirm dialog(nullptr);
    dialog.setResult(-1);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    if (!focus.isEmpty())
        dialog.findChild<QPushButton *>(focus)->setFocus();
    QTest::keyClick(dialog.focusWidget(), Qt::Key(key));
    QTEST(dialog.result(), "result");
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(TestConfirm)
#include "tst_confirm.moc"
