// SPDX-License-Identifier: MIT
// What the main window's menu and keys open, on the box's own files: runs inside the simulated box
// only, on a product with the OTP application.
#include "app/dialogmain.h"
#include "app/globalvars.h"
#include "app/startup.h"
#include "display/fbdevice.h"
#include "display/gammacurve.h"
#include "maintenance/identity/appversion.h"
#include "tests/support/box.h"
#include "tests/support/logcapture.h"
#include "tests/support/modal.h"
#include "tests/support/setclock.h"

#include <memory>
#include <unistd.h>

using box::calls;
using box::read;
using box::write;

namespace {

using Action = ModalAnswers::Action;
using Actions = std::vector<Action>;
using Button = QDialogButtonBox::StandardButton;
const QByteArray NO_FILE;

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

const QString CLOCK_SCRIPT = "/tmp/calclock.sh"_s;
const QString BOOT_SCRIPT = "/tmp/autobootapp.sh"_s;
const QString NOTHING;

// What a dialog says: the kind of a message, the title, and the text of each visible part, with a
// mark for a chosen radio button and for the button that Enter presses.
QString shown(QWidget *dialog)
{
    const char *const kinds[] = {"", "information", "warning", "critical", "question"};
    QStringList result{dialog->windowTitle()};
    if (const auto *box = qobject_cast<QMessageBox *>(dialog))
        result.prepend(QLatin1String(kinds[box->icon()]));
    for (const auto *part : dialog->findChildren<QWidget *>()) {
        QString text;
        for (const char *name : {"title", "text", "currentText"})
            text += part->property(name).toString();
        const bool isMarked =
            part->property("checked").toBool() || part->property("default").toBool();
        if (!text.isEmpty() && part->isVisible() && !part->parent()->inherits("QAbstractSpinBox"))
            result << (isMarked ? u'*' + text : text);
    }
    return result.join(u'|');
}

Action answer(
    const QString &says, Button button, const Action &look = [](QWidget *) {})
{
    return [=](QWidget *dialog) {
        QCOMPARE(shown(dialog), says);
        look(dialog);
        pressButton(dialog, button);
    };
}

// Takes an application from a list; an empty name cancels.
Action choice(const QString &title, const QString &application)
{
    const auto choose = [=](QWidget *dialog) {
        dialog->findChild<QComboBox *>()->setCurrentText(application);
    };
    return answer(title + "|Please select application|vexastd|*OK|Cancel"_s,
                  application.isEmpty() ? Button::Cancel : Button::Ok, choose);
}

// Leaves an old copy of each script, and puts something in the way: a directory where a script is
// copied to, a program that fails, or a file where a link was.
void prepare(const QString &obstacle)
{
    for (const QString &script : {CLOCK_SCRIPT, BOOT_SCRIPT}) {
        QDir(script).removeRecursively();
        QFile::remove(script); // of the last run, and not to be written to
        if (script == obstacle)
            QVERIFY(QDir().mkpath(script + "/x"_s));
        else
            write(script, "stale");
    }
    if (QFileInfo(obstacle).isSymLink())
        QVERIFY(QFile::remove(obstacle));
    if (!obstacle.isEmpty() && !QFileInfo(obstacle).isDir())
        write(obstacle, "#!/bin/sh\nexit 1\n");
}

} // namespace

class TestMaintenanceDialogs : public QObject
{
    Q_OBJECT

    std::unique_ptr<DialogMain> m_window;

    // Double-clicks on the clock, presses a function key, or chooses an entry of the menu; what is
    // told at the end is confirmed. Gives the window's messages with line and function, and in
    // between the others' critical ones.
    QString open(const QString &what, Actions actions, const QString &told = NOTHING)
    {
        if (!told.isEmpty())
            actions.push_back(answer(told, Button::Ok));
        box::forgetCalls();
        const ModalAnswers answers(actions, 5000);
        const LogCapture log;
        for (QAction *entry : m_window->findChildren<QAction *>()) {
            if (entry->isVisible() && entry->text() == what)
                entry->trigger();
        }
        if (what == "clock"_s)
            QTest::mouseDClick(m_window->findChild<QLabel *>("m_lblDateTime"_s), Qt::LeftButton);
        else if (const int number = what.mid(1).toInt())
            QTest::keyClick(m_window.get(), Qt::Key(Qt::Key_F1 + number - 1));
        QStringList logged;
        for (const LogCapture::Message &message : log.messages()) {
            if (message.file == "dialogmain"_s)
                logged << "%1 %2 %3"_s.arg(QString::number(message.line), message.function,
                                           message.text);
            else if (message.type == QtCriticalMsg)
                logged << "C "_s + message.text;
        }
        return logged.join(u'|');
    }

private slots:
    void init()
    {
        if (!QFile::exists("/run/simbox/hdmi"_s))
            QFAIL("not in the simulated box");
        write("/etc/orvex/barcode.txt"_s, "O\nB\n527AB001");
        m_window = std::make_unique<DialogMain>();
    }

