// SPDX-License-Identifier: MIT
#include "app/keyrepeatguard.h"

#include <QtTest>

class TestKeyRepeatGuard : public QObject
{
    Q_OBJECT

private slots:
    void repeats_data();
    void repeats();
};

void TestKeyRepeatGuard::repeats_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("passes");

    const auto row = [](const char *name, Qt::Key key, const char *text, bool passes,
                        Qt::KeyboardModifier modifiers = Qt::NoModifier) {
        QTest::newRow(name) << int(key) << int(modifiers) << QString::fromLatin1(text) << passes;
    };
    row("starts the upgrader", Qt::Key_F12, "", false);
    row("ends a dialog", Qt::Key_Escape, "\x1b", false);
    row("presses a button", Qt::Key_Return, "\r", false);
    row("opens the prompt", Qt::Key_E, "\x05", false, Qt::ControlModifier);
    row("presses a button by its letter", Qt::Key_Y, "y", false, Qt::AltModifier);
    row("types a digit", Qt::Key_5, "5", true);
    row("types a capital", Qt::Key_E, "E", true, Qt::ShiftModifier);
    row("moves in the list", Qt::Key_Down, "", true);
    row("deletes", Qt::Key_Backspace, "\b", true);
}

void TestKeyRepeatGuard::repeats()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    QFETCH(bool, passes);

    KeyRepeatGuard guard;
    const auto send = [&](QEvent::Type type, ulong time, bool isMarked) {
        QKeyEvent event(type, key, Qt::KeyboardModifiers(modifiers), text, isMarked);
        event.setTimestamp(time);
        return !guard.eventFilter(this, &event);
    };
    QVERIFY(send(QEvent::KeyPress, 1000, false));
    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
        // Whether or not the toolkit has noticed that the key is held.
        QVERIFY(send(QEvent::KeyRelease, 1660, true));
        QCOMPARE(send(type, 1660, true), passes);
        QVERIFY(send(QEvent::KeyRelease, 1700, false));
        QCOMPARE(send(type, 1700, false), passes);
        // Pressed again by hand.
        QVERIFY(send(QEvent::KeyRelease, 1740, false));
        QVERIFY(send(type, 1790, false));
    }
}

QTEST_APPLESS_MAIN(TestKeyRepeatGuard)
#include "tst_keyrepeatguard.moc"
