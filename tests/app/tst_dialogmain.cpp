// SPDX-License-Identifier: MIT
// The main window on the box's own files, devices and recorded commands: runs inside the simulated
// box only.
#include "app/dialogmain.h"
#include "app/guards/modalfocusguard.h"
#include "app/startup.h"
#include "display/dialogconfirm.h"
#include "maintenance/dialogabout.h"
#include "tests/support/box.h"
#include "tests/support/edidblock.h"
#include "tests/support/logcapture.h"
#include "tests/support/modal.h"

#include <QtWidgets>

#include <csignal>
#include <cstdio>
#include <memory>

using box::calls;
using box::read;
using box::write;
using Action = ModalAnswers::Action;

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

const QString PROFILE = "/etc/profile"_s;
const QString TERMINAL = "/usr/share/applications/matchbox-terminal.desktop"_s;
const QString SWITCH = "/sys/class/leds/vga-i2c-enb/brightness"_s;
enum Answer { Keep, Restore, Escape, Enter, Wait, Terminate };

QByteArray profileWith(const QByteArray &locale)
{
    return "a\nexport LANG=" + locale + ".UTF-8\nb\n";
}

void store(const QString &mode)
{
    QProcess::execute("/usr/bin/fw_setenv"_s, {"display"_s, mode});
}

