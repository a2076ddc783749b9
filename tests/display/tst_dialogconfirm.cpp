// SPDX-License-Identifier: MIT
#include "display/dialogconfirm.h"

#include <QLabel>
#include <QtTest>

class TestDialogConfirm : public QObject
{
    Q_OBJECT

private slots:
    void countsDownAndRejects();
};

void TestDialogConfirm::countsDownAndRejects()
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

QTEST_MAIN(TestDialogConfirm)
#include "tst_dialogconfirm.moc"
