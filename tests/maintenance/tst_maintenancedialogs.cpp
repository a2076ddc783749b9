// SPDX-License-Identifier: MIT
// What the main window's menu, keys and clock open, on the box's own files: runs inside the
// simulated box only, on a product with the OTP application.
#include "app/dialogmain.h"
#include "app/globalvars.h"
#include "app/startup.h"
#include "display/fbdevice.h"
#include "maintenance/identity/appversion.h"
#include "tests/support/box.h"
#include "tests/support/logcapture.h"
#include "tests/support/modal.h"
#include "tests/support/setclock.h"
#include "tests/support/text.h"

#include <memory>
#include <unistd.h>

using box::calls;
using box::read;
using box::write;

namespace {

using Action = ModalAnswers::Action;
const QByteArray NO_FILE;
const QString NOTHING;

// The kind, title and text of a message; or the title of a dialog, and what its fields hold.
QString shown(QWidget *dialog)
{
    const char *const kinds[] = {"", "information", "warning", "critical", "question"};
    if (const auto *box = qobject_cast<QMessageBox *>(dialog))
        return "%1 %2: %3"_s.arg(QLatin1String(kinds[box->icon()]), box->windowTitle(),
                                 box->text());
    QStringList fields;
    for (const auto *part : dialog->findChildren<QWidget *>()) {
        if (part->inherits("QLineEdit") || part->property("checked").toBool())
            fields << part->property("text").toString();
    }
    return dialog->windowTitle() + ": "_s + fields.join(u'|');
}

// Presses keys in a dialog; a word with a capital is the name of one.
Action press(const QString &keys, const QString &says)
{
    return [=](QWidget *dialog) {
        QCOMPARE(shown(dialog), says);
        for (const QString &word : keys.split(u' ')) {
            if (word.at(0).isUpper())
                QTest::keySequence(dialog->focusWidget(), word);
            else
                QTest::keyClicks(dialog->focusWidget(), word);
        }
    };
}

// Links both applications and leaves an old copy of each script; then a command puts something in
// the way.
void prepare(const QString &command)
{
    const QString script = "set -e; cd /etc/xdg/autostart; rm -rf /tmp/*.sh v*; "
                           "ln -s /usr/share/applications/v* .; "
                           "echo old | tee /tmp/calclock.sh >/tmp/autobootapp.sh; "_s;
    QCOMPARE(std::system(qPrintable(script + command)), 0);
}

} // namespace

class TestMaintenanceDialogs : public QObject
{
    Q_OBJECT

    std::unique_ptr<DialogMain> m_window;

