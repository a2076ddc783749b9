// SPDX-License-Identifier: MIT
// The main window on the box's own files, devices and recorded commands: runs inside the simulated
// box only.
#include "app/dialogmain.h"
#include "app/guards/inputguard.h"
#include "display/dialogconfirm.h"
#include "display/screenconfiguration.h"
#include "libOxUtils/utils/qtversions.h"
#include "tests/support/box.h"
#include "tests/support/edidblock.h"
#include "tests/support/logcapture.h"
#include "tests/support/modal.h"

#include <csignal>
#include <memory>

using box::read;
using box::write;
using Action = ModalAnswers::Action;

namespace {

const QString PROFILE = "/etc/profile"_s;
const QString TERMINAL = "/usr/share/applications/matchbox-terminal.desktop"_s;

void store(const QString &mode)
{
    QProcess::execute("/usr/bin/fw_setenv"_s, {"display"_s, mode});
}

// Moves a file away until the value goes.
auto without(const QString &fileName)
{
    QFile::rename(fileName, fileName + ".aside"_s);
    return qScopeGuard([=] {
        QFile::remove(fileName);
        QFile::rename(fileName + ".aside"_s, fileName);
    });
}

// Puts a script, which records its call first, in a command's place until the value goes.
auto replaced(const QByteArray &command, const QByteArray &script)
{
    const QString file = "/usr/local/bin/"_s + QLatin1String(command);
    auto restored = without(file);
    write(file, "#!/bin/sh\necho " + command + " \"$@\" >>/run/simbox/calls\n" + script);
    QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner);
    return restored;
}

// Switches the screen; gives what is shown then: its size, and the monitor's place, turn and rate.
QString xrandr(const QString &arguments = QString())
{
    QProcess command;
    command.start("/usr/bin/xrandr"_s, arguments.split(u' ', qtversions::SKIP_EMPTY_PARTS));
    command.waitForFinished();
    if (!arguments.isEmpty())
        return xrandr();
    const QStringList lines = QString::fromUtf8(command.readAllStandardOutput()).split(u'\n');
    return lines.filter(QRegularExpression("current|connected|\\*"_s)).join(u'\n');
}

// The commands since the last look, whole and in their order.
QString newCalls()
{
    const QString all = box::calls();
    box::forgetCalls();
    return all.trimmed();
}

// What the monitors' lines have seen: "vga on, vga failed 3 times, hdmi answered, vga off".
QString transfers()
{
    QString seen;
    // The box may record the switch a moment later.
    static_cast<void>(QTest::qWaitFor([&seen] {
        const QStringList all = QString::fromUtf8(read("/run/simbox/calls"_s)).split(u'\n');
        seen = all.filter(QRegularExpression("^i2c|switched"_s)).join(", "_s).remove("i2c "_s);
        seen.replace("switched 1"_s, "on"_s).replace("switched 0"_s, "off"_s);
        return seen.count(" on"_s) == seen.count(" off"_s);
    }));
    return seen.replace(QRegularExpression("(\\w+ failed), \\1, \\1"_s), "\\1 3 times"_s);
}

Action confirmError(const QString &text)
{
    return [=](QWidget *widget) {
        const auto *box = qobject_cast<QMessageBox *>(widget);
        QVERIFY(box && qobject_cast<DialogMain *>(box->parentWidget()));
        QCOMPARE(box->windowTitle(), "Error"_s);
        // Of a text that the screen has no room for, its beginning and its end.
        const QRegularExpression blanks("\\s+"_s);
        const QString whole = QString(text).remove(blanks);
        const QStringList shown = box->text().remove(blanks).split(u'\u2026');
        QVERIFY(whole.startsWith(shown.first()) && whole.endsWith(shown.last()));
        QVERIFY(shown.size() == 1 ? shown.first() == whole
                                  : qMin(shown.first().size(), shown.last().size()) > 20);
        QVERIFY(box->text().startsWith(text.left(2))); // its first line end, or more
        QVERIFY(box->icon() == QMessageBox::Critical && box->textFormat() == Qt::PlainText);
        const auto *label = box->findChild<QLabel *>("qt_msgbox_label"_s);
        QTRY_VERIFY(label->width() >= label->minimumSizeHint().width());
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QVERIFY(box->frameGeometry().height() < screen.height());
        // The window manager may move it first, for its frame.
        QVERIFY(box->parentWidget()->isVisible() || QTest::qWaitFor([&] {
                    return (box->geometry().center() - screen.center()).manhattanLength() < 5;
                }));
        box->button(QMessageBox::Ok)->click();
    };
}

