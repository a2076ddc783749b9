// SPDX-License-Identifier: MIT
// The main window on the box's own files and devices: runs inside the simulated box only.
#include "app/dialogmain.h"
#include "app/modalfocusguard.h"
#include "display/dialogconfirm.h"
#include "tests/support/logcapture.h"
#include "tests/support/modal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QScopeGuard>
#include <QScreen>
#include <QWindow>

namespace {

void write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(fileName));
    file.write(content);
}

QByteArray read(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void attach(const QByteArray &monitor)
{
    write(QStringLiteral("/run/simbox/vga"), "none");
    write(QStringLiteral("/run/simbox/hdmi"), monitor);
}

// Answers a message box with its only button, after a look at what it says.
ModalAnswers::Action confirmError(const QString &text,
                                  const QString &title = QStringLiteral("Error"))
{
    return [=](QWidget *widget) {
        const auto *box = qobject_cast<QMessageBox *>(widget);
        QVERIFY(box);
        QCOMPARE(box->text(), text);
        QCOMPARE(box->windowTitle(), title);
        QCOMPARE(box->buttons().size(), 1);
        const QPoint middle = QGuiApplication::primaryScreen()->geometry().center();
        if (!box->parentWidget()->isVisible())
            QVERIFY((box->geometry().center() - middle).manhattanLength() < 5);
        box->buttons().first()->click();
    };
}

ModalAnswers::Action answerPrompt(const QString &typed)
{
    return [=](QWidget *widget) {
        auto *prompt = qobject_cast<QInputDialog *>(widget);
        QVERIFY(prompt);
        QCOMPARE(prompt->windowTitle(), QStringLiteral("Please Input Instruction"));
        QCOMPARE(prompt->labelText(), QStringLiteral("The feature is protected by instruction!"));
        QCOMPARE(prompt->textEchoMode(), QLineEdit::Password);
        prompt->setTextValue(typed);
        prompt->accept();
    };
}

// The message at one of the window's fixed positions, an empty one if it was not written.
LogCapture::Message messageAt(int line)
{
    for (const LogCapture::Message &message : LogCapture::messages()) {
        if (message.file == QLatin1String("dialogmain") && message.line == line)
            return message;
    }
    return {};
}

QColor frameOf(QListWidget *list)
{
    return list->viewport()->grab().toImage().pixelColor(0, list->viewport()->height() / 2);
}

const QString TERMINAL = QStringLiteral("/usr/share/applications/matchbox-terminal.desktop");

} // namespace

class TestDialogMain : public QObject
{
    Q_OBJECT

    ModalFocusGuard m_focusGuard; // matchbox is at work in the box

private slots:
    void initTestCase();
    void init();
    void opens_data();
    void opens();
    void focusSetsNoRow();
    void rightClick_data();
    void rightClick();
    void questionLetsGoOfPointer();
    void nothingSelected();
    void instructions_data();
    void instructions();
};

void TestDialogMain::initTestCase()
{
    if (!QFile::exists(QStringLiteral("/run/simbox/hdmi")))
        QFAIL("not in the simulated box");
    QCoreApplication::instance()->installNativeEventFilter(&m_focusGuard);
}

void TestDialogMain::init()
{
    attach("1920x1080");
}

void TestDialogMain::opens_data()
{
    QTest::addColumn<QByteArray>("monitor");
    QTest::addColumn<bool>("bootEnvironment");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("items");
    QTest::addColumn<QString>("current");

    const auto row = [](const char *name, const char *monitor, bool environment, const char *error,
                        int items, const char *current) {
        QTest::newRow(name) << QByteArray(monitor) << environment << QString::fromLatin1(error)
                            << items << QString::fromLatin1(current);
    };
    row("wide", "1920x1080", true, "", 8, "1920 x 1080");
    row("answers late", "fail2:1920x1080", true, "", 8, "1920 x 1080");
    row("current mode does not fit", "1280x1024", true, "", 4, "");
    row("smaller than every mode", "640x480", true, "", 0, "");
    row("answers too late", "fail3:1920x1080", true, "Cannot read edid information.", 0, "");
    row("garbage", "garbage", true, "Cannot read edid information.", 0, "");
    row("no size of its own", "no-timing", true, "Parsing edid information failed.", 0, "");
    row("no boot environment", "1920x1080", false, "Getting current display information failed.", 8,
        "");
}

void TestDialogMain::opens()
{
    QFETCH(QByteArray, monitor);
    QFETCH(bool, bootEnvironment);
    QFETCH(QString, error);
    attach(monitor);
    const QString config = QStringLiteral("/etc/fw_env.config");
    const QByteArray configBefore = read(config);
    if (!bootEnvironment)
        QVERIFY(QFile::remove(config));
    const auto restore = qScopeGuard([&] { write(config, configBefore); });

    std::vector<ModalAnswers::Action> answers;
    if (!error.isEmpty())
        answers.push_back(confirmError(error));
    const ModalAnswers modal(answers);
    const DialogMain dialog;
    const auto *list = dialog.findChild<QListWidget *>();
    QTEST(list->count(), "items");
    QTEST(list->currentItem() ? list->currentItem()->text() : QString(), "current");
}

