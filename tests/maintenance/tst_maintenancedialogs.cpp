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

#include <QtWidgets>

#include <memory>

using box::calls;
using box::read;
using box::write;

namespace {

using Actions = std::vector<ModalAnswers::Action>;
using Button = QDialogButtonBox::StandardButton;
constexpr Button OK = QDialogButtonBox::Ok;
constexpr Button CANCEL = QDialogButtonBox::Cancel;
const QByteArray NO_FILE;

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

const QString BARCODE = "/etc/orvex/barcode.txt"_s;
const QString NOTHING;

// What a dialog says: the kind of a message, the title, and the text of each visible part, that of
// a chosen radio button with a mark.
QString shown(QWidget *dialog)
{
    const char *const kinds[] = {"", "information", "warning", "critical", "question"};
    QStringList result{dialog->windowTitle()};
    if (const auto *box = qobject_cast<QMessageBox *>(dialog))
        result.prepend(QLatin1String(kinds[box->icon()]));
    for (const auto *part : dialog->findChildren<QWidget *>()) {
        QString text = part->property(part->inherits("QGroupBox") ? "title" : "text").toString();
        if (const auto *list = qobject_cast<const QComboBox *>(part)) {
            text = (list->isEditable() ? "?"_s : ""_s) + QString::number(list->currentIndex());
            for (int i = 0; i < list->count(); ++i)
                text += u' ' + list->itemText(i);
        }
        if (!text.isEmpty() && part->isVisible() && !part->parent()->inherits("QAbstractSpinBox"))
            result << (part->property("checked").toBool() ? u'*' + text : text);
    }
    return result.join(u'|');
}

ModalAnswers::Action answer(
    const QString &says, Button button,
    const std::function<void(QWidget *)> &look = [](QWidget *) {})
{
    return [=](QWidget *dialog) {
        QCOMPARE(shown(dialog), says);
        look(dialog);
        pressButton(dialog, button);
    };
}

// Takes an application from a list; an empty name cancels.
ModalAnswers::Action choice(const QString &title, const QString &application,
                            const QString &offered = "vexastd vxotp"_s)
{
    return answer("%1|Please select application|0 %2|OK|Cancel"_s.arg(title, offered),
                  application.isEmpty() ? CANCEL : OK, [application](QWidget *dialog) {
                      dialog->findChild<QComboBox *>()->setCurrentText(application);
                  });
}

// Puts something in the way: a directory where a script is copied to, a program that fails, or a
// file where a link was.
void block(const QString &path)
{
    if (path.endsWith(".sh"_s))
        QVERIFY(QFile::remove(path) && QDir().mkpath(path + "/x"_s));
    else if (QFileInfo(path).isSymLink())
        QVERIFY(QFile::remove(path));
    if (!path.isEmpty() && !QFileInfo(path).isDir())
        write(path, "#!/bin/sh\nexit 1\n");
}

} // namespace

class TestMaintenanceDialogs : public QObject
{
    Q_OBJECT

    std::unique_ptr<DialogMain> m_window;

    // Presses a function key, double-clicks on the clock, or chooses an entry of the menu. Gives
    // the log: line, function and text of the window's messages, then the others'.
    QString open(const QString &what, const Actions &actions)
    {
        box::forgetCalls();
        const ModalAnswers answers(actions, 5000);
        const LogCapture log;
        const int key = Qt::Key_F1 + what.mid(1).toInt() - 1;
        QAction *entry = nullptr;
        for (QAction *action : m_window->findChildren<QAction *>())
            entry = action->isVisible() && action->text() == what ? action : entry;
        if (entry)
            entry->trigger();
        else if (what == "clock"_s)
            QTest::mouseDClick(m_window->findChild<QLabel *>("m_lblDateTime"_s), Qt::LeftButton);
        else
            QTest::keyClick(m_window.get(), Qt::Key(key));
        QStringList logged;
        for (const LogCapture::Message &message : log.messages()) {
            if (message.file == "dialogmain"_s)
                logged << "%1 %2 %3"_s.arg(QString::number(message.line), message.function,
                                           message.text);
        }
        return (logged + log.texts("fbdevice"_s) + log.texts("dialogpreference"_s)).join(u'|');
    }

private slots:
    void init()
    {
        if (!QFile::exists("/run/simbox/hdmi"_s))
            QFAIL("not in the simulated box");
        m_window = std::make_unique<DialogMain>();
    }

