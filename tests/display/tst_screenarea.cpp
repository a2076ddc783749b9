// SPDX-License-Identifier: MIT
#include "display/screenarea.h"

#include <QtTest>

class TestScreenArea : public QObject
{
    Q_OBJECT

private slots:
    void placesOnScreen();
};

void TestScreenArea::placesOnScreen()
{
    const auto place = [](int x, int y, int width = 286, int height = 323) {
        return placeOnScreen(QRect(x, y, width, height), QRect(0, 0, 800, 600));
    };
    QCOMPARE(place(514, 277), QPoint(514, 277));
    QCOMPARE(place(900, 800), QPoint(514, 277));
    QCOMPARE(place(-20, -5), QPoint(0, 0));
    QCOMPARE(place(30, 30, 1000, 700), QPoint(0, 0));
}

QTEST_APPLESS_MAIN(TestScreenArea)
#include "tst_screenarea.moc"