    void fontAndScripts()
    {
        installApplicationFont("/usr/share/fonts/ttf/msyh.ttf"_s, 9);
        installApplicationFont("/nowhere"_s, 10);
        QCOMPARE(QApplication::font(), QFont("WenQuanYi Micro Hei"_s, 9));
        const QByteArray both = read("://calclock.sh"_s) + read("://autobootapp.sh"_s);
        QCOMPARE(QCryptographicHash::hash(both, QCryptographicHash::Sha1).toHex(),
                 QByteArray("a689a66b5dee148d7d5bd486829ff790f9e7ac86"));
    }

    void about()
    {
        installApplicationFont("/usr/share/fonts/ttf/msyh.ttf"_s, 9);
        setClock(QDateTime(QDate(2030, 5, 4), QTime(3, 2, 1)));
        const auto look = [](QWidget *dialog) {
            const auto *logo = dialog->findChild<QLabel *>("lblLogo"_s);
            QVERIFY(!logo->property("pixmap").value<QPixmap>().isNull());
            QVERIFY(dialog->findChild<QLabel *>("lblVersion"_s)->font().bold());
        };
        const QString files[] = {"barcode.txt"_s, "version"_s, "../version"_s,
                                 "patches_version.txt"_s};
        const QByteArray rows[][5] = {
            {"O\r\n\r\nB\r\n694KH214\r\n", "\n 2.0.1 \n3.0\n", "1.9", "p1\n p2 \n\n",
             "Barcode: 694KH214|Rootfs Version: 2.0.1|Rootfs Patch: p2"},
            {NO_FILE, NO_FILE, "1.9\n", NO_FILE, "Barcode: |Rootfs Version: 1.9"},
            {"O\nB\n527AB0x1\n", "\n\n", "1.9", "p1\n  ", "Barcode: 527AB0x1|Rootfs Patch: "},
            {"O\n \nB\n573KH214\n", NO_FILE, NO_FILE, "", "Barcode: "},
        };
        for (const auto &row : rows) {
            for (int i = 0; i < 4; ++i)
                write("/etc/orvex/"_s + files[i], row[i]);
            GlobalVars::Init();
            QCOMPARE(ProductFlags, row[0].contains("694") ? 207U : 0U);
            const QString says =
                "About...|%1|All rights reserved.|Copyright (C) 2013-2030 Orvex|%2|*OK"_s;
            open("F1"_s, {answer(says.arg(GetAppVersion(), QString::fromLatin1(row[4])), Button::Ok,
                                 look)});
        }

        // Broken into lines, and cut only where three do not do: then the tool tip has it whole.
        const std::pair<QString, bool> longLines[] = {
            {"two words "_s.repeated(20), false},
            {"<b>"_s + QString(1000, u'x'), true},
            {"a\u2028b"_s.repeated(300), true},
        };
        for (const auto &[line, isCut] : longLines) {
            write("/etc/orvex/version"_s, line.toUtf8());
            const auto lookAtLine = [line = line, isCut = isCut](QWidget *dialog) {
                const auto *label = dialog->findChild<QLabel *>("m_lblRootfsVer"_s);
                const QString tip = QTextDocumentFragment::fromHtml(label->toolTip()).toPlainText();
                QString whole = isCut ? tip : label->text();
                QCOMPARE(whole.remove(u'\n'),
                         "Rootfs Version: "_s +
                             QString(line).replace(QChar(0x2028), u' ').trimmed());
                QCOMPARE(label->text().endsWith(QChar(0x2026)), isCut);
                QCOMPARE(tip.isEmpty(), !isCut);
                QVERIFY(label->text().count(u'\n') < 3);
                QVERIFY(label->width() >= label->sizeHint().width() && dialog->width() < 800);
                pressButton(dialog, Button::Ok);
            };
            open("F1"_s, {lookAtLine});
        }
    }