    void scripts()
    {
        const auto sha1 = [](const QString &name) {
            return QCryptographicHash::hash(read(name), QCryptographicHash::Sha1).toHex();
        };
        QCOMPARE(sha1("://calclock.sh"_s), QByteArray("bb5ff0810ac0bde7d464f8304816755f5fcf87a3"));
        QCOMPARE(sha1("://autobootapp.sh"_s),
                 QByteArray("1bf6ba42aff078ab6ae27aa7ddbe3523b5428628"));
    }

    void font()
    {
        installApplicationFont("/usr/share/fonts/ttf/msyh.ttf"_s, 9);
        installApplicationFont("/nowhere"_s, 10);
        QCOMPARE(QApplication::font(), QFont("WenQuanYi Micro Hei"_s, 9));
    }

    void about()
    {
        const QByteArray barcodeBefore = read(BARCODE);
        setClock(QDateTime(QDate(2030, 5, 4), QTime(3, 2, 1)));
        const auto shows = [&](const QByteArray &barcode, const QByteArray &own,
                               const QByteArray &system, const QByteArray &patches,
                               const QString &labels) {
            write(BARCODE, barcode);
            write("/etc/orvex/version"_s, own);
            write("/etc/version"_s, system);
            write("/etc/orvex/patches_version.txt"_s, patches);
            GlobalVars::Init();
            QCOMPARE(ProductFlags, barcode.contains("694") ? 207U : 0U);
            const QString says =
                "About...|%1|All rights reserved.|Copyright (C) 2013-2030 Orvex|%2|OK"_s;
            open("F1"_s, {answer(says.arg(GetAppVersion(), labels), OK, [](QWidget *dialog) {
                     const auto *logo = dialog->findChild<QLabel *>("lblLogo"_s);
                     QVERIFY(!logo->property("pixmap").value<QPixmap>().isNull());
                     QVERIFY(dialog->findChild<QLabel *>("lblVersion"_s)->font().bold());
                 })});
        };
        shows("O\r\n\r\nB\r\n694KH214\r\n", "\n 2.0.1 \n3.0\n", "1.9", "p1\n p2 \n\n",
              "Barcode: 694KH214|Rootfs Version: 2.0.1|Rootfs Patch: p2"_s);
        shows(NO_FILE, NO_FILE, "1.9\n", NO_FILE, "Barcode: |Rootfs Version: 1.9"_s);
        shows("O\nB\n527AB0x1\n", "\n\n", "1.9", "p1\n  ", "Barcode: 527AB0x1|Rootfs Patch: "_s);
        shows("O\n \nB\n573KH214\n", NO_FILE, NO_FILE, "", "Barcode: "_s);
        write(BARCODE, barcodeBefore);
    }

    void clock()
    {
        const QString script = "/tmp/calclock.sh"_s;
        const QString hardwareClock = "/usr/local/bin/hwclock"_s;
        const QByteArray standIn = read(hardwareClock);
        const auto sets = [&](Button button, const QString &obstacle, const QString &called,
                              const QString &logged) {
            write(script, "stale");
            block(obstacle);
            setClock(QDateTime(QDate(2019, 3, 5), QTime(7, 8, 9)));
            const QString says = "Setting Date Time|2019-03-05 7:08:09|OK|Cancel"_s;
            const bool isEdited = obstacle == hardwareClock;
            Actions actions{answer(says, button, [isEdited](QWidget *dialog) {
                auto *editor = dialog->findChild<QDateTimeEdit *>();
                QVERIFY(editor->calendarPopup() && editor->alignment() == Qt::AlignCenter);
                setClock(editor->dateTime().addSecs(5));
                if (isEdited)
                    editor->setDateTime(editor->dateTime().addYears(1).addSecs(-7 * 3600));
            })};
            if (isEdited)
                actions.push_back(answer("critical|Error|Setting date time failed.|OK"_s, OK));
            QCOMPARE(open("clock"_s, actions).section(u' ', 1), logged);
            QCOMPARE(calls(), called);
            QCOMPARE(QFile::exists(script), button == CANCEL || obstacle == script);
            QDir(script).removeRecursively();
            write(hardwareClock, standIn);
        };
        sets(OK, NOTHING, "date -s 2019-03-05 07:08:09\nhwclock -w\n"_s, NOTHING);
        sets(CANCEL, NOTHING, NOTHING, NOTHING);
        sets(OK, hardwareClock, "date -s 2020-03-05 00:08:09\n"_s, NOTHING);
        sets(OK, script, NOTHING,
             "void DialogMain::lblDateTime_mouseDoubleClicked() Copying calclock.sh failed."_s);
    }