enum Answer { Keep, Restore, Escape, Enter, Wait, Terminate };

// Answers the question that follows a switch, after a look at what has been run by then.
Action answerQuestion(Answer answer, const QString &before)
{
    return [=](QWidget *widget) {
        QCOMPARE(newCalls(), before);
        QVERIFY(widget->parentWidget()->isVisible());
        const QFont font = widget->findChild<QLabel *>("label"_s)->font();
        QVERIFY(font.bold() && font.pointSize() == 12);
        const auto *picture = widget->findChild<QLabel *>("label_2"_s);
        QVERIFY(!picture->property("pixmap").value<QPixmap>().isNull());
        const auto *sentence = widget->findChild<QLabel *>("m_lblQuestion"_s);
        if (answer == Terminate)
            QVERIFY(std::raise(SIGTERM) == 0 &&
                    QTest::qWaitFor([=] { return widget->isHidden(); }));
        else if (answer == Escape || answer == Enter)
            QTest::keyClick(widget, answer == Enter ? Qt::Key_Return : Qt::Key_Escape);
        else if (answer == Keep)
            widget->findChild<QPushButton *>("m_btnKeepThisConfig"_s)->click();
        else if (answer == Restore)
            widget->findChild<QPushButton *>("m_btnRestorePreConfig"_s)->click();
        for (int left = DialogConfirm::COUNTDOWN_SECONDS; widget->isVisible(); --left) {
            QVERIFY(left > 0 && sentence->text().endsWith(" in %1 seconds"_s.arg(left)));
            QMetaObject::invokeMethod(widget, "countdown_timeout");
        }
    };
}

QColor frameOf(const QListWidget *list)
{
    return list->viewport()->grab().toImage().pixelColor(0, list->viewport()->height() / 2);
}

const QString NO_EDID = "Cannot read edid information."_s;
const QString NO_TIMING = "Parsing edid information failed."_s;
const QString NO_MODE = "Getting current display information failed."_s;

} // namespace

class TestDialogMain : public QObject
{
    Q_OBJECT

    InputGuard m_inputGuard; // matchbox is at work in the box
    std::unique_ptr<ModalAnswers> m_deadline;
    std::unique_ptr<DialogMain> m_dialog;
    QString m_transfers;