    void clock()
    {
        const QString hardwareClock = "/usr/local/bin/hwclock"_s;
        const QByteArray sound = read(hardwareClock);
        const auto edit = [](QWidget *dialog) {
            auto *editor = dialog->findChild<QDateTimeEdit *>();
            QVERIFY(editor->calendarPopup() && editor->alignment() == Qt::AlignCenter);
            setClock(editor->dateTime().addSecs(5));
            editor->setDateTime(editor->dateTime().addYears(1).addSecs(-7 * 3600));
        };
        const auto sets = [&](Button button, const QString &obstacle, const QString &called,
                              const QString &told, const QString &logged) {
            prepare(obstacle);
            setClock(QDateTime(QDate(2019, 3, 5), QTime(7, 8, 9)));
            const Action act =
                answer("Setting Date Time|2019-03-05 7:08:09|*OK|Cancel"_s, button, edit);
            QCOMPARE(open("clock"_s, {act}, told).section(u' ', 1), logged);
            QCOMPARE(calls(), called);
            QCOMPARE(QFile::exists(CLOCK_SCRIPT),
                     button == Button::Cancel || obstacle == CLOCK_SCRIPT);
        };
        const QString date = "date -s 2020-03-05 00:08:09\n"_s;
        sets(Button::Ok, NOTHING, date + "hwclock -w\n"_s, NOTHING, NOTHING);
        sets(Button::Cancel, NOTHING, NOTHING, NOTHING, NOTHING);
        sets(Button::Ok, CLOCK_SCRIPT, NOTHING, NOTHING,
             "void DialogMain::lblDateTime_mouseDoubleClicked() Copying calclock.sh failed."_s);
        sets(Button::Ok, hardwareClock, date, "critical|Error|Setting date time failed.|*OK"_s,
             NOTHING);
        write(hardwareClock, sound);
    }

    void typedClock()
    {
        // Behind a > all is selected first; a + pastes.
        QGuiApplication::clipboard()->setText("2027-03-15 08:30:59"_s);
        const QString rows[][2] = {
            {"2027-03-15 8:30:59"_s, "2027-03-15 08:30:59"_s}, // as it is shown
            {">2027-03-15 08:30:59"_s, "2027-03-15 08:30:59"_s},
            {"20270315083059"_s, "2027-03-15 08:30:59"_s},
            {">2027-2-3 4:5:6"_s, "2027-02-03 04:05:06"_s},
            {"2027/2/3 4.5.6"_s, "2027-02-03 04:05:06"_s},
            {"+"_s, "2027-03-15 08:30:59"_s},
            {"2027--15"_s, "2027-01-15 23:10:20"_s}, // the month stays
        };
        for (const auto &[typed, set] : rows) {
            setClock(QDateTime(QDate(2026, 1, 31), QTime(23, 10, 20)));
            open("clock"_s, {[text = typed](QWidget *dialog) {
                     for (const QChar key : text) {
                         if (key == u'>' || key == u'+')
                             QTest::keyClick(dialog->focusWidget(),
                                             key == u'+' ? Qt::Key_V : Qt::Key_A,
                                             Qt::ControlModifier);
                         else
                             QTest::keyClick(dialog->focusWidget(), key.toLatin1());
                     }
                     QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
                 }});
            QCOMPARE(calls(), "date -s %1\nhwclock -w\n"_s.arg(set));
        }
    }

    void fan()
    {
        const QString conf = "/etc/fand.conf"_s;
        const auto changes = [&](const QByteArray &before, int lower, int upper,
                                 const QString &typed, const QByteArray &after) {
            write(conf, before);
            const auto enter = [=](QWidget *dialog) {
                for (const QChar key : typed)
                    QTest::keyClicks(dialog->focusWidget(), key);
                if (after.isNull())
                    write(conf, NO_FILE);
            };
            const QString says = "Parameter Input Dialog|Temperature Lower Threshold:|%1|"
                                 "Temperature Upper Threshold:|%2|*OK|Cancel"_s;
            const QString told = "information|Information|Parameters have been changed, "
                                 "reboot to take effect.|*OK"_s;
            const bool isKept = before == after;
            const auto button = isKept ? Button::Cancel : Button::Ok;
            open("Fan Setting"_s, {answer(says.arg(lower).arg(upper), button, enter)},
                 isKept ? NOTHING : told);
            QCOMPARE(read(conf), after);
        };
        const QByteArray lower = "temp_threshold_lower=";
        const QByteArray upper = "temp_threshold_upper=";
        changes("# Degrees\ntemp_threshold_lower = 95\n\nother=1\n", 90, 1, "80\t70"_s,
                "# Degrees\n" + lower + "80\n\nother=1\n" + upper + "70");
        changes(upper + "4294967295\n" + lower + "0x3c", 1, 100, NOTHING,
                upper + "100\n" + lower + "1");
        changes(lower + "7 \n\n", 7, 1, "9\t9"_s, lower + "7 \n\n");
        // Told although it cannot be saved any more; then there is nothing to show.
        changes(lower + "5", 5, 1, NOTHING, NO_FILE);
        open("Fan Setting"_s, {});
    }

