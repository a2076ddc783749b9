// SPDX-License-Identifier: MIT
#include "app/guards/keyrepeatguard.h"

#include <QtTest>

class TestKeyRepeatGuard : public QObject
{
    Q_OBJECT

private slots:
    void repeats();
};

void TestKeyRepeatGuard::repeats()
{
    const struct
    {
        const char *name;
        Qt::Key key;
        const char *text;
        bool passes;
        Qt::KeyboardModifier modifiers = Qt::NoModifier;
    } rows[] = {
        {"starts the upgrader", Qt::Key_F12, "", false},
        {"ends a dialog", Qt::Key_Escape, "\x1b", false},
        {"presses a button", Qt::Key_Return, "\r", false},
        {"opens the prompt", Qt::Key_E, "\x05", false, Qt::ControlModifier},
        {"presses a button by its letter", Qt::Key_Y, "y", false, Qt::AltModifier},
        {"types a capital", Qt::Key_E, "E", true, Qt::ShiftModifier},
        {"moves in the list", Qt::Key_Down, "", true},
    };
    for (const auto &row : rows) {
        KeyRepeatGuard guard;
        const auto passes = [&](QEvent::Type type, ulong time, bool isMarked) {
            QKeyEvent event(type, row.key, row.modifiers, QLatin1String(row.text), isMarked);
            event.setTimestamp(time);
            return !guard.eventFilter(this, &event);
        };
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
            // Whether or not the toolkit has noticed that the key is held.
            for (const bool isMarked : {true, false}) {
                QVERIFY2(passes(QEvent::KeyRelease, 1660, isMarked), row.name);
                QVERIFY2(passes(type, 1660, isMarked) == row.passes, row.name);
            }
            // Pressed again by hand.
            QVERIFY2(passes(type, 1790, false), row.name);
        }
    }
}

QTEST_APPLESS_MAIN(TestKeyRepeatGuard)
#include "tst_keyrepeatguard.moc"