// Moves a file away until the value goes.
auto without(const QString &fileName)
{
    const QByteArray name = fileName.toUtf8();
    std::rename(name.constData(), (name + ".aside").constData());
    return qScopeGuard([name] { std::rename((name + ".aside").constData(), name.constData()); });
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

// The commands since the last look, whole and in their order.
QString newCalls()
{
    const QString all = calls();
    box::forgetCalls();
    return all;
}

// What the monitors' lines have seen, a letter each: 1 and 0 for a switch, v and h for a
// transfer that failed, V and H for one that was answered.
QString transfers()
{
    QString letters;
    // The box may record the switch a moment later.
    const bool isEven = QTest::qWaitFor([&letters] {
        letters.clear();
        for (const QByteArray &call : read("/run/simbox/calls"_s).split('\n')) {
            if (call.contains(" switched "))
                letters += QLatin1Char(call.back());
            else if (call.startsWith("i2c"))
                letters += QLatin1Char(call.endsWith("failed") ? call[4] : char(call[4] & ~0x20));
        }
        return letters.count(u'1') == letters.count(u'0');
    });
    return isEven ? letters : letters + u'?';
}

// The window's messages with a fixed position: "106 D 2.2".
QString logged()
{
    QStringList found;
    for (const LogCapture::Message &message : LogCapture::messages()) {
        if (message.file == "dialogmain"_s && (message.line < 140 || message.line > 550))
            found << "%1 %2 %3"_s.arg(QString::number(message.line),
                                      message.type == QtCriticalMsg ? "C"_s : "D"_s, message.text);
    }
    return found.join(u'|');
}

Action confirmError(const QString &text)
{
    return [=](QWidget *widget) {
        const auto *box = qobject_cast<QMessageBox *>(widget);
        QVERIFY(box && qobject_cast<DialogMain *>(box->parentWidget()));
        // Without the places to break long words.
        const QString shown = box->text().remove(QChar(0x200B));
        QCOMPARE(box->windowTitle() + u':' + shown, "Error:"_s + text);
        const auto *label = box->findChild<QLabel *>("qt_msgbox_label"_s);
        QVERIFY(label->width() >= label->minimumSizeHint().width());
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QVERIFY(box->frameGeometry().height() < screen.height());
        QVERIFY(box->icon() == QMessageBox::Critical && box->textFormat() == Qt::PlainText);
        QVERIFY(box->standardButtons() == QMessageBox::Ok);
        // The window manager may move it first, for its frame.
        QVERIFY(box->parentWidget()->isVisible() || QTest::qWaitFor([&] {
                    return (box->geometry().center() - screen.center()).manhattanLength() < 5;
                }));
        pressButton(widget, QDialogButtonBox::Ok);
    };
}

// Answers the question that follows a switch, after a look at what has been run by then.
Action answerQuestion(Answer answer, const QString &before)
{
    return [=](QWidget *widget) {
        QCOMPARE(newCalls(), before);
        QVERIFY(qobject_cast<DialogMain *>(widget->parentWidget()));
        QVERIFY(widget->parentWidget()->isVisible());
        const auto *label = widget->findChild<QLabel *>("label"_s);
        auto *keep = widget->findChild<QPushButton *>("m_btnKeepThisConfig"_s);
        auto *restore = widget->findChild<QPushButton *>("m_btnRestorePreConfig"_s);
        QCOMPARE(QStringList({widget->windowTitle(), label->text(), keep->text(), restore->text()}),
                 QStringList({"Information"_s, "Does the display look OK?"_s,
                              "Keep This Configuration"_s, "Restore Previous Configuration"_s}));
        QVERIFY(label->font().bold() && label->font().pointSize() == 12);
        const auto *picture = widget->findChild<QLabel *>("label_2"_s);
        QVERIFY(!picture->property("pixmap").value<QPixmap>().isNull());
        const auto *sentence = widget->findChild<QLabel *>("m_lblQuestion"_s);
        if (answer == Escape || answer == Enter)
            QTest::keyClick(widget, answer == Enter ? Qt::Key_Return : Qt::Key_Escape);
        else if (answer == Terminate)
            QVERIFY(std::raise(SIGTERM) == 0 &&
                    QTest::qWaitFor([=] { return widget->isHidden(); }));
        else if (answer != Wait)
            (answer == Keep ? keep : restore)->click();
        for (int left = DialogConfirm::COUNTDOWN_SECONDS; widget->isVisible(); --left) {
            QCOMPARE(sentence->text(), "The display will be reset to its previous configuration in "
                                       "%1 seconds"_s.arg(left));
            QVERIFY(left > 0);
            QMetaObject::invokeMethod(widget, "countdown_timeout");
        }
    };
}

// Takes half as many letters again as English.
class WordyLanguage : public QTranslator
{
public:
    WordyLanguage() { QCoreApplication::installTranslator(this); }

    QString translate(const char * /*context*/, const char *text, const char * /*comment*/,
                      int /*number*/) const override
    {
        const QString words = QString::fromUtf8(text);
        return words + words.left(words.size() / 2);
    }
};

QColor frameOf(const QListWidget *list)
{
    return list->viewport()->grab().toImage().pixelColor(0, list->viewport()->height() / 2);
}

// The monitors and the stored mode; what the window then says and shows, and what it has done.
const struct Opening
{
    const char *name, *vga, *hdmi, *stored, *error;
    int count;
    const char *current, *transfers, *log;
} OPENINGS[] = {
#define FULL "1920x1080", "1920x1080M@60"
#define BOTH_READ "D 1920x1080@60|D 1920x1080@60"
    {"HDMI", "none", FULL, "", 8, "1920 x 1080", "1vvvH0", BOTH_READ},
    {"both", "1280x1024", "640x480", "800x600@75", "", 4, "800 x 600", "1V0",
     "D 800x600@75|D 800x600@60"},
    {"late", "fail2:1280x1024", FULL, "", 4, "", "1vvV0", "D 1920x1080@60"},
    {"too late", "fail3:1280x1024", FULL, "", 8, "1920 x 1080", "1vvvH0", BOTH_READ},
    {"garbage and one", "garbage", FULL, "", 8, "1920 x 1080", "1VH0", BOTH_READ},
    {"wrong sum", "/tmp/sum.edid", "none", "800x600", "", 8, "800 x 600", "1V0",
     "D 800x600@60|D 800x600@60"},
    {"no switch", "1280x1024", FULL, "", 8, "1920 x 1080", "vvvH", BOTH_READ},
    {"no bus", "1280x1024", FULL, "", 8, "1920 x 1080", "1H0", BOTH_READ},
    {"small", "none", "640x480", "1920x1080", "", 0, "", "1vvvH0", "D 1920x1080@60"},
    {"none", "none", "none", "", "Cannot read edid information.", 0, "", "1vvvhhh0", ""},
    {"garbage", "none", "garbage", "", "Cannot read edid information.", 0, "", "1vvvH0", ""},
    {"no size", "none", "no-timing", "", "Parsing edid information failed.", 0, "", "1vvvH0", ""},
#define NO_MODE "Getting current display information failed.", 8, "", "1vvvH0"
    {"no variable", "none", "1920x1080", "", NO_MODE, ""},
    {"no rate", "none", "1920x1080", "800x600@", NO_MODE, "D 800x600@0"},
    {"no boot environment", "none", FULL, NO_MODE, "C \"no words\n\""},
};

// A rejected mode, and what the command that brings the old one back does meanwhile. The screen
// shows 1920 x 1080 before the question and after it.
const struct Rejection
{
    const char *name, *monitor, *stored, *error, *xrandr;
    Answer answer;
    const char *called;
} REJECTIONS[] = {
#define REAL "exec /usr/bin/xrandr \"$@\""
#define UNREAD "Cannot read edid information."
    {"no monitor", "none", "1920x1080", UNREAD, REAL, Escape, "xrandr -s 0x0 -r 0\n"},
    {"garbage", "garbage", "1920x1080", UNREAD, REAL, Enter, "xrandr -s 0x0 -r 0\n"},
    {"no timing", "no-timing", "1920x1080", "Parsing edid information failed.", REAL, Wait,
     "xrandr -s 0x0 -r 0\n"},
    {"nothing stored", "1920x1080", "", "Getting current display information failed.", REAL,
     Terminate, "xrandr -s 0x0 -r 0\n"},
    {"stored mode that the screen lacks", "1920x1080", "1600x1000", "", REAL, Enter,
     "xrandr -s 1600x1000 -r 60\n"},
    {"failing command", "1920x1080", "1920x1080", "", "exit 1", Escape,
     "xrandr -s 1920x1080 -r 60\n"},
    {"hanging command", "1920x1080", "1920x1080", "", "exec sleep 20", Wait,
     "xrandr -s 1920x1080 -r 60\n"},
    {"missing command", "1920x1080", "1920x1080", "", nullptr, Terminate, ""},
};

// How the window is closed, and what that leaves.
const struct Leaving
{
    const char *name, *button, *item, *language, *locale, *log;
} LEAVINGS[] = {
    {"OK", "m_btnOK", "", "", "zh_CN", "586 D \"Chinese\""},
    {"OK in English", "m_btnOK", "", "English", "en_US", "586 D \"English\""},
    {"OK on no mode", "m_btnOK", "none", "English", "en_US", "586 D \"English\""},
    {"OK without a profile", "m_btnOK", "", "Chinese", "",
     "586 D \"Chinese\"|594 C Open /etc/profile failed"},
    {"Cancel", "m_btnCancel", "800 x 600", "English", "xx_XX", ""},
    {"Escape", "", "800 x 600", "English", "xx_XX", ""},
};

// Where Ctrl+E is pressed and what is typed; the terminal's entry, null for none, and the log.
const struct Instruction
{
    const char *name, *focus, *typed, *before, *after, *log;
} INSTRUCTIONS[] = {
#define LIST "m_listResolution"
#define HIDDEN "# Terminal\nNoDisplay=true\nExec=x"
#define SHOWN "# Terminal\nNoDisplay=false\nExec=x"
#define UNKNOWN(typed) typed, HIDDEN, HIDDEN, "135 D Unkown instruction: '" typed "'!"
    {"hide, from the list", LIST, "LowerHarborGate", SHOWN, HIDDEN, ""},
    {"show, from the language box", "m_cmbLanguage", "LiftHarborGate", HIDDEN, SHOWN, ""},
    {"a new line", LIST, "LowerHarborGate", "Exec=x\n", "Exec=x\nNoDisplay=true", ""},
    {"unknown, from a button", "m_btnOK", UNKNOWN("%1 %2")},
    {"small letters", LIST, UNKNOWN("liftharborgate")},
    {"a blank first", LIST, UNKNOWN(" LiftHarborGate")},
    {"cancelled", LIST, nullptr, HIDDEN, HIDDEN, ""},
    {"cancelled without an entry", LIST, nullptr, nullptr, nullptr, ""},
    {"empty without an entry", LIST, "", nullptr, nullptr, ""},
    {"no entry", LIST, "x", nullptr, nullptr, "124 C Loading configure file failed."},
};

template<typename Row, std::size_t count>
void addRows(const Row (&rows)[count])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < count; ++i)
        QTest::newRow(rows[i].name) << int(i);
}

} // namespace