    void preference()
    {
        const QDir autostart("/etc/xdg/autostart"_s);
        const QStringList both{"vexastd.desktop"_s, "vxotp.desktop"_s};
        const QByteArray set = "[Preference]\nAutoStartApp=";
        // Finds the application of that number chosen, and chooses the other.
        const auto changes = [&](const QByteArray &before, int chosen, Button button,
                                 const QString &obstacle) {
            for (const QString &name : both) {
                QFile::remove(autostart.filePath(name));
                QFile::link("/usr/share/applications/"_s + name, autostart.filePath(name));
            }
            prepare(obstacle);
            const QTemporaryDir directory; // the toolkit knows the settings of the last one
            GlobalVars::APP_PATH = directory.path() + u'/';
            const QString ini = directory.filePath("ui.ini"_s);
            write(ini, before);
            const bool isRun = button == Button::Ok && obstacle != BOOT_SCRIPT;
            const bool isDone = isRun && obstacle.isEmpty();
            const int other = 1 - chosen;
            const auto click = [=](QWidget *dialog) {
                const auto choices = dialog->findChildren<QRadioButton *>();
                QCOMPARE(dialog->focusWidget(), choices[chosen]);
                choices[other]->click();
            };
            const QString says = "Preference|Auto Start Application|%1|*OK|Cancel"_s.arg(
                chosen ? "vexastd|*vxotp"_s : "*vexastd|vxotp"_s);
            const QString told = "critical|Error|Setting auto boot application failed.|*OK"_s;
            QCOMPARE(open("Preference"_s, {answer(says, button, click)},
                          isRun && !isDone ? told : NOTHING),
                     obstacle == BOOT_SCRIPT ? "C Copying autobootapp.sh failed."_s : NOTHING);
            QCOMPARE(autostart.entryList(QDir::Files | QDir::System, QDir::Name),
                     isDone ? QStringList(both[other]) : both);
            QCOMPARE(read(ini), isDone ? set + QByteArray::number(other) + '\n' : before);
            QCOMPARE(QFile::exists(CLOCK_SCRIPT), !isRun);
            QCOMPARE(read(BOOT_SCRIPT).startsWith("#!/bin/sh"), isRun);
        };
        changes(NO_FILE, 0, Button::Ok, NOTHING);
        changes(set + "2\n", 1, Button::Ok, NOTHING);
        changes(set + "vxotp\n", 0, Button::Cancel, NOTHING);
        changes("AutoStartApp=1\n", 0, Button::Cancel, NOTHING);
        changes(set + "1\n", 1, Button::Ok, autostart.filePath(both[0]));
        changes(set + "1\n", 1, Button::Ok, BOOT_SCRIPT);

        // Done, but not remembered.
        prepare(NOTHING);
        GlobalVars::APP_PATH = "/proc/"_s;
        const QString says = "Preference|Auto Start Application|*vexastd|vxotp|*OK|Cancel"_s;
        QCOMPARE(open("Preference"_s, {answer(says, Button::Ok)}),
                 "C Writing /proc/ui.ini failed."_s);
    }

