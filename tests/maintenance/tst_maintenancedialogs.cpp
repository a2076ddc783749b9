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

const QByteArray NO_FILE;
const QString NOTHING;

// What a label says, from its tool tip where three lines cannot hold it.
QString whole(const QLabel &label)
{
    const bool isCut = label.text().endsWith(QChar(0x2026));
    const bool fits = label.width() >= label.sizeHint().width() && label.text().count(u'\n') < 3;
    QTextDocument tip;
    tip.setHtml(label.toolTip());
    const QString text = isCut ? tip.toPlainText() : label.text() + tip.toPlainText();
    return fits && isCut == (text.size() > 200) ? QString(text).remove(u'\n') : "badly shown"_s;
}

// The kind, title and text of a message; or the title of a dialog, and what its fields hold and the
// labels that are not the form's own say.
QString shown(QWidget *dialog)
{
    const char *const kinds[] = {"", "information", "warning", "critical", "question"};
    if (const auto *box = qobject_cast<QMessageBox *>(dialog))
        return "%1 %2: %3"_s.arg(QLatin1String(kinds[box->icon()]), box->windowTitle(),
                                 box->text());
    static const QRegularExpression filled("^(m_)?lbl"_s);
    QStringList fields;
    for (const auto *part : dialog->findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(part);
        if (part->inherits("QLineEdit") || part->property("checked").toBool())
            fields << part->property("text").toString();
        else if (label && label->isVisible() && label->objectName().contains(filled))
            fields << (label->property("pixmap").isNull() ? whole(*label) : "picture"_s);
    }
    return dialog->windowTitle() + ": "_s + fields.join(", "_s);
}

// Links both applications and leaves an old copy of each script.
void prepare()
{
    QCOMPARE(std::system("set -e; cd /etc/xdg/autostart; rm -rf /tmp/*.sh v*; "
                         "ln -s /usr/share/applications/v* .; "
                         "echo old | tee /tmp/calclock.sh >/tmp/autobootapp.sh"),
             0);
}

} // namespace

class TestMaintenanceDialogs : public QObject
{
    Q_OBJECT

    std::unique_ptr<DialogMain> m_window;

    // Double-clicks on the clock, presses a function key, or chooses an entry of the menu. The
    // dialogs that come are answered with one list of keys each, such as "7 Tab 9 Return, Return";
    // a word with a capital is the name of a key. A command can be run while the first is open.
    // Gives in their order what the dialogs show, the window's log and critical messages.
    QString open(const QString &what, const QString &keys, const QString &meanwhile = NOTHING)
    {
        std::vector<ModalAnswers::Action> actions;
        for (const QString &answer : keys.split(", "_s, Qt::SkipEmptyParts)) {
            actions.emplace_back([=](QWidget *dialog) {
                qInfo().noquote() << shown(dialog);
                QCOMPARE(std::system(qPrintable(meanwhile)), 0);
                setClock(QDateTime::currentDateTime().addSecs(5));
                for (const QString &word : answer.split(u' ')) {
                    if (word.at(0).isUpper())
                        QTest::keySequence(dialog->focusWidget(), word);
                    else
                        QTest::keyClicks(dialog->focusWidget(), word);
                }
            });
        }
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
        QStringList seen;
        for (const auto &[type, file, line, function, text] : log.messages()) {
            if (type == QtInfoMsg)
                seen << text;
            else if (type == QtCriticalMsg || file == "dialogmain"_s)
                seen << (type == QtDebugMsg ? QString::number(line) + u' ' : NOTHING) + function +
                            ": "_s + text;
        }
        return seen.join(u'|');
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
        const QString words = "two words "_s.repeated(17) + "end"_s;
        const QString tag = "<b>"_s + QString(1000, u'x');
        const QString rows[][5] = {
            // barcode.txt, version, /etc/version, patches_version.txt, and what is shown of them
            {"O\r\n\r\nB\r\n694KH214\r\n"_s, "\n 2.0.1 \n3.0\n"_s, "1.9"_s, "p1\n p2 \n\n"_s,
             "Barcode: 694KH214, Rootfs Version: 2.0.1, Rootfs Patch: p2"_s},
            {NOTHING, NOTHING, "1.9\n"_s, NOTHING, "Barcode: , Rootfs Version: 1.9"_s},
            {"O\nB\n527AB0x1\n"_s, "\n\n"_s, "1.9"_s, "p1\n  "_s,
             "Barcode: 527AB0x1, Rootfs Patch: "_s},
            {"O\n \nB\n573KH214\n"_s, words, NOTHING, tag,
             "Barcode: , Rootfs Version: "_s + words + ", Rootfs Patch: "_s + tag},
            {NOTHING, "a\u2028"_s.repeated(600) + u'b', NOTHING, ""_s,
             "Barcode: , Rootfs Version: "_s + "a "_s.repeated(600) + u'b'},
        };
        const QString files[] = {"/etc/orvex/barcode.txt"_s, "/etc/orvex/version"_s,
                                 "/etc/version"_s, "/etc/orvex/patches_version.txt"_s};
        for (const auto &row : rows) {
            for (int i = 0; i < 4; ++i)
                write(files[i], row[i].isNull() ? NO_FILE : row[i].toUtf8());
            GlobalVars::Init();
            QCOMPARE(ProductFlags, row[0].contains("694"_s) ? 207U : 0U);
            QCOMPARE(
                open("F1"_s, "Return"_s),
                "About...: picture, %1, All rights reserved., Copyright (C) 2013-2030 Orvex, "_s
                        .arg(GetAppVersion()) +
                    row[4]);
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
            {"Return"_s, "rm -f /tmp/calclock.sh; mkdir -p /tmp/calclock.sh/x"_s, NOTHING,
             "|void DialogMain::lblDateTime_mouseDoubleClicked(): Copying calclock.sh failed."_s},
            {"Return, Return"_s, "echo exit 1 >>/usr/local/bin/hwclock"_s, "2026-01-31 23:10:20"_s,
             "|critical Error: Setting date time failed."_s},
        };
        for (const auto &[keys, obstacle, date, says] : rows) {
            prepare();
            setClock(QDateTime(QDate(2026, 1, 31), QTime(23, 10, 20)));
            QCOMPARE(open("clock"_s, keys, obstacle),
                     "Setting Date Time: 2026-01-31 23:10:20"_s + says);
            QCOMPARE(calls(), date.isEmpty() ? NOTHING : "date -s %1\nhwclock -w\n"_s.arg(date));
            // The old copy stays when nothing is run.
            QCOMPARE(QFile::exists("/tmp/calclock.sh"_s), date.isEmpty());
        }
    }