class TestDialogMain : public QObject
{
    Q_OBJECT

    ModalFocusGuard m_focusGuard; // matchbox is at work in the box
    std::unique_ptr<ModalAnswers> m_deadline;
    std::unique_ptr<DialogMain> m_dialog;

    // The window, once it has the keyboard and all that it did at first is recorded.
    void open()
    {
        m_dialog = std::make_unique<DialogMain>();
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        transfers();
        box::forgetCalls();
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
        for (int row = 0; row < list()->count(); ++row)
            texts << list()->item(row)->text();
        return texts.join(u',');
    }

    QString selected() const
    {
        return list()->currentRow() < 0 ? QString() : list()->currentItem()->text();
    }

    // Selects an item; gives whether Apply is on then.
    bool offers(const QString &item) const
    {
        list()->setCurrentItem(list()->findItems(item, Qt::MatchExactly).value(0));
        return selected() == item && canApply();
    }

    bool canApply() const { return widget<QPushButton>("m_btnApply")->isEnabled(); }

    void press(const char *button) const { widget<QPushButton>(button)->click(); }

private slots:
    void initTestCase()
    {
        if (!QFile::exists("/run/simbox/hdmi"_s))
            QFAIL("not in the simulated box");
        QCoreApplication::instance()->installNativeEventFilter(&m_focusGuard);
        qputenv("TZ", "BOX-5"); // hours away from universal time
    }