    void gamma()
    {
        const QString key = "%1 virtual void DialogMain::keyPressEvent(QKeyEvent*) %2"_s;
        const auto enter = [&](const QString &proposal, const QString &typed, Button button,
                               const QString &told = NOTHING) {
            const auto type = [=](QWidget *dialog) {
                QTest::keyClicks(dialog->focusWidget(), typed);
            };
            const QString says = "Dialog|Gamma:|%1|*OK|Cancel"_s.arg(proposal);
            return open("F10"_s, {answer(says, button, type)}, told);
        };
        const auto tables = [](float gamma) {
            const GammaCurve curve = gammaCurve(gamma);
            QString numbers = "gamma 1"_s;
            for (const std::int32_t number : curve.constk)
                numbers += u' ' + QString::number(number);
            for (const std::int32_t number : curve.slopek)
                numbers += u' ' + QString::number(number);
            return numbers + u'\n';
        };
        QCOMPARE(enter("1.0"_s, "2.25"_s, Button::Ok), key.arg(106).arg("2.25"_s));
        QCOMPARE(calls(), tables(2.25F));
        QCOMPARE(enter("2.3"_s, "3"_s, Button::Cancel), NOTHING);
        QCOMPARE(calls(), NOTHING);

        const int descriptor = ::dup(0); // the next that is free
        ::close(descriptor);
        const LogCapture log;
        QVERIFY(FbDevice::Instance()->OpenDevice(FbDevice::DEV_NAME));
        QVERIFY(FbDevice::Instance()->GetVarScreenInfo());
        QCOMPARE(log.texts("fbdevice"_s).join(u'|'),
                 "D xres 1920|D yres 1080|D xres_virturl 1920|D yres_virtual 1080|D xoffset 0|"
                 "D yoffset 0|D bits_per_pixel 32|D grayscale 0"_s);
        ::close(descriptor); // so that closing fails as well
        QCOMPARE(enter("2.3"_s, "-1.5"_s, Button::Ok),
                 key.arg(106).arg("-1.5|C Ioctl MXCFB_SET_GAMMA fail! Bad file descriptor|"_s) +
                     key.arg(111).arg("Setting gamma failed.|C Close file error. "_s) +
                     "Bad file descriptor"_s);
        FbDevice::ReleaseInstance();

        // What is no number closes the dialog as accepted, with 0.
        QString proposal = "-1.5"_s;
        for (const QString &word : {"abc"_s, "\b"_s, "2,2"_s, "1e39"_s}) {
            QCOMPARE(enter(proposal, word, Button::Ok, "critical||Error|*OK"_s),
                     key.arg(106).arg(0));
            QCOMPARE(calls(), tables(0.0F));
            proposal = "0.0"_s;
        }
        QCOMPARE(enter(proposal, "inf"_s, Button::Ok), key.arg(106).arg("inf"_s));
    }

    void upgrades()
    {
        // An upgrader that takes its time is not waited for.
        const QString upgrader = "/usr/local/bin/upgrader"_s;
        write(upgrader, read(upgrader) + "sleep 5\ntouch /tmp/gone\n");
        const QString app = "Upgrade Application"_s;
        const QString rows[][4] = {
            {"Upgrade File System"_s, "579 void DialogMain::startUpgraderFs()"_s, "file system"_s,
             "fs fs_patches tore7malvin2ek+"_s},
            {"F12"_s, "555 void DialogMain::startUpgraderSelf()"_s, "self"_s,
             "app moniconf moniconf"_s},
            {app, "567 void DialogMain::startUpgraderApp(bool)"_s, "vexastd"_s,
             "vexa_standard /home/root vexastd"_s},
            {app, "571 void DialogMain::startUpgraderApp(bool)"_s, "vxotp"_s,
             "vexa_otp /home/root vxotp"_s},
        };
        for (const auto &[what, function, name, called] : rows) {
            const Actions actions(what == app ? 1 : 0, choice(app, name));
            QCOMPARE(open(what, actions), "%1 Starting upgrader %2..."_s.arg(function, name));
            QVERIFY(!QFile::exists("/tmp/gone"_s));
            QTRY_COMPARE(calls(), "upgrader %1\n"_s.arg(called));
        }
        QCOMPARE(open(app, {choice(app, NOTHING)}), NOTHING);
        write(upgrader, NO_FILE); // which nobody is told
        open("F12"_s, {});
    }

    void factoryReset()
    {
        const QDir home("/home/root"_s);
        const QStringList otp{"vexa_otp/filemanager.ini"_s, "vexa_otp/vxotp.ini"_s};
        const QStringList standard{"vexa_standard/filemanager.ini"_s,
                                   "vexa_standard/usersensor.ini"_s, "vexa_standard/vexaapp.ini"_s};
        const QStringList others{"vexa_otp/x.ini"_s, "vexa_standard/x.ini"_s};
        const auto removes = [&](const QStringList &removed, Button button, Actions then,
                                 const QString &missing = NOTHING) {
            for (const QString &file : otp + standard + others)
                write(home.filePath(file), file == missing ? NO_FILE : "x");
            const QString says = "question|Query|Are sure to factory reset?|&Yes|*&No"_s;
            then.insert(then.begin(), answer(says, button));
            open("Factory Reset"_s, then);
            for (const QString &file : otp + standard + others)
                QVERIFY2(home.exists(file) != removed.contains(file), qPrintable(file));
        };
        const QString title = "Factory Reset"_s;
        removes({}, Button::No, {});
        removes({}, Button::Yes, {choice(title, NOTHING)});
        removes(standard, Button::Yes, {choice(title, "vexastd"_s)});
        removes(standard, Button::Yes, {choice(title, "vexastd"_s)}, standard.last());
        removes(otp, Button::Yes, {choice(title, "vxotp"_s)});
    }
};

QTEST_MAIN(TestMaintenanceDialogs)
#include "tst_maintenancedialogs.moc"