    // Double-clicks on the clock, presses a function key, or chooses an entry of the menu; then
    // each action answers a dialog, and what is told at the end is confirmed. Gives the window's
    // messages with line and function, and in between the others' critical ones with function.
    QString open(const QString &what, std::vector<Action> actions, const QString &told = NOTHING)
    {
        if (!told.isEmpty())
            actions.push_back(press("Return"_s, told));
        box::forgetCalls();
        const ModalAnswers answers(actions, 5000);
        const LogCapture log;
        for (QAction *entry : m_window->findChildren<QAction *>()) {
            if (entry->isVisible() && entry->text() == what)
                entry->trigger();
        }
        if (what == "clock"_s)
            QTest::mouseDClick(m_window->findChild<QLabel *>("m_lblDateTime"_s), Qt::LeftButton);
        else if (what.startsWith(u'F') && what.at(1).isDigit())
            QTest::keySequence(m_window.get(), what);
        QStringList logged;
        for (const LogCapture::Message &message : log.messages()) {
            const bool isWindows = message.file == "dialogmain"_s;
            const QString line = isWindows ? QString::number(message.line) + u' ' : NOTHING;
            if (isWindows || message.type == QtCriticalMsg)
                logged << line + message.function + ": "_s + message.text;
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

    void about()
    {
        installApplicationFont("/usr/share/fonts/ttf/msyh.ttf"_s, 9);
        installApplicationFont("/nowhere"_s, 10);
        QCOMPARE(QApplication::font(), QFont("WenQuanYi Micro Hei"_s, 9));
        setClock(QDateTime(QDate(2030, 5, 4), QTime(3, 2, 1)));
        const QByteArray words = "two words " + QByteArray("and more ").repeated(15) + "end";
        const QByteArray tag = "<b>" + QByteArray(1000, 'x');
        const QByteArray separator = "\u2028";
        const QByteArray rows[][5] = {
            // barcode.txt, version, /etc/version, patches_version.txt, and what is shown of them
            {"O\r\n\r\nB\r\n694KH214\r\n", "\n 2.0.1 \n3.0\n", "1.9", "p1\n p2 \n\n",
             "Barcode: 694KH214|Rootfs Version: 2.0.1|Rootfs Patch: p2"},
            {NO_FILE, NO_FILE, "1.9\n", NO_FILE, "Barcode: |Rootfs Version: 1.9"},
            {"O\nB\n527AB0x1\n", "\n\n", "1.9", "p1\n  ", "Barcode: 527AB0x1|Rootfs Patch: "},
            {"O\n \nB\n573KH214\n", words, NO_FILE, tag,
             "Barcode: |Rootfs Version: " + words + "|Rootfs Patch: " + tag},
            {NO_FILE, ("a" + separator).repeated(600) + "b", NO_FILE, "",
             "Barcode: |Rootfs Version: " + QByteArray("a ").repeated(600) + "b"},
        };
        for (const auto &[barcode, version, otherVersion, patches, says] : rows) {
            write("/etc/orvex/barcode.txt"_s, barcode);
            write("/etc/orvex/version"_s, version);
            write("/etc/version"_s, otherVersion);
            write("/etc/orvex/patches_version.txt"_s, patches);
            GlobalVars::Init();
            QCOMPARE(ProductFlags, barcode.contains("694") ? 207U : 0U);
            QStringList texts;
            open("F1"_s, {[&](QWidget *dialog) {
                     for (const auto *label : dialog->findChildren<QLabel *>()) {
                         const QString text = label->text();
                         const QString tip = label->toolTip();
                         // Only what three lines do not hold is cut, and stands whole in the tip.
                         QCOMPARE(text.endsWith(QChar(0x2026)), !tip.isEmpty());
                         QVERIFY(text.count(u'\n') < 3 && tip.isEmpty() == (text.size() < 180));
                         QVERIFY(label->width() >= label->sizeHint().width());
                         const QString whole =
                             tip.isEmpty() ? text
                                           : QTextDocumentFragment::fromHtml(tip).toPlainText();
                         if (label->isVisible())
                             texts << QString(whole).remove(u'\n');
                     }
                     dialog->close();
                 }});
            QCOMPARE(texts.join(u'|'), "|%1|All rights reserved.|Copyright (C) 2013-2030 Orvex|%2"_s
                                           .arg(GetAppVersion(), QString::fromLatin1(says)));
        }
    }

    void clock()
    {
        const QByteArray both = read("://calclock.sh"_s) + read("://autobootapp.sh"_s);
        QCOMPARE(QCryptographicHash::hash(both, QCryptographicHash::Sha1).toHex(),
                 QByteArray("a689a66b5dee148d7d5bd486829ff790f9e7ac86"));
        QGuiApplication::clipboard()->setText("2027-03-15 08:30:59"_s);
        const QString rows[][4] = {
            // The keys, what is in the way; then the date that is set, and what is told or logged.
            {"Return"_s, NOTHING, "2026-01-31 23:10:20"_s, NOTHING},
            {"2027-03-15 Space 8:30:59 Return"_s, NOTHING, "2027-03-15 08:30:59"_s, NOTHING},
            {"Ctrl+A 2027-03-15 Space 08:30:59 Return"_s, NOTHING, "2027-03-15 08:30:59"_s,
             NOTHING},
            {"20270315083059 Return"_s, NOTHING, "2027-03-15 08:30:59"_s, NOTHING},
            {"Ctrl+A 2027-2-3 Space 4:5:6 Return"_s, NOTHING, "2027-02-03 04:05:06"_s, NOTHING},
            {"2027/2/3 Space 4.5.6 Return"_s, NOTHING, "2027-02-03 04:05:06"_s, NOTHING},
            {"Ctrl+V Return"_s, NOTHING, "2027-03-15 08:30:59"_s, NOTHING},
            {"2027--15 Return"_s, NOTHING, "2027-01-15 23:10:20"_s, NOTHING}, // the month stays
            {"Escape"_s, NOTHING, NOTHING, NOTHING},
            {"Return"_s, "rm /tmp/calclock.sh; mkdir -p /tmp/calclock.sh/x"_s, NOTHING,
             "void DialogMain::lblDateTime_mouseDoubleClicked(): Copying calclock.sh failed."_s},
            {"Return"_s, "echo exit 1 >>/usr/local/bin/hwclock"_s, "2026-01-31 23:10:20"_s,
             "critical Error: Setting date time failed."_s},
        };
        for (const auto &[keys, obstacle, date, says] : rows) {
            prepare(obstacle);
            const QDateTime opened(QDate(2026, 1, 31), QTime(23, 10, 20));
            setClock(opened);
            const Action answer = press(keys, "Setting Date Time: 2026-01-31 23:10:20"_s);
            const Action answerLater = [&](QWidget *dialog) {
                setClock(opened.addSecs(5));
                answer(dialog);
            };
            const bool isTold = says.startsWith("critical"_s);
            QCOMPARE(open("clock"_s, {answerLater}, isTold ? says : NOTHING).section(u' ', 1),
                     isTold ? NOTHING : says);
            QCOMPARE(calls(), date.isEmpty() ? NOTHING : "date -s %1\nhwclock -w\n"_s.arg(date));
            // The old copy stays when nothing is run.
            QCOMPARE(QFile::exists("/tmp/calclock.sh"_s), date.isEmpty());
        }
    }

    void fan()
    {
        const QString conf = "/etc/fand.conf"_s;
        const char *const rows[][4] = {
            // the file, what is shown of it, the keys, and the file afterwards
            {"# Degrees\ntemp_threshold_lower=95\n\nother=1\n", "90|1", "80 Tab 70 Return",
             "# Degrees\ntemp_threshold_lower=80\n\nother=1\ntemp_threshold_upper=70"},
            {"temp_threshold_upper=4294967295\ntemp_threshold_lower=0x3c", "1|100", "Return",
             "temp_threshold_upper=100\ntemp_threshold_lower=1"},
            {"temp_threshold_lower=7 \n\n", "7|1", "9 Tab 9 Escape", "temp_threshold_lower=7 \n\n"},
            {"temp_threshold_lower=5", "5|1", "Return", nullptr}, // goes meanwhile
        };
        for (const auto &[before, shown, keys, after] : rows) {
            write(conf, before);
            const Action answer =
                press(QLatin1String(keys), "Parameter Input Dialog: "_s + QLatin1String(shown));
            const Action answerInTime = [&, after = after](QWidget *dialog) {
                if (!after)
                    write(conf, NO_FILE);
                answer(dialog);
            };
            const bool isTold = QByteArray(keys).endsWith("Return");
            open("Fan Setting"_s, {answerInTime},
                 isTold ? "information Information: "
                          "Parameters have been changed, reboot to take effect."_s
                        : NOTHING);
            QCOMPARE(read(conf), QByteArray(after));
        }
        open("Fan Setting"_s, {}); // without the file
    }

    void preference()
    {
        const QDir autostart("/etc/xdg/autostart"_s);
        const QString links = "vexastd.desktop vxotp.desktop"_s;
        const QString set = "[Preference]\nAutoStartApp="_s;
        const QString told = "critical Error: Setting auto boot application failed."_s;
        const QString logged = "void DialogPreference::buttonBox_clicked(QAbstractButton*): "
                               "Copying autobootapp.sh failed."_s;
        const QString rows[][7] = {
            // ui.ini, the choice shown, keys, what is in the way; then what is told or logged, the
            // links and ui.ini
            {NOTHING, "vexastd"_s, "Right Return"_s, NOTHING, NOTHING, "vxotp.desktop"_s,
             set + "1\n"_s},
            {set + "2\n"_s, "vxotp"_s, "Left Return"_s, NOTHING, NOTHING, "vexastd.desktop"_s,
             set + "0\n"_s},
            {set + "vxotp\n"_s, "vexastd"_s, "Right Escape"_s, NOTHING, NOTHING, links,
             set + "vxotp\n"_s},
            {"AutoStartApp=1\n"_s, "vexastd"_s, "Escape"_s, NOTHING, NOTHING, links,
             "AutoStartApp=1\n"_s},
            {set + "1\n"_s, "vxotp"_s, "Left Return"_s, "rm vexastd*; touch vexastd.desktop"_s,
             told, links, set + "1\n"_s},
            {set + "1\n"_s, "vxotp"_s, "Left Return"_s,
             "rm /tmp/auto*; mkdir -p /tmp/autobootapp.sh/x"_s, logged, links, set + "1\n"_s},
        };
        for (const auto &[before, choice, keys, obstacle, says, linksAfter, after] : rows) {
            prepare(obstacle);
            const QTemporaryDir directory; // the toolkit knows the settings of the last one
            GlobalVars::APP_PATH = directory.path() + u'/';
            const QString ini = directory.filePath("ui.ini"_s);
            write(ini, before.isNull() ? NO_FILE : before.toUtf8());
            QCOMPARE(open("Preference"_s, {press(keys, "Preference: "_s + choice)},
                          says == told ? told : NOTHING),
                     says == logged ? logged : NOTHING);
            QCOMPARE(autostart.entryList(QDir::Files | QDir::System, QDir::Name).join(u' '),
                     linksAfter);
            QCOMPARE(read(ini), after.toUtf8());
            // A run leaves its own copy and removes the clock's.
            const bool isRun = keys.endsWith("Return"_s) && says != logged;
            QCOMPARE(QFile::exists("/tmp/calclock.sh"_s), !isRun);
            QCOMPARE(read("/tmp/autobootapp.sh"_s).startsWith("#!/bin/sh"), isRun);
        }

        // Done, but not remembered.
        prepare(NOTHING);
        GlobalVars::APP_PATH = "/proc/"_s;
        QCOMPARE(open("Preference"_s, {press("Return"_s, "Preference: vexastd"_s)}),
                 "void DialogPreference::SavePreference(): Writing /proc/ui.ini failed."_s);
    }

    void gamma()
    {
        const QString key = "%1 virtual void DialogMain::keyPressEvent(QKeyEvent*): %2"_s;
        const QString error = "critical : Error"_s;
        const QString zero = "gamma 1"_s + " 0"_s.repeated(32) + u'\n';
        const QString rows[][5] = {
            // What is proposed, the keys; then what is told, logged and set.
            {"1.0"_s, "2.25 Return"_s, NOTHING, "2.25"_s,
             "gamma 1 0 511 511 509 501 29 80 115 141 161 179 194 208 221 233 244 "
             "0 16 16 24 40 51 35 26 20 18 15 14 13 12 11 11\n"_s},
            {"2.3"_s, "3 Escape"_s, NOTHING, NOTHING, NOTHING},
            {"2.3"_s, "2,2 Return"_s, error, "0"_s, zero},
            {"0.0"_s, "1e39 Return"_s, error, "0"_s, zero},
        };
        for (const auto &[proposal, keys, told, logged, set] : rows) {
            QCOMPARE(open("F10"_s, {press(keys, "Dialog: "_s + proposal)}, told),
                     logged.isEmpty() ? NOTHING : key.arg(106).arg(logged));
            QCOMPARE(calls(), set);
        }

        const int descriptor = ::dup(0); // the next that is free
        ::close(descriptor);
        const LogCapture log;
        QVERIFY(FbDevice::Instance()->OpenDevice("/dev/fb0"_s));
        QVERIFY(FbDevice::Instance()->GetVarScreenInfo());
        QCOMPARE(log.texts("fbdevice"_s).join(u'|'),
                 "D xres 1920|D yres 1080|D xres_virturl 1920|D yres_virtual 1080|D xoffset 0|"
                 "D yoffset 0|D bits_per_pixel 32|D grayscale 0"_s);
        ::close(descriptor); // so that closing fails as well
        QCOMPARE(open("F10"_s, {press("-1.5 Return"_s, "Dialog: 0.0"_s)}),
                 key.arg(106).arg("-1.5|bool FbDevice::SetGamma(float): "
                                  "Ioctl MXCFB_SET_GAMMA fail! Bad file descriptor|"_s) +
                     key.arg(111).arg("Setting gamma failed.|bool FbDevice::CloseDevice(): "
                                      "Close file error. Bad file descriptor"_s));
        FbDevice::ReleaseInstance();
        open("F10"_s, {press("Escape"_s, "Dialog: -1.5"_s)});
    }

    void upgrades()
    {
        // An upgrader that takes its time is not waited for.
        const QString upgrader = "/usr/local/bin/upgrader"_s;
        write(upgrader, read(upgrader) + "sleep 5\ntouch /tmp/gone\n");
        const QString app = "Upgrade Application"_s;
        const QString rows[][4] = {
            // What is chosen, and from the list; then what is logged and run.
            {"Upgrade File System"_s, NOTHING,
             "579 void DialogMain::startUpgraderFs(): Starting upgrader file system..."_s,
             "upgrader fs fs_patches tore7malvin2ek+\n"_s},
            {"F12"_s, NOTHING,
             "555 void DialogMain::startUpgraderSelf(): Starting upgrader self..."_s,
             "upgrader app moniconf moniconf\n"_s},
            {app, "Return"_s,
             "567 void DialogMain::startUpgraderApp(bool): Starting upgrader vexastd..."_s,
             "upgrader vexa_standard /home/root vexastd\n"_s},
            {app, "Down Return"_s,
             "571 void DialogMain::startUpgraderApp(bool): Starting upgrader vxotp..."_s,
             "upgrader vexa_otp /home/root vxotp\n"_s},
            {app, "Escape"_s, NOTHING, NOTHING},
        };
        for (const auto &[what, keys, logged, run] : rows) {
            const std::vector<Action> actions(keys.isEmpty() ? 0 : 1, press(keys, what + ": "_s));
            QCOMPARE(open(what, actions), logged);
            QVERIFY(!QFile::exists("/tmp/gone"_s));
            QTRY_COMPARE(calls(), run);
        }
        write(upgrader, NO_FILE); // which nobody is told
        open("F12"_s, {});
    }

    void factoryReset()
    {
        const QDir home("/home/root"_s);
        const QString standard = "vexa_standard/vexaapp.ini vexa_standard/usersensor.ini "
                                 "vexa_standard/filemanager.ini"_s;
        const QString otp = "vexa_otp/vxotp.ini vexa_otp/filemanager.ini"_s;
        const QStringList files =
            (standard + u' ' + otp + " vexa_standard/x.ini vexa_otp/x.ini"_s).split(u' ');
        const QString rows[][4] = {
            // The answer to the question, the choice, a file that is missing; then what goes.
            {"Return"_s, NOTHING, NOTHING, NOTHING}, // No is proposed
            {"Alt+Y"_s, "Escape"_s, NOTHING, NOTHING},
            {"Alt+Y"_s, "Return"_s, NOTHING, standard},
            {"Alt+Y"_s, "Return"_s, "vexa_standard/vexaapp.ini"_s, standard},
            {"Alt+Y"_s, "Down Return"_s, NOTHING, otp},
        };
        for (const auto &[answer, choice, missing, removed] : rows) {
            for (const QString &file : files)
                write(home.filePath(file), file == missing ? NO_FILE : "x");
            std::vector<Action> actions{
                press(answer, "question Query: Are sure to factory reset?"_s)};
            if (!choice.isEmpty())
                actions.push_back(press(choice, "Factory Reset: "_s));
            open("Factory Reset"_s, actions);
            for (const QString &file : files)
                QVERIFY2(home.exists(file) != removed.contains(file), qPrintable(file));
        }
    }
};

QTEST_MAIN(TestMaintenanceDialogs)
#include "tst_maintenancedialogs.moc"