    void fan()
    {
        const QString conf = "/etc/fand.conf"_s;
        const QString told = "|information Information: "
                             "Parameters have been changed, reboot to take effect."_s;
        const std::tuple<QByteArray, QString, QString, QByteArray> rows[] = {
            // the file, the keys, what is shown, and the file afterwards
            {"# Degrees\ntemp_threshold_lower=95\n\nother=1\n", "80 Tab 70 Return, Return"_s,
             "90, 1"_s + told,
             "# Degrees\ntemp_threshold_lower=80\n\nother=1\ntemp_threshold_upper=70"},
            {"temp_threshold_upper=4294967295\ntemp_threshold_lower=0x3c", "Return, Return"_s,
             "1, 100"_s + told, "temp_threshold_upper=100\ntemp_threshold_lower=1"},
            {"temp_threshold_lower=7 \n\n", "9 Tab 9 Tab Tab Space"_s, "7, 1"_s,
             "temp_threshold_lower=7 \n\n"},
        };
        for (const auto &[before, keys, says, after] : rows) {
            write(conf, before);
            QCOMPARE(open("Fan Setting"_s, keys), "Parameter Input Dialog: "_s + says);
            QCOMPARE(read(conf), after);
        }
        // Told although it cannot be saved any more; then there is nothing to show.
        QVERIFY(open("Fan Setting"_s, "Return, Return"_s, "rm -f /etc/fand.conf"_s).endsWith(told));
        open("Fan Setting"_s, NOTHING);
    }

    void preference()
    {
        const QString links = "vexastd.desktop vxotp.desktop"_s;
        const QString set = "[Preference]\nAutoStartApp="_s;
        const QString failed = "|critical Error: Setting auto boot application failed."_s;
        const QString logged = "|void DialogPreference::buttonBox_clicked(QAbstractButton*): "
                               "Copying autobootapp.sh failed."_s;
        const QString rows[][6] = {
            // ui.ini, the keys, what is in the way; then what is shown, the links and ui.ini
            {NOTHING, "Right Return"_s, NOTHING, "vexastd"_s, "vxotp.desktop"_s, set + "1\n"_s},
            {set + "2\n"_s, "Left Return"_s, NOTHING, "vxotp"_s, "vexastd.desktop"_s,
             set + "0\n"_s},
            {set + "x\n"_s, "Right Tab Tab Space"_s, NOTHING, "vexastd"_s, links, set + "x\n"_s},
            {"AutoStartApp=1\n"_s, "Escape"_s, NOTHING, "vexastd"_s, links, "AutoStartApp=1\n"_s},
            {set + "1\n"_s, "Left Return, Return"_s,
             "cd /etc/xdg/autostart; rm vexastd*; touch vexastd.desktop"_s, "vxotp"_s + failed,
             links, set + "1\n"_s},
            {set + "1\n"_s, "Left Return"_s, "rm /tmp/auto*; mkdir -p /tmp/autobootapp.sh/x"_s,
             "vxotp"_s + logged, links, set + "1\n"_s},
        };
        for (const auto &[before, keys, obstacle, says, linksAfter, after] : rows) {
            prepare();
            const QTemporaryDir directory; // the toolkit knows the settings of the last one
            GlobalVars::APP_PATH = directory.path() + u'/';
            const QString ini = directory.filePath("ui.ini"_s);
            write(ini, before.isNull() ? NO_FILE : before.toUtf8());
            QCOMPARE(open("Preference"_s, keys, obstacle), "Preference: "_s + says);
            QCOMPARE(QDir("/etc/xdg/autostart"_s).entryList(QDir::Files | QDir::System).join(u' '),
                     linksAfter);
            QCOMPARE(read(ini), after.toUtf8());
            // A run leaves its own copy and removes the clock's.
            const bool isRun = keys.endsWith("Return"_s) && !says.endsWith(logged);
            QCOMPARE(QFile::exists("/tmp/calclock.sh"_s), !isRun);
            QCOMPARE(read("/tmp/autobootapp.sh"_s).startsWith("#!/bin/sh"), isRun);
        }

        // Done, but not remembered.
        prepare();
        GlobalVars::APP_PATH = "/proc/"_s;
        QCOMPARE(open("Preference"_s, "Return"_s),
                 "Preference: vexastd|"
                 "void DialogPreference::SavePreference(): Writing /proc/ui.ini failed."_s);
    }