    void init()
    {
        m_deadline = std::make_unique<ModalAnswers>(std::vector<Action>(), 10000);
        write("/run/simbox/vga"_s, "none");
        write("/run/simbox/hdmi"_s, "1920x1080");
        write(PROFILE, profileWith("xx_XX"));
        store("1360x768M@75"_s);
        box::forgetCalls();
    }

    void cleanup()
    {
        const QString picture =
            "/run/simbox/%1.png"_s.arg(QLatin1String(QTest::currentTestFunction()));
        if (QTest::currentTestFailed())
            QGuiApplication::primaryScreen()->grabWindow(0).save(picture);
        m_dialog.reset();
    }

    void clock()
    {
        const QString format = "yyyy-MM-dd HH:mm:ss"_s;
        const QString before = QDateTime::currentDateTime().toString(format);
        open();
        auto *label = widget<QLabel>("m_lblDateTime");
        const QString first = label->text();
        const QDateTime shown = QDateTime::fromString(first, format);
        QVERIFY2(shown.isValid() && before <= first && shown <= QDateTime::currentDateTime(),
                 qPrintable(first));
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

    void menu()
    {
        for (const char *barcode : {"527AB001", "463AB001", ""}) {
            write("/etc/orvex/barcode.txt"_s, QByteArray("ORVEX\nTEST BOX\n") + barcode);
            open();
            QStringList entries;
            for (const QAction *action : widget<QMenu>()->actions())
                entries << (action->isVisible() ? action->text() : QString());
            const bool isOtp = *barcode == '5';
            QCOMPARE(entries.join(u'|'),
                     "Upgrade Application|Upgrade File System|%1|Factory Reset|Fan Setting"_s.arg(
                         isOtp ? "Preference"_s : QString()));

            // What an upgrade offers depends on the product, what a reset offers does not.
            QString offered;
            const auto cancel = [&](QWidget *choice) {
                offered += qobject_cast<QInputDialog *>(choice)->comboBoxItems().join(u'|') + u'\n';
                pressButton(choice, QDialogButtonBox::Cancel);
            };
            const ModalAnswers modal(
                {cancel, [](QWidget *query) { pressButton(query, QDialogButtonBox::Yes); },
                 cancel});
            widget<QMenu>()->actions().at(0)->trigger();
            widget<QMenu>()->actions().at(3)->trigger();
            QCOMPARE(offered, (isOtp ? "vexastd|vxotp\n"_s : "vexastd\n"_s) + "vexastd|vxotp\n"_s);
            QCOMPARE(calls(), QString());
        }
    }

    void opens_data() { addRows(OPENINGS); }

    void opens()
    {
        QFETCH(int, row);
        const Opening &opening = OPENINGS[row];
        const auto is = [&](const char *name) { return opening.name == QByteArray(name); };
        write("/tmp/sum.edid"_s, EdidBlock().timing(0, 14850, 1920, 280, 1080, 45).set(127, "55"));
        write("/run/simbox/vga"_s, opening.vga);
        write("/run/simbox/hdmi"_s, opening.hdmi);
        store(QLatin1String(opening.stored));
        const auto printenv = is("no boot environment")
                                  ? replaced("fw_printenv", "echo no words >&2; exit 1")
                                  : without("/tmp/none"_s);
        const QString missing = is("no switch") ? SWITCH
                                : is("no bus")  ? "/dev/i2c-2"_s
                                                : "/none"_s;
        const auto aside = without(qEnvironmentVariable("UMOCKDEV_DIR") + missing);
        const QString error = QLatin1String(opening.error);
        std::vector<Action> answers;
        if (!error.isEmpty()) {
            answers.emplace_back([&](QWidget *widget) {
                QCOMPARE(transfers(), QLatin1String(opening.transfers));
                confirmError(error)(widget);
            });
        }
        const LogCapture log;
        const ModalAnswers modal(answers);
        m_dialog = std::make_unique<DialogMain>();
        QCOMPARE(list()->count(), opening.count);
        QCOMPARE(selected(), QLatin1String(opening.current));
        QCOMPARE(transfers(), QLatin1String(opening.transfers));
        QCOMPARE(calls(),
                 opening.count == 0 && !error.isEmpty() ? QString() : "fw_printenv -n display\n"_s);
        QCOMPARE(log.texts("dialogmain"_s).join(u'|'), QLatin1String(opening.log));
        QCOMPARE(log.texts("basedevice"_s).size(), missing == "/none"_s ? 0 : 1);
    }

    void lists()
    {
        open();
        QCOMPARE(widget<QComboBox>()->itemText(0), "Chinese"_s);
        QCOMPARE(widget<QComboBox>()->itemText(1), "English"_s);
        auto *all = widget<QCheckBox>();
        QVERIFY(!canApply());
        all->click();
        QCOMPARE(items(), "800 x 600,1024 x 768,1280 x 720,1280 x 800,1280 x 960,1280 x 1024,"
                          "1360 x 768,1440 x 900,1680 x 1050,1920 x 1080"_s);
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
        QCOMPARE(list()->currentRow(), 0);
        QVERIFY(canApply());
        QCOMPARE(calls() + transfers(), QString());

        // What fails leaves the list as it was.
        for (const QString &error :
             {"Cannot read edid information."_s, "Parsing edid information failed."_s}) {
            write("/run/simbox/hdmi"_s, error.startsWith(u'C') ? "none" : "no-timing");
            const ModalAnswers modal({confirmError(error)});
            all->click();
            QCOMPARE(list()->count(), 10);
            all->setChecked(true);
        }
        all->setChecked(false);
        all->click();
        QVERIFY(canApply()); // as before
        store("1280x1024@60"_s);
        write("/run/simbox/hdmi"_s, "1280x1024");
        all->click();
        QCOMPARE(items(), "800 x 600,1024 x 768,1280 x 960,1280 x 1024"_s);
        QCOMPARE(selected(), "1280 x 1024"_s);
        QVERIFY(!canApply());
        QVERIFY(offers("1280 x 960"_s));
    }

    void rightClick()
    {
        open();
        const int row = list()->currentRow();
        QVERIFY(row > 0);
        bool hasMenu = false;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            QWidget *const popup = QApplication::activePopupWidget();
            hasMenu = hasMenu || qobject_cast<QMenu *>(popup);
            if (popup)
                popup->close();
        });
        look.start(50);
        for (const char *place : {"m_listResolution", "m_cmbLanguage", "m_btnApply", "label"}) {
            hasMenu = false;
            QTest::mouseClick(m_dialog->windowHandle(), Qt::RightButton, Qt::NoModifier,
                              widget<QWidget>(place)->mapTo(m_dialog.get(), QPoint(20, 8)));
            QTRY_VERIFY2(hasMenu, place);
            QCOMPARE(list()->currentRow(), row);
        }
    }

    void aboutInBoxFont()
    {
        const auto restored =
            qScopeGuard([font = QApplication::font()] { QApplication::setFont(font); });
        installApplicationFont("/usr/share/fonts/ttf/msyh.ttf"_s, 9);
        write("/etc/orvex/version"_s, "2.0.1");
        write("/etc/orvex/patches_version.txt"_s, "p1");
        DialogAbout about(nullptr);
        about.show();
        QVERIFY(QTest::qWaitForWindowActive(&about));
        QCOMPARE(about.size(), QSize(386, 193));
        const auto place = [&](const char *name) {
            return about.findChild<QWidget *>(QLatin1String(name))->geometry();
        };
        QCOMPARE(place("layoutWidget"), QRect(12, 13, 361, 131));
        QCOMPARE(place("buttonBox"), QRect(50, 150, 325, 23));
    }

    void questionLetsGoOfPointer()
    {
        QCursor::setPos(0, 0);
        const auto isUnderButton = [] {
            return qobject_cast<QPushButton *>(qApp->widgetAt(QCursor::pos())) != nullptr;
        };
        for (const char *name : {"m_btnKeepThisConfig", "m_btnRestorePreConfig"}) {
            for (int round = 0; round < 2; ++round) {
                DialogConfirm question(nullptr);
                question.show();
                QVERIFY(QTest::qWaitForWindowActive(&question));
                QVERIFY(!isUnderButton());
                const auto *button = question.findChild<QPushButton *>(QLatin1String(name));
                // The second question would come up, and then is moved, under the pointer.
                const QPoint middle = button->mapToGlobal(button->rect().center());
                if (round == 0)
                    QCursor::setPos(middle);
                else
                    question.move(question.pos() + QCursor::pos() - middle);
                QTest::qWait(200);
                QCOMPARE(isUnderButton(), round == 0);
            }
        }
    }

    // Runs at other densities as well, see tests/CMakeLists.txt.
    void questionFitsSmallestMode()
    {
        for (const bool isWordy : {false, true}) {
            const auto language = isWordy ? std::make_unique<WordyLanguage>() : nullptr;
            DialogConfirm question(nullptr);
            question.show();
            QVERIFY(QTest::qWaitForWindowActive(&question));
            // The frame takes what is left of 800 x 600.
            QVERIFY(question.width() <= 784 && question.height() <= 560);
            for (const auto *button : question.findChildren<QPushButton *>())
                QVERIFY(button->width() >= button->sizeHint().width());
            for (const auto *label : question.findChildren<QLabel *>()) {
                const int flags = label->wordWrap() ? Qt::TextWordWrap : 0;
                const QSize text =
                    label->fontMetrics().boundingRect(label->rect(), flags, label->text()).size();
                QVERIFY(label->size().expandedTo(text) == label->size());
            }
        }
    }

    // Modes applied one after the other, the last one by OK. The screen knows no 75 Hz, which is
    // never said; what stores a mode may take a while, but not for ever.
    void modes()
    {
        open();
        const QString there = "xrandr -s 800x600 -r 60\n"_s;
        QVERIFY(offers("800 x 600"_s));
        QVERIFY(!offers("1360 x 768"_s));
        QVERIFY(offers("800 x 600"_s));
        for (Answer answer : {Restore, Escape, Wait}) {
            const ModalAnswers modal({answerQuestion(answer, there)});
            press("m_btnApply");
            QCOMPARE(newCalls(), "xrandr -s 1360x768 -r 75\n"_s);
            QVERIFY(canApply());
        }
        const QString stored = "fw_setenv display 800x600@60\n"_s;
        const QString word(1000, u'0');
        const QString wide(999, u'\u65e0');
        const QString failures[][3] = {
            // script, what the box says, what the log says
            {"echo no >&2; exit 1"_s, "no\n"_s, ""_s},
            {"seq 11 >&2; exit 1"_s, "1\n2\n3\n4\n5\n\u2026\n8\n9\n10\n11"_s,
             "C \"1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n\""_s},
            {"printf %01000d 0 >&2; exit 1"_s, word, ""_s},
            {"printf %0999d 0 | sed s/0/\u65e0/g >&2; exit 1"_s, wide, ""_s},
            {"exec sleep 20"_s, ""_s, ""_s},
        };
        for (const auto &[script, says, logs] : failures) {
            const auto setenv = replaced("fw_setenv", script.toUtf8());
            const LogCapture log;
            const ModalAnswers modal({answerQuestion(Keep, there), confirmError(says)});
            press("m_btnApply");
            QCOMPARE(newCalls(), stored);
            QVERIFY(canApply());
            QCOMPARE(log.texts("dialogmain"_s).filter("C "_s).join(u'|'), logs);
        }
        {
            const auto setenv = replaced("fw_setenv", "sleep 2");
            const ModalAnswers modal({answerQuestion(Keep, there)});
            press("m_btnApply");
            QCOMPARE(newCalls(), stored + "sync\n"_s);
            QVERIFY(!canApply());
        }
        QVERIFY(offers("1280 x 720"_s));
        const ModalAnswers modal({answerQuestion(Restore, "xrandr -s 1280x720 -r 60\n"_s)});
        press("m_btnOK");
        QCOMPARE(newCalls(), there);
        QVERIFY(!m_dialog->isVisible());
    }

    void rejects_data() { addRows(REJECTIONS); }

    void rejects()
    {
        QFETCH(int, row);
        const Rejection &rejection = REJECTIONS[row];
        QProcess::execute("/usr/bin/xrandr"_s, {"-s"_s, "1920x1080"_s, "-r"_s, "60"_s});
        QTRY_COMPARE(QGuiApplication::primaryScreen()->size(), QSize(1920, 1080));
        write("/run/simbox/hdmi"_s, rejection.monitor);
        store(QLatin1String(rejection.stored));
        const QString error = QLatin1String(rejection.error);
        {
            const ModalAnswers modal(error.isEmpty() ? std::vector<Action>()
                                                     : std::vector{confirmError(error)});
            open();
        }
        widget<QCheckBox>()->click();
        QVERIFY(offers("800 x 600"_s));
        std::signal(SIGTERM, [](int) {});
        const QByteArray path = qgetenv("PATH");
        const auto restored = qScopeGuard([&] { qputenv("PATH", path); });
        const auto xrandr =
            replaced("xrandr", QByteArray("[ $2 = 800x600 ] && ") + REAL + '\n' + rejection.xrandr);
        const ModalAnswers modal({[&](QWidget *question) {
            if (!rejection.xrandr)
                qputenv("PATH", "/nowhere");
            answerQuestion(rejection.answer, "xrandr -s 800x600 -r 60\n"_s)(question);
        }});
        press("m_btnApply");
        QCOMPARE(newCalls(), QLatin1String(rejection.called));
        QTRY_COMPARE(QGuiApplication::primaryScreen()->size(), QSize(1920, 1080));
    }

    void leaves_data() { addRows(LEAVINGS); }

    void leaves()
    {
        QFETCH(int, row);
        const Leaving &leaving = LEAVINGS[row];
        const QByteArray locale = leaving.locale;
        open();
        if (*leaving.language)
            widget<QComboBox>("m_cmbLanguage")->setCurrentText(QLatin1String(leaving.language));
        std::vector<Action> answers;
        if (leaving.item == QByteArray("none")) {
            // Apply is off, OK tries all the same.
            widget<QCheckBox>()->click();
            answers.push_back(confirmError("Cannot parse resolution string."_s));
        } else if (*leaving.item) {
            QVERIFY(offers(QLatin1String(leaving.item)));
        }
        if (locale.isEmpty())
            QFile::remove(PROFILE);
        // The window goes first, then the language is written.
        connect(m_dialog.get(), &QDialog::finished, this,
                [&] { QVERIFY(locale.isEmpty() || read(PROFILE) == profileWith("xx_XX")); });
        const LogCapture log;
        const ModalAnswers modal(answers);
        if (*leaving.button)
            press(leaving.button);
        else
            QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(calls(), QString());
        QCOMPARE(read(PROFILE), locale.isEmpty() ? QByteArray() : profileWith(locale));
        QCOMPARE(logged(), QLatin1String(leaving.log));
    }

    void instructions_data() { addRows(INSTRUCTIONS); }

    void instructions()
    {
        QFETCH(int, row);
        const Instruction &instruction = INSTRUCTIONS[row];
        write(TERMINAL, instruction.before);
        open();
        auto *from = widget<QWidget>(instruction.focus);
        from->setFocus();

        std::vector<Action> answers{[&](QWidget *widget) {
            auto *prompt = qobject_cast<QInputDialog *>(widget);
            QVERIFY(prompt);
            QCOMPARE(prompt->windowTitle(), "Please Input Instruction"_s);
            QCOMPARE(prompt->labelText(), "The feature is protected by instruction!"_s);
            QCOMPARE(prompt->textEchoMode(), QLineEdit::Password);
            prompt->setTextValue(QLatin1String(instruction.typed ? instruction.typed : "x"));
            instruction.typed ? prompt->accept() : prompt->reject();
        }};
        if (QByteArray(instruction.log).startsWith("135")) {
            answers.emplace_back([](QWidget *widget) {
                QCOMPARE(logged(), QString());
                confirmError("Unkown instruction!"_s)(widget);
            });
        }
        const LogCapture log;
        QTest::keyClick(from, Qt::Key_E);
        const ModalAnswers modal(answers);
        QTest::keyClick(from, Qt::Key_E,
                        row % 2 ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
        QCOMPARE(read(TERMINAL), QByteArray(instruction.after));
        QCOMPARE(logged(), QLatin1String(instruction.log));
    }
};

QTEST_MAIN(TestDialogMain)
#include "tst_dialogmain.moc"
