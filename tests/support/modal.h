// SPDX-License-Identifier: MIT
// Modal dialogs in tests: answers them while exec() holds the test, and fails the test instead of
// hanging when a dialog does not come, does not close, or was not expected.
#pragma once

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <utility>
#include <vector>

// Calls one action for each modal dialog that appears, in order. A dialog that opens while another
// one is up (a message box, say) takes the next action. Declare it before the call that opens the
// first dialog; at the end of its scope every action must have been used. Without any action it is
// a deadline: a dialog that stays is closed, and named in the failure.
class ModalAnswers : public QObject
{
public:
    using Action = std::function<void(QWidget *)>;

    explicit ModalAnswers(std::vector<Action> actions)
        : m_actions(std::move(actions))
    {
        startTimer(5);
    }

    ~ModalAnswers() override
    {
        QVERIFY2(m_used == m_actions.size() || QTest::currentTestFailed(),
                 "a modal dialog did not appear");
    }

private:
    void timerEvent(QTimerEvent * /*event*/) override
    {
        QWidget *const dialog = QApplication::activeModalWidget();
        if (std::exchange(m_current, dialog) != dialog)
            m_sinceLast.start();
        if (!dialog)
            return;
        if (m_used < m_actions.size() && !dialog->property("seen").toBool()) {
            dialog->setProperty("seen", true);
            // Queued: a timer does not fire again while its own slot runs, but the action may open
            // another dialog.
            QTimer::singleShot(0, dialog, [this, dialog, action = m_actions[m_used++]] {
                action(dialog);
                m_sinceLast.start();
                // The action has ended early, and nobody else will answer.
                if (QTest::currentTestFailed())
                    dialog->close();
            });
        } else if (m_sinceLast.hasExpired(10000)) {
            dialog->close();
            const QString what = dialog->windowTitle() + u' ' + dialog->property("text").toString();
            QFAIL(qPrintable(QStringLiteral("nobody answers, or closes, ") + what));
        }
    }

    const std::vector<Action> m_actions;
    std::size_t m_used = 0;
    QWidget *m_current = nullptr;
    QElapsedTimer m_sinceLast;
};
