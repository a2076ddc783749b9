// SPDX-License-Identifier: MIT
#include "display/dialogconfirm.h"

#include <QtTest>

class TestDialogConfirm : public QObject
{
    Q_OBJECT

private slots:
    void letsGoOfPointer();
};

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

QTEST_APPLESS_MAIN(TestDialogConfirm)
#include "tst_dialogconfirm.moc"
