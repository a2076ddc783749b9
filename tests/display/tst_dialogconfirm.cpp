// SPDX-License-Identifier: MIT
#include "display/dialogconfirm.h"

#include <QLabel>
#include <QtTest>

class TestDialogConfirm : public QObject
{
    Q_OBJECT

private slots:
    void countsDownAndRejects();
    void letsGoOfPointer();
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

void TestDialogConfirm::letsGoOfPointer()
{
    const auto distance = [](int y, const QPoint &pointer) {
        return distanceFromPointer(QRect(100, y, 400, 100), QRect(200, 60, 180, 30), pointer,
                                   QRect(0, 0, 800, 600));
    };
    QCOMPARE(distance(200, {299, 270}), 0);
    QCOMPARE(distance(200, {300, 290}), 0);
    QCOMPARE(distance(200, {300, 260}), 1);
    QCOMPARE(distance(200, {479, 289}), 30);
    QCOMPARE(distance(500, {300, 560}), -30);
}

QTEST_MAIN(TestDialogConfirm)
#include "tst_dialogconfirm.moc"