    void fan()
    {
        const QString conf = "/etc/fand.conf"_s;
        const auto changes = [&](const QByteArray &before, const QString &shows,
                                 const QString &entered, const QByteArray &after) {
            write(conf, before);
            const bool isCancelled = before == after;
            const QString says = "Parameter Input Dialog|Temperature Lower Threshold:|%1|"
                                 "Temperature Upper Threshold:|%2|OK|Cancel"_s;
            const auto enter = [=](QWidget *dialog) {
                QTest::keyClicks(dialog->focusWidget(), entered.section(u' ', 0, 0));
                QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
                QTest::keyClicks(dialog->focusWidget(), entered.section(u' ', 1));
                if (after.isNull())
                    write(conf, NO_FILE);
            };
            Actions actions{answer(says.arg(shows.section(u' ', 0, 0), shows.section(u' ', 1)),
                                   isCancelled ? CANCEL : OK, enter)};
            if (!isCancelled)
                actions.push_back(answer("information|Information|Parameters have been changed, "
                                         "reboot to take effect.|OK"_s,
                                         OK));
            open("Fan Setting"_s, actions);
            QCOMPARE(read(conf), after);
        };
        const QByteArray lower = "temp_threshold_lower=";
        const QByteArray upper = "temp_threshold_upper=";
        changes(lower + "60\n" + upper + "75\n", "60 75"_s, NOTHING, lower + "60\n" + upper + "75");
        changes("# Degrees\ntemp_threshold_lower = 95\n\nother=1\n", "90 1"_s, "80 70"_s,
                "# Degrees\n" + lower + "80\n\nother=1\n" + upper + "70");
        changes(upper + "4294967295\n" + lower + "0x3c", "1 100"_s, NOTHING,
                upper + "100\n" + lower + "1");
        changes(lower + "7 \n\n", "7 1"_s, "9 9"_s, lower + "7 \n\n");
        // Told although it cannot be saved any more; then there is nothing to show.
        changes(lower + "5", "5 1"_s, NOTHING, NO_FILE);
        open("Fan Setting"_s, {});
    }