void TestDialogMain::focusSetsNoRow()
{
    DialogMain dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *list = dialog.findChild<QListWidget *>();
    auto *apply = dialog.findChild<QPushButton *>(QStringLiteral("m_btnApply"));
    QVERIFY(!apply->isEnabled());

    dialog.findChild<QCheckBox *>()->click();
    QCOMPARE(list->count(), 10);
    for (const auto reason :
         {Qt::TabFocusReason, Qt::ActiveWindowFocusReason, Qt::MouseFocusReason}) {
        apply->clearFocus();
        dialog.findChild<QComboBox *>()->setFocus();
        QCOMPARE(frameOf(list), list->palette().base().color());
        list->setFocus(reason);
        QVERIFY(list->hasFocus());
        QCOMPARE(frameOf(list), list->palette().highlight().color());
        QCOMPARE(list->currentRow(), -1);
        QVERIFY(!apply->isEnabled());
    }
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentRow(), 0);
    QVERIFY(apply->isEnabled());
}

void TestDialogMain::rightClick_data()
{
    QTest::addColumn<QString>("place");
    for (const char *place : {"m_listResolution", "m_cmbLanguage", "m_btnApply", "label"})
        QTest::newRow(place) << QString::fromLatin1(place);
}

void TestDialogMain::rightClick()
{
    QFETCH(QString, place);
    DialogMain dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const auto *list = dialog.findChild<QListWidget *>();
    const int row = list->currentRow();
    QVERIFY(row > 0);

    bool hasMenu = false;
    QTimer look;
    connect(&look, &QTimer::timeout, [&] {
        QWidget *const popup = QApplication::activePopupWidget();
        hasMenu = hasMenu || qobject_cast<QMenu *>(popup);
        if (popup)
            popup->close();
    });
    look.start(50);
    const auto *widget = dialog.findChild<QWidget *>(place);
    QTest::mouseClick(dialog.windowHandle(), Qt::RightButton, Qt::NoModifier,
                      widget->mapTo(&dialog, QPoint(20, 8)));
    QTRY_VERIFY(hasMenu);
    QCOMPARE(list->currentRow(), row);
}

void TestDialogMain::questionLetsGoOfPointer()
{
    QCursor::setPos(0, 0);
    const auto isUnderButton = [] {
        return qobject_cast<QPushButton *>(qApp->widgetAt(QCursor::pos()));
    };
    for (const char *name : {"m_btnKeepThisConfig", "m_btnRestorePreConfig"}) {
        QPoint middle;
        for (int round = 0; round < 2; ++round) {
            DialogConfirm question(nullptr);
            question.show();
            QVERIFY(QTest::qWaitForWindowActive(&question));
            QVERIFY(!isUnderButton());
            const auto *button = question.findChild<QPushButton *>(QLatin1String(name));
            // The second question would come up, and then is moved, under the pointer.
            middle = button->mapToGlobal(button->rect().center());
            if (round == 0)
                QCursor::setPos(middle);
            else
                question.move(question.pos() + QCursor::pos() - middle);
            QTest::qWait(200);
            QCOMPARE(isUnderButton() != nullptr, round == 0);
        }
    }
}

void TestDialogMain::nothingSelected()
{
    attach("640x480");
    write(QStringLiteral("/etc/profile"), "export LANG=zh_CN.UTF-8\n");
    DialogMain dialog;
    dialog.show();
    dialog.findChild<QComboBox *>()->setCurrentText(QStringLiteral("English"));
    const LogCapture log;
    const ModalAnswers modal({confirmError(QStringLiteral("Cannot parse resolution string."))});
    dialog.findChild<QPushButton *>(QStringLiteral("m_btnOK"))->click();

    QVERIFY(!dialog.isVisible());
    QVERIFY(read(QStringLiteral("/etc/profile")).contains("export LANG=en_US.UTF-8"));
    QCOMPARE(messageAt(586).text, QStringLiteral("\"English\""));
}

void TestDialogMain::instructions_data()
{
    QTest::addColumn<QString>("focus");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("noDisplay");
    QTest::newRow("hide, from the list") << QStringLiteral("m_listResolution")
                                         << QStringLiteral("LowerHarborGate") << QByteArray("true");
    QTest::newRow("show, from the language box")
        << QStringLiteral("m_cmbLanguage") << QStringLiteral("LiftHarborGate")
        << QByteArray("false");
    QTest::newRow("unknown, from a button")
        << QStringLiteral("m_btnOK") << QStringLiteral("%1 %2") << QByteArray("false");
}

void TestDialogMain::instructions()
{
    QFETCH(QString, focus);
    QFETCH(QString, typed);
    QFETCH(QByteArray, noDisplay);
    DialogMain dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *widget = dialog.findChild<QWidget *>(focus);
    widget->setFocus();

    const LogCapture log;
    const bool known = !typed.contains(QLatin1Char('%'));
    std::vector<ModalAnswers::Action> answers{answerPrompt(typed)};
    if (!known)
        answers.push_back(confirmError(QStringLiteral("Unkown instruction!")));
    const ModalAnswers modal(answers);
    QTest::keyClick(widget, Qt::Key_E, Qt::ControlModifier);

    QVERIFY(read(TERMINAL).contains("NoDisplay=" + noDisplay));
    if (!known) {
        QCOMPARE(messageAt(135).text, QStringLiteral("Unkown instruction: '%1 %2'!"));
        QCOMPARE(messageAt(135).function,
                 QStringLiteral("virtual void DialogMain::keyPressEvent(QKeyEvent*)"));
    }
}

QTEST_MAIN(TestDialogMain)
#include "tst_dialogmain.moc"