    void gamma()
    {
        const QString key = "virtual void DialogMain::keyPressEvent(QKeyEvent*): "_s;
        const QString nonsense = "|critical : Error|106 "_s + key + u'0';
        const QString zero = "gamma 1"_s + " 0"_s.repeated(32) + u'\n';
        const QString rows[][3] = {
            // The keys; then what is shown and logged, and what is set.
            {"2.25 Return"_s, "1.0|106 "_s + key + "2.25"_s,
             "gamma 1 0 511 511 509 501 29 80 115 141 161 179 194 208 221 233 244 "
             "0 16 16 24 40 51 35 26 20 18 15 14 13 12 11 11\n"_s},
            {"3 Tab Tab Space"_s, "2.3"_s, NOTHING},
            {"2,2 Return, Return"_s, "2.3"_s + nonsense, zero},
            {"1e39 Return, Return"_s, "0.0"_s + nonsense, zero},
        };
        for (const auto &[keys, says, set] : rows) {
            QCOMPARE(open("F10"_s, keys), "Dialog: "_s + says);
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
        QCOMPARE(open("F10"_s, "-1.5 Return"_s),
                 "Dialog: 0.0|106 "_s + key +
                     "-1.5|bool FbDevice::SetGamma(float): "
                     "Ioctl MXCFB_SET_GAMMA fail! Bad file descriptor|"_s +
                     key +
                     "Setting gamma failed.|bool FbDevice::CloseDevice(): "
                     "Close file error. Bad file descriptor"_s);
        FbDevice::ReleaseInstance();
        QCOMPARE(open("F10"_s, "Escape"_s), "Dialog: -1.5"_s);
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
             app + ": |567 void DialogMain::startUpgraderApp(bool): Starting upgrader vexastd..."_s,
             "upgrader vexa_standard /home/root vexastd\n"_s},
            {app, "Down Return"_s,
             app + ": |571 void DialogMain::startUpgraderApp(bool): Starting upgrader vxotp..."_s,
             "upgrader vexa_otp /home/root vxotp\n"_s},
            {app, "Escape"_s, app + ": "_s, NOTHING},
        };
        for (const auto &[what, keys, logged, run] : rows) {
            QCOMPARE(open(what, keys), logged);
            QVERIFY(!QFile::exists("/tmp/gone"_s));
            QTRY_COMPARE(calls(), run);
        }
        write(upgrader, NO_FILE); // which nobody is told
        open("F12"_s, NOTHING);
    }

    void factoryReset()
    {
        const QDir home("/home/root"_s);
        const QString standard = "vexa_standard/vexaapp.ini vexa_standard/usersensor.ini "
                                 "vexa_standard/filemanager.ini"_s;
        const QString otp = "vexa_otp/vxotp.ini vexa_otp/filemanager.ini"_s;
        const QStringList files =
            (standard + u' ' + otp + " vexa_standard/x.ini vexa_otp/x.ini"_s).split(u' ');
        const QString rows[][3] = {
            // The answer and the choice, a file that is missing; then what goes.
            {"Return"_s, NOTHING, NOTHING}, // No is proposed
            {"Alt+Y, Escape"_s, NOTHING, NOTHING},
            {"Alt+Y, Return"_s, NOTHING, standard},
            {"Alt+Y, Return"_s, "vexa_standard/vexaapp.ini"_s, standard},
            {"Alt+Y, Down Return"_s, NOTHING, otp},
        };
        for (const auto &[keys, missing, removed] : rows) {
            for (const QString &file : files)
                write(home.filePath(file), file == missing ? NO_FILE : "x");
            QCOMPARE(open("Factory Reset"_s, keys),
                     "question Query: Are sure to factory reset?"_s +
                         (keys == "Return"_s ? NOTHING : "|Factory Reset: "_s));
            for (const QString &file : files)
                QVERIFY2(home.exists(file) != removed.contains(file), qPrintable(file));
        }
    }
};

QTEST_MAIN(TestMaintenanceDialogs)
#include "tst_maintenancedialogs.moc"