    // The window, once it has the keyboard. Keeps what the monitors' lines had seen when it was
    // ready or said what has failed.
    void open(const QString &error = QString())
    {
        m_dialog.reset();
        box::forgetCalls();
        const Action confirm = [&](QWidget *widget) {
            m_transfers = transfers();
            confirmError(error)(widget);
        };
        const ModalAnswers modal(std::vector<Action>(error.isEmpty() ? 0 : 1, confirm));
        m_dialog = std::make_unique<DialogMain>();
        if (error.isEmpty())
            m_transfers = transfers();
        box::forgetCalls();
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    template<typename Widget>
    Widget *widget(const char *name = nullptr) const
    {
        return m_dialog->findChild<Widget *>(QLatin1String(name));
    }

    QListWidget *list() const { return widget<QListWidget>(); }

    QString items() const
    {
        QStringList texts;
        for (const QListWidgetItem *item : list()->findItems(QString(), Qt::MatchContains))
            texts << item->text();
        return texts.join(", "_s);
    }

    QString selected() const { return list()->currentIndex().data().toString(); }

    // Selects an item; gives whether Apply is on then.
    bool offers(const QString &item) const
    {
        list()->setCurrentItem(list()->findItems(item, Qt::MatchExactly).value(0));
        return selected() == item && canApply();
    }

    bool canApply() const { return widget<QPushButton>("m_btnApply")->isEnabled(); }

    void press(const char *button) const { widget<QPushButton>(button)->click(); }

    // Applies the selected mode; called is what has to be run after the question's answer.
    void apply(const std::vector<Action> &answers, const QString &called,
               const char *button = "m_btnApply") const
    {
        const ModalAnswers modal(answers);
        press(button);
        QCOMPARE(newCalls(), called);
    }

private slots:
    void initTestCase()
    {
        if (!QFile::exists("/run/simbox/hdmi"_s))
            QFAIL("not in the simulated box");
        QCoreApplication::instance()->installEventFilter(&m_inputGuard);
        qputenv("TZ", "BOX-5"); // hours away from universal time
    }

    void init()
    {
        m_deadline = std::make_unique<ModalAnswers>(std::vector<Action>());
        write("/run/simbox/vga"_s, "none");
        write("/run/simbox/hdmi"_s, "1920x1080");
        store("1360x768M@75"_s);
        box::forgetCalls();
    }

    void cleanup() { m_dialog.reset(); }

    void clock()
    {
        const QString format = "yyyy-MM-dd HH:mm:ss"_s;
        const QString before = QDateTime::currentDateTime().toString(format);
        open();
        auto *label = widget<QLabel>("m_lblDateTime");
        const QString first = label->text();
        QVERIFY(before <= first && first <= QDateTime::currentDateTime().toString(format));
        QCOMPARE(m_dialog->findChild<QTimer *>()->interval(), 1000);
        QTRY_VERIFY(label->text() > first);

        QCursor::setPos(label->mapToGlobal(label->rect().center()));
        QTRY_COMPARE(label->styleSheet(), "color: blue"_s);
        QCursor::setPos(m_dialog->mapToGlobal(QPoint(3, 3)));
        QTRY_COMPARE(label->styleSheet(), "color: black;"_s);
        // Nothing opens for a single click, nor for another button.
        QTest::mouseClick(label, Qt::LeftButton);
        QTest::mouseDClick(label, Qt::MiddleButton);
        const ModalAnswers modal({[](QWidget *clock) { clock->close(); }});
        QTest::keyClick(label, Qt::Key_Space);
    }

    // The monitors and a file that is missing; what their lines see, and how many modes are listed.
    void monitors()
    {
        const char *const none = "/none";
        const std::tuple<const char *, const char *, const char *, const char *, int> rows[] = {
            {"/tmp/sum.edid", "640x480", none, "vga on, vga answered, vga off", 8},
            {"fail2:1280x1024", "1920x1080", none,
             "vga on, vga failed, vga failed, vga answered, vga off", 4},
            {"fail3:1280x1024", "1920x1080", none,
             "vga on, vga failed 3 times, hdmi answered, vga off", 8},
            {"garbage", "1920x1080", none, "vga on, vga answered, hdmi answered, vga off", 8},
            {"1280x1024", "1920x1080", "/sys/class/leds/vga-i2c-enb/brightness",
             "vga failed 3 times, hdmi answered", 8},
            {"1280x1024", "1920x1080", "/dev/i2c-2", "vga on, hdmi answered, vga off", 8},
            {"none", "none", none, "vga on, vga failed 3 times, hdmi failed 3 times, vga off", 0},
        };
        write("/tmp/sum.edid"_s, EdidBlock().timing(0, 14850, 1920, 280, 1080, 45).set(127, "55"));
        for (const auto &[vga, hdmi, missing, seen, modes] : rows) {
            qInfo() << vga << hdmi << missing;
            write("/run/simbox/vga"_s, vga);
            write("/run/simbox/hdmi"_s, hdmi);
            const auto aside =
                without(qEnvironmentVariable("UMOCKDEV_DIR") + QLatin1String(missing));
            const LogCapture log;
            open(modes > 0 ? QString() : NO_EDID);
            QCOMPARE(list()->count(), modes);
            QCOMPARE(m_transfers, QLatin1String(seen));
            QCOMPARE(log.texts("basedevice"_s).size(), missing == none ? 0 : 1);
        }
    }

    void storedModes()
    {
        const std::tuple<const char *, QString, QString, QString> rows[] = {
            // how it is read, selected, logged of the stored one and of the selected one, told
            {"echo 800x600M@75", "800 x 600"_s, "D 800x600@75, D 800x600@60"_s, ""_s},
            {"echo 1280x960", ""_s, "D 1280x960@60"_s, ""_s},
            {"echo 800x600@", ""_s, "D 800x600@0"_s, NO_MODE},
            {"echo no words >&2; exit 1", ""_s, "C \"no words\n\""_s, NO_MODE},
        };
        for (const auto &[command, current, logged, told] : rows) {
            const auto printenv = replaced("fw_printenv", command);
            const LogCapture log;
            open(told);
            QCOMPARE(list()->count(), 8);
            QCOMPARE(selected(), current);
            QCOMPARE(log.texts("dialogmain"_s).join(", "_s), logged);
        }
    }

    void lists()
    {
        open();
        QCOMPARE(widget<QComboBox>()->currentText(), "Chinese"_s);
        auto *all = widget<QCheckBox>();
        QVERIFY(!canApply());
        all->click();
        QCOMPARE(items(), "800 x 600, 1024 x 768, 1280 x 720, 1280 x 800, 1280 x 960, 1280 x 1024, "
                          "1360 x 768, 1440 x 900, 1680 x 1050, 1920 x 1080"_s);
        for (auto reason :
             {Qt::TabFocusReason, Qt::ActiveWindowFocusReason, Qt::MouseFocusReason}) {
            widget<QComboBox>()->setFocus();
            QCOMPARE(frameOf(list()), list()->palette().base().color());
            list()->setFocus(reason);
            QVERIFY(list()->hasFocus());
            QCOMPARE(frameOf(list()), list()->palette().highlight().color());
            QCOMPARE(selected(), QString());
            QVERIFY(!canApply());
        }
        QTest::keyClick(list(), Qt::Key_Down);
        QCOMPARE(selected(), "800 x 600"_s);
        QVERIFY(canApply());
        QCOMPARE(box::calls() + transfers(), QString());

        for (const QString &error : {NO_EDID, NO_TIMING}) {
            write("/run/simbox/hdmi"_s, error == NO_EDID ? "none" : "no-timing");
            const ModalAnswers modal({confirmError(error)});
            all->click();
            QCOMPARE(list()->count(), 10);
            QCOMPARE(selected(), "800 x 600"_s);
            all->setChecked(true);
        }
        store("1280x1024@60"_s);
        write("/run/simbox/hdmi"_s, "1280x1024");
        all->click();
        QCOMPARE(items(), "800 x 600, 1024 x 768, 1280 x 960, 1280 x 1024"_s);
        QCOMPARE(selected(), "1280 x 1024"_s);
        QVERIFY(!canApply());
        QVERIFY(offers("1280 x 960"_s));
        all->click();
        QVERIFY(canApply()); // as before
    }

    void rightClick()
    {
        open();
        auto *menu = widget<QMenu>();
        const QSignalSpy shown(menu, &QMenu::aboutToShow);
        connect(menu, &QMenu::aboutToShow, menu, &QMenu::close, Qt::QueuedConnection);
        const char *const places[] = {"m_listResolution", "m_cmbLanguage", "m_btnApply", "label"};
        for (int i = 0; i < 4; ++i) {
            QTest::mouseClick(m_dialog->windowHandle(), Qt::RightButton, Qt::NoModifier,
                              widget<QWidget>(places[i])->mapTo(m_dialog.get(), QPoint(20, 8)));
            QTRY_VERIFY2(shown.count() == i + 1, places[i]);
            QCOMPARE(selected(), "1360 x 768"_s);
        }
    }

    void questionLetsGoOfPointer()
    {
        const auto isUnderButton = [] {
            return qobject_cast<QPushButton *>(qApp->widgetAt(QCursor::pos())) != nullptr;
        };
        for (const char *name : {"m_btnKeepThisConfig", "m_btnRestorePreConfig"}) {
            DialogConfirm question(nullptr); // the second comes up under the pointer
            question.show();
            QVERIFY(QTest::qWaitForWindowActive(&question));
            QVERIFY(!isUnderButton());
            const auto *button = question.findChild<QPushButton *>(QLatin1String(name));
            QCursor::setPos(button->mapToGlobal(button->rect().center()));
            QTest::qWait(200);
            QVERIFY(isUnderButton());
            question.move(question.pos() + QPoint(1, 0));
            QTRY_VERIFY(!isUnderButton());
        }
        // Upwards where a small screen has no room below.
        const int distance = distanceFromPointer(QRect(100, 500, 400, 100), QRect(200, 60, 180, 30),
                                                 QPoint(300, 560), QRect(0, 0, 800, 600));
        QCOMPARE(distance, -30);
    }

    // Modes applied one after the other, the last one by OK. The screen knows no 75 Hz, which is
    // never said; what stores a mode may take a while.
    void modes()
    {
        open();
        const QString there = "xrandr -s 800x600 -r 60"_s;
        QVERIFY(offers("800 x 600"_s));
        QVERIFY(!offers("1360 x 768"_s));
        QVERIFY(offers("800 x 600"_s));
        for (Answer answer : {Restore, Escape, Wait})
            apply({answerQuestion(answer, there)}, "xrandr -s 1360x768 -r 75"_s);
        const QString stored = "fw_setenv display 800x600@60"_s;
        const QString noughts(3000, u'0');
        QString numbers;
        for (int number = 1; number < 100000; ++number)
            numbers += QString::number(number) + u'\n';
        const std::tuple<const char *, QString, QString> failures[] = {
            // what it does, its words, and what is logged of them when not all are shown
            {"echo no >&2; exit 1", "no\n"_s, ""_s},
            {"sleep 2; seq 99999 >&2; exit 1", numbers, "C \""_s + numbers + u'"'},
            {"printf %03000d 0 >&2; exit 1", noughts, "C \""_s + noughts + u'"'},
            {"printf %0999d 0 | sed s/0/\u65e0/g >&2; exit 1", QString(999, u'\u65e0'), ""_s},
        };
        for (const auto &[script, shows, logs] : failures) {
            const auto setenv = replaced("fw_setenv", script);
            const LogCapture log;
            apply({answerQuestion(Keep, there), confirmError(shows)}, stored);
            QVERIFY(canApply());
            QCOMPARE(log.texts("dialogmain"_s).filter("C "_s).join(u'|'), logs);
        }
        apply({answerQuestion(Keep, there)}, stored + "\nsync"_s);
        QVERIFY(!canApply());
        QVERIFY(offers("1280 x 720"_s));
        apply({answerQuestion(Restore, "xrandr -s 1280x720 -r 60"_s)}, there, "m_btnOK");
        QVERIFY(!m_dialog->isVisible());
    }

    // Whatever is wrong, the screen shows the same before the question and after it, at a rate that
    // no mode of the list has.
    void rejects()
    {
        const char *const works = "";
        const char *const fails = "[ $2 = 800x600 ] || exit 1";
        const char *const hangs = "[ $2 = 800x600 ] || exec /bin/sleep 20";
        const char *const goes = "/bin/rm $0";
        const char *const darkens =
            "[ $2 = 800x600 ] || { /usr/bin/xrandr --output VNC-0 --off; exit 1; }";
        // The monitor, the stored mode, what is told, and what becomes of xrandr.
        const std::tuple<const char *, QString, QString, const char *, Answer, QString> rows[] = {
            {"none", "1920x1080"_s, NO_EDID, works, Escape, "xrandr -s 0x0 -r 0"_s},
            {"garbage", "1920x1080"_s, NO_EDID, works, Enter, "xrandr -s 0x0 -r 0"_s},
            {"no-timing", "1920x1080"_s, NO_TIMING, works, Wait, "xrandr -s 0x0 -r 0"_s},
            {"1920x1080", ""_s, NO_MODE, works, Terminate, "xrandr -s 0x0 -r 0"_s},
            {"1920x1080", "1600x1000"_s, ""_s, works, Enter, "xrandr -s 1600x1000 -r 60"_s},
            {"1920x1080", "1920x1080"_s, ""_s, fails, Escape, "xrandr -s 1920x1080 -r 60"_s},
            {"1920x1080", "1920x1080"_s, ""_s, hangs, Wait, "xrandr -s 1920x1080 -r 60"_s},
            {"1920x1080", "1920x1080"_s, ""_s, goes, Terminate, ""_s},
            {"1920x1080", "1920x1080"_s, ""_s, darkens, Escape, "xrandr -s 1920x1080 -r 60"_s},
        };
        xrandr("--newmode slow 60 1920 1921 1922 2000 1080 1081 1082 1100"_s);
        xrandr("--addmode VNC-0 slow"_s);
        std::signal(SIGTERM, [](int) {});
        for (const auto &[monitor, stored, error, becomes, answer, called] : rows) {
            qInfo() << monitor << stored << becomes;
            const QString before = xrandr("--output VNC-0 --mode slow"_s);
            QVERIFY2(before.contains("27.27*"_s), qPrintable(before));
            QTRY_COMPARE(QGuiApplication::primaryScreen()->size(), QSize(1920, 1080));
            write("/run/simbox/hdmi"_s, monitor);
            store(stored);
            open(error);
            widget<QCheckBox>()->click();
            QVERIFY(offers("800 x 600"_s));
            const auto restored = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
            qputenv("PATH", "/usr/local/bin");
            const auto command =
                replaced("xrandr", QByteArray(becomes) + "\nexec /usr/bin/xrandr \"$@\"");
            apply({answerQuestion(answer, "xrandr -s 800x600 -r 60"_s)}, called);
            QCOMPARE(xrandr(), before);
            QTRY_COMPARE(QGuiApplication::primaryScreen()->size(), QSize(1920, 1080));
        }
    }

    // The second server's screen can be turned, unlike the box's.
    void restoresSmallerAndTurned()
    {
        const auto display = qScopeGuard([] { qputenv("DISPLAY", ":0"); });
        QProcess server;
        server.start("Xephyr"_s, {":1"_s, "-screen"_s, "1280x1024"_s, "-noreset"_s});
        const std::tuple<const char *, QString, QString, QString> rows[] = {
            // the server, what is shown before and how xrandr tells that, and what comes then
            {":0", "-s 800x600"_s, "800 x 600"_s, "-s 1920x1080"_s},
            {":1", "-o left"_s, "1024x1280+0+0 left"_s, "-s 800x600"_s},
        };
        const LogCapture log;
        for (const auto &[place, first, told, then] : rows) {
            qputenv("DISPLAY", place);
            QTRY_VERIFY(xrandr(first).contains(told));
            const QString before = xrandr();
            ScreenConfiguration configuration;
            QVERIFY(xrandr(then) != before);
            configuration.restoreIfLost({640, 480, 60});
            QCOMPARE(xrandr(), before);
        }
        ScreenConfiguration gone;
        server.kill();
        server.waitForFinished();
        gone.restoreIfLost({640, 480, 60});
        const QString lost = "C xrandr has not brought the picture back, which "_s;
        QCOMPARE(log.texts("screenconfiguration"_s),
                 QStringList({lost + "is shown again."_s, lost + "is shown again."_s,
                              lost + "cannot be shown again."_s}));
    }

    void leaves()
    {
        const QByteArray untouched = "export LANG=xx_XX.UTF-8\n";
        const auto leaves = [&](const QString &item, const QString &language, const char *button,
                                const QByteArray &after, const QString &log) {
            write(PROFILE, after.isNull() ? after : untouched);
            open();
            widget<QComboBox>("m_cmbLanguage")->setCurrentText(language); // if it has that
            offers(item); // without one Apply is off, OK tries all the same
            const Action confirm = confirmError("Cannot parse resolution string."_s);
            const LogCapture capture;
            const ModalAnswers modal(std::vector<Action>(item == "none"_s ? 1 : 0, confirm));
            button ? press(button) : QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
            QVERIFY(!m_dialog->isVisible());
            QCOMPARE(box::calls(), QString());
            QCOMPARE(read(PROFILE), after);
            QCOMPARE(capture.texts("dialogmain"_s).join(u'|'), log);
        };
        const QString chinese = "D 1360x768@60|D \"Chinese\""_s;
        leaves("1360 x 768"_s, ""_s, "m_btnOK", "export LANG=zh_CN.UTF-8\n", chinese);
        leaves("none"_s, "English"_s, "m_btnOK", "export LANG=en_US.UTF-8\n", "D \"English\""_s);
        leaves("1360 x 768"_s, "Chinese"_s, "m_btnOK", QByteArray(),
               chinese + "|C Open /etc/profile failed"_s);
        leaves("800 x 600"_s, "English"_s, "m_btnCancel", untouched, ""_s);
        leaves("800 x 600"_s, "English"_s, nullptr, untouched, ""_s);
    }

    void instructions()
    {
        const char *const hidden = "# Terminal\nNoDisplay=true\nExec=x";
        const char *const shown = "# Terminal\nNoDisplay=false\nExec=x";
        // Null for a prompt that is cancelled, and for a missing entry.
        const auto types = [&](const char *typed, const char *focus, const char *before,
                               const char *after, const QString &log) {
            write(TERMINAL, before);
            open();
            auto *from = widget<QWidget>(focus);
            from->setFocus();
            std::vector<Action> answers{[&](QWidget *widget) {
                auto *prompt = qobject_cast<QInputDialog *>(widget);
                QVERIFY(prompt && prompt->textEchoMode() == QLineEdit::Password);
                prompt->setTextValue(QLatin1String(typed ? typed : "x"));
                typed ? prompt->accept() : prompt->reject();
            }};
            if (log.contains("Unkown"_s))
                answers.push_back(confirmError("Unkown instruction!"_s));
            const LogCapture capture;
            QTest::keyClick(from, Qt::Key_E);
            const ModalAnswers modal(answers);
            const auto shift = typed ? Qt::NoModifier : Qt::ShiftModifier;
            QTest::keyClick(from, Qt::Key_E, Qt::ControlModifier | shift);
            QCOMPARE(read(TERMINAL), QByteArray(after));
            QCOMPARE(capture.texts("dialogmain"_s).join(u'|'), log);
        };
        types("LowerHarborGate", "m_listResolution", shown, hidden, ""_s);
        types("LiftHarborGate", "m_cmbLanguage", hidden, shown, ""_s);
        types("LowerHarborGate", "m_btnOK", "Exec=x\n", "Exec=x\nNoDisplay=true", ""_s);
        for (const char *unknown :
             {"%1 %2", "liftharborgate", " LiftHarborGate", "LiftHarborGate2", "LowerHarborGate2"})
            types(unknown, "m_btnOK", "NoDisplay=\n", "NoDisplay=\n",
                  "D Unkown instruction: '%1'!"_s.arg(QLatin1String(unknown)));
        types(nullptr, "m_btnOK", nullptr, nullptr, ""_s);
        types("", "m_btnOK", nullptr, nullptr, ""_s);
        types("x", "m_btnOK", nullptr, nullptr, "C Loading configure file failed."_s);
    }
};

QTEST_MAIN(TestDialogMain)
#include "tst_dialogmain.moc"