    void preference()
    {
        const QDir autostart("/etc/xdg/autostart"_s);
        const QStringList both{"vexastd.desktop"_s, "vxotp.desktop"_s};
        const QString script = "/tmp/autobootapp.sh"_s;
        const QString clockScript = "/tmp/calclock.sh"_s;
        // Finds one application chosen and chooses the other.
        const auto changes = [&](const QByteArray &before, bool isOtp, Button button,
                                 const QString &obstacle, const QStringList &links,
                                 const QByteArray &after) {
            for (const QString &name : both) {
                QFile::remove(autostart.filePath(name));
                QFile::link("/usr/share/applications/"_s + name, autostart.filePath(name));
            }
            QFile::remove(script); // of the last run, and not to be written to
            for (const QString &stale : {script, clockScript})
                write(stale, "stale");
            block(obstacle);
            const QTemporaryDir directory; // the toolkit knows the settings of the last one
            GlobalVars::APP_PATH = directory.path() + u'/';
            const QString ini = directory.filePath("ui.ini"_s);
            write(ini, before);
            const bool isRun = button == OK && obstacle != script;
            const QString says = isOtp ? "vexastd|*vxotp"_s : "*vexastd|vxotp"_s;
            const auto click = [isOtp](QWidget *dialog) {
                dialog->findChildren<QRadioButton *>()[isOtp ? 0 : 1]->click();
            };
            Actions actions{answer("Preference|Auto Start Application|%1|OK|Cancel"_s.arg(says),
                                   button, click)};
            if (isRun && !obstacle.isEmpty())
                actions.push_back(
                    answer("critical|Error|Setting auto boot application failed.|OK"_s, OK));
            QCOMPARE(open("Preference"_s, actions),
                     obstacle == script ? "C Copying autobootapp.sh failed."_s : NOTHING);
            QCOMPARE(autostart.entryList(QDir::Files | QDir::System, QDir::Name), links);
            QCOMPARE(read(ini), after);
            QCOMPARE(QFile::exists(clockScript), !isRun);
            QCOMPARE(read(script).startsWith("#!/bin/sh"), isRun);
            QDir(script).removeRecursively();
        };
        const QByteArray set = "[Preference]\nAutoStartApp=";
        changes(NO_FILE, false, OK, NOTHING, {both[1]}, set + "1\n");
        changes(set + "2\n", true, OK, NOTHING, {both[0]}, set + "0\n");
        changes(set + "vxotp\n", false, CANCEL, NOTHING, both, set + "vxotp\n");
        changes("AutoStartApp=1\n", false, CANCEL, NOTHING, both, "AutoStartApp=1\n");
        changes(set + "1\n", true, OK, autostart.filePath(both[0]), both, set + "1\n");
        changes(set + "1\n", true, OK, script, both, set + "1\n");
    }

    void gamma()
    {
        const QString driver = qEnvironmentVariable("UMOCKDEV_DIR") + "/ioctl/dev/fb0"_s;
        const QString key = "%1 virtual void DialogMain::keyPressEvent(QKeyEvent*) %2"_s;
        const auto enter = [&](const QString &proposal, const QString &typed, Button button,
                               const Actions &then = {}) {
            const auto type = [typed](QWidget *dialog) {
                QTest::keyClicks(dialog->focusWidget(), typed);
            };
            Actions actions{answer("Dialog|Gamma:|%1|OK|Cancel"_s.arg(proposal), button, type)};
            actions.insert(actions.end(), then.begin(), then.end());
            return open("F10"_s, actions);
        };
        const auto tables = [](float gamma) {
            const GammaCurve curve = gammaCurve(gamma);
            QString numbers = "gamma 1"_s;
            for (const auto &table : {curve.constk, curve.slopek}) {
                for (int i = 0; i < GAMMA_SEGMENTS; ++i)
                    numbers += u' ' + QString::number(table[i]);
            }
            return numbers + u'\n';
        };
        QCOMPARE(enter("1.0"_s, "2.25"_s, OK), key.arg(106).arg("2.25"_s));
        QCOMPARE(calls(), tables(2.25F));
        QCOMPARE(enter("2.3"_s, "3"_s, CANCEL), NOTHING);
        QCOMPARE(calls(), NOTHING);
        QVERIFY(QFile::rename(driver, driver + u'~'));
        QCOMPARE(enter("2.3"_s, "-1.5"_s, OK),
                 key.arg(106).arg("-1.5|"_s) + key.arg(111).arg("Setting gamma failed."_s) +
                     "|C Ioctl MXCFB_SET_GAMMA fail! Inappropriate ioctl for device"_s);
        QVERIFY(QFile::rename(driver + u'~', driver));

        // What is no number closes the dialog as accepted, with 0.
        QString proposal = "-1.5"_s;
        for (const QString &word : {"abc"_s, "\b"_s, "2,2"_s, "1e39"_s}) {
            QCOMPARE(enter(proposal, word, OK, {answer("critical||Error|OK"_s, OK)}),
                     key.arg(106).arg(0));
            QCOMPARE(calls(), tables(0.0F));
            proposal = "0.0"_s;
        }
        QCOMPARE(enter(proposal, "inf"_s, OK), key.arg(106).arg("inf"_s));

        const LogCapture log;
        QVERIFY(FbDevice::Instance()->OpenDevice(FbDevice::DEV_NAME));
        QVERIFY(FbDevice::Instance()->GetVarScreenInfo());
        FbDevice::ReleaseInstance();
        QCOMPARE(log.texts("fbdevice"_s).join(u'|'),
                 "D xres 1920|D yres 1080|D xres_virturl 1920|D yres_virtual 1080|D xoffset 0|"
                 "D yoffset 0|D bits_per_pixel 32|D grayscale 0"_s);
    }

    void upgrades()
    {
        const auto starts = [&](const QString &what, const Actions &actions, const QString &logged,
                                const QString &called) {
            QCOMPARE(open(what, actions), logged);
            QTRY_COMPARE(calls(), "upgrader %1\n"_s.arg(called));
        };
        // An upgrader that takes its time is not waited for.
        const QString upgrader = "/usr/local/bin/upgrader"_s;
        const QByteArray standIn = read(upgrader);
        write(upgrader, standIn + "for i in 1 2 3 4 5; do [ -e /tmp/go ] || sleep 1; done\n"
                                  "touch /tmp/gone\n");
        starts("Upgrade File System"_s, {},
               "579 void DialogMain::startUpgraderFs() Starting upgrader file system..."_s,
               "fs fs_patches tore7malvin2ek+"_s);
        QVERIFY(!QFile::exists("/tmp/gone"_s));
        write("/tmp/go"_s, "");
        write(upgrader, standIn);
        starts("F12"_s, {}, "555 void DialogMain::startUpgraderSelf() Starting upgrader self..."_s,
               "app moniconf moniconf"_s);
        const QString title = "Upgrade Application"_s;
        const QString logged =
            "%1 void DialogMain::startUpgraderApp(bool) Starting upgrader %2..."_s;
        starts(title, {choice(title, "vexastd"_s)}, logged.arg(567).arg("vexastd"_s),
               "vexa_standard /home/root vexastd"_s);
        starts(title, {choice(title, "vxotp"_s)}, logged.arg(571).arg("vxotp"_s),
               "vexa_otp /home/root vxotp"_s);
        QCOMPARE(open(title, {choice(title, NOTHING)}), NOTHING);

        const QByteArray barcodeBefore = read(BARCODE);
        write(BARCODE, "O\nB\n681AB001");
        m_window = std::make_unique<DialogMain>();
        write(BARCODE, barcodeBefore);
        open(title, {choice(title, NOTHING, "vexastd"_s)});
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
        const QStringList all = otp + standard + others;
        const auto leaves = [&](const QString &missing, QMessageBox::StandardButton pressed,
                                const Actions &then, const QStringList &left) {
            for (const QString &file : all)
                write(home.filePath(file), file == missing ? NO_FILE : "x");
            Actions actions{[pressed](QWidget *dialog) {
                QCOMPARE(shown(dialog), "question|Query|Are sure to factory reset?|&Yes|&No"_s);
                auto *box = qobject_cast<QMessageBox *>(dialog);
                QCOMPARE(box->standardButton(box->defaultButton()), QMessageBox::No);
                box->button(pressed)->click();
            }};
            actions.insert(actions.end(), then.begin(), then.end());
            open("Factory Reset"_s, actions);
            QStringList found;
            std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                         [&home](const QString &file) { return home.exists(file); });
            QCOMPARE(found, left);
        };
        const QString title = "Factory Reset"_s;
        leaves(NOTHING, QMessageBox::No, {}, all);
        leaves(NOTHING, QMessageBox::Yes, {choice(title, NOTHING)}, all);
        leaves(NOTHING, QMessageBox::Yes, {choice(title, "vexastd"_s)}, otp + others);
        leaves(standard.last(), QMessageBox::Yes, {choice(title, "vexastd"_s)}, otp + others);
        leaves(NOTHING, QMessageBox::Yes, {choice(title, "vxotp"_s)}, standard + others);
    }
};

QTEST_MAIN(TestMaintenanceDialogs)
#include "tst_maintenancedialogs.moc"
