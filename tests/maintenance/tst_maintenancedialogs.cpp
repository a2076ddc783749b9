// SPDX-License-Identifier: MIT
// What the main window's menu, keys and clock open, on the box's own files: runs inside the
// simulated box only, on a product with the OTP application.
#include "app/dialogmain.h"
#include "app/globalvars.h"
#include "app/startup.h"
#include "display/fbdevice.h"
#include "maintenance/dialogclock.h"
#include "maintenance/identity/appversion.h"
#include "tests/support/box.h"
#include "tests/support/logcapture.h"
#include "tests/support/modal.h"
#include "tests/support/setclock.h"

#include <memory>
#include <unistd.h>

using box::read;
using box::write;

namespace {

const QByteArray NO_FILE;

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

// The kind, title and text of a message; or the title of a dialog, and what it offers to choose
// from, or what its fields hold and the labels that are not the form's own say.
QString shown(QWidget *dialog)
{
    const char *const kinds[] = {"", "information ", "warning ", "critical ", "question "};
    if (const auto *box = qobject_cast<QMessageBox *>(dialog))
        return QLatin1String(kinds[box->icon()]) + box->windowTitle() + ": "_s + box->text();
    if (const auto *choice = qobject_cast<QInputDialog *>(dialog))
        return choice->windowTitle() + ": "_s + choice->comboBoxItems().join(u' ');
    const QRegularExpression filled("^(m_)?lbl"_s);
    QStringList fields;
    for (const auto *part : dialog->findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(part);
        if (part->isVisible() &&
            (part->inherits("QLineEdit") || part->property("checked").toBool()))
            fields << part->property("text").toString();
        else if (label && label->isVisible() && label->objectName().contains(filled))
            fields << (label->property("pixmap").value<QPixmap>().isNull() ? whole(*label)
                                                                           : "picture"_s);
    }
    return dialog->windowTitle() + ": "_s + fields.join(", "_s);
}

// Links both applications and leaves an old copy of one script, and for the other a link that leads
// nowhere.
void prepare()
{
    QCOMPARE(std::system("set -e; cd /etc/xdg/autostart; rm -rf /tmp/*.sh v*; "
                         "ln -s /usr/share/applications/v* .; "
                         "echo old >/tmp/calclock.sh; ln -s nowhere /tmp/autobootapp.sh"),
             0);
}

// Types into what has the focus. A word with a capital is the name of a key, or Click or
// DoubleClick for the dialog's field.
void press(QWidget *dialog, const QString &keys)
{
    for (const QString &word : keys.simplified().split(u' ')) {
        QVERIFY2(dialog->isVisible(), "keys for a dialog that has been answered");
        if (word == "Click"_s)
            QTest::mouseClick(dialog->findChild<QLineEdit *>(), Qt::LeftButton);
        else if (word == "DoubleClick"_s)
            QTest::mouseDClick(dialog->findChild<QLineEdit *>(), Qt::LeftButton);
        else if (word.at(0).isUpper())
            QTest::keySequence(dialog->focusWidget(), word);
        else
            QTest::keyClicks(dialog->focusWidget(), word);
    }
}

} // namespace

class TestMaintenanceDialogs : public QObject
{
    Q_OBJECT

    std::unique_ptr<DialogMain> m_window;

    // Double-clicks on the clock, presses a function key, or chooses an entry of the menu. The
    // dialogs that come are answered with one list of keys each, such as "7 Tab 9 Return|Return".
    // A command can be run while the first is open.
    // Gives in their order what the dialogs show, the window's log and critical messages.
    QByteArray open(const QByteArray &what, const QByteArray &keys,
                    const QByteArray &meanwhile = "")
    {
        std::vector<ModalAnswers::Action> actions;
        for (const QByteArray &answer : keys.isEmpty() ? QByteArrayList() : keys.split('|')) {
            actions.emplace_back([=](QWidget *dialog) {
                qInfo().noquote() << shown(dialog);
                QCOMPARE(std::system(meanwhile), 0);
                setClock(QDateTime::currentDateTime().addSecs(5));
                press(dialog, QString::fromLatin1(answer));
            });
        }
        box::forgetCalls();
        const ModalAnswers answers(actions);
        const LogCapture log;
        for (QAction *entry : m_window->findChildren<QAction *>()) {
            if (entry->isVisible() && entry->text() == QLatin1String(what))
                entry->trigger();
        }
        if (what == "clock")
            QTest::mouseDClick(m_window->findChild<QLabel *>("m_lblDateTime"_s), Qt::LeftButton);
        else if (what.startsWith("F1"))
            QTest::keySequence(m_window.get(), QString::fromLatin1(what));
        QStringList seen;
        for (const auto &[type, line, file, function, text] : log.messages()) {
            const QString place = type == QtDebugMsg ? QString::number(line) + u' ' : QString();
            if (type == QtInfoMsg)
                seen << text;
            else if (type == QtCriticalMsg || file == "dialogmain"_s)
                seen << place + function + ": "_s + text;
        }
        return seen.join(u'|').toUtf8();
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
        const QByteArray words = "two words " + QByteArray("and more ").repeated(16) + "end";
        const QByteArray tag = "<b>" + QByteArray(1000, 'x');
        const QByteArray separated = QByteArray("a\u2028").repeated(600) + "b";
        const QByteArray spaced = QByteArray("a ").repeated(600) + "b";
        const QByteArray rows[][5] = {
            // barcode.txt, version, /etc/version, patches_version.txt, and what is shown of them
            {"O\r\n\r\nB\r\n694KH214\r\n", "\n 2.0.1 \n3.0\n", "1.9", "p1\n p2 \n\n",
             "Barcode: 694KH214, Rootfs Version: 2.0.1, Rootfs Patch: p2"},
            {NO_FILE, NO_FILE, "1.9\n", NO_FILE, "Barcode: , Rootfs Version: 1.9"},
            {"O\nB\n527AB0x1\n", "\n\n", "1.9", "p1\n  ", "Barcode: 527AB0x1, Rootfs Patch: "},
            {"O\n \nB\n573KH214\n", words, NO_FILE, tag,
             "Barcode: , Rootfs Version: " + words + ", Rootfs Patch: " + tag},
            {NO_FILE, separated, NO_FILE, "", "Barcode: , Rootfs Version: " + spaced},
        };
        for (const auto &[barcode, version, otherVersion, patches, says] : rows) {
            write("/etc/orvex/barcode.txt"_s, barcode);
            write("/etc/orvex/version"_s, version);
            write("/etc/version"_s, otherVersion);
            write("/etc/orvex/patches_version.txt"_s, patches);
            GlobalVars::Init();
            QCOMPARE(ProductFlags, barcode.contains("694") ? 207U : 0U);
            QCOMPARE(open("F1", "Return"),
                     "About...: picture, " + GetAppVersion().toUtf8() +
                         ", All rights reserved., Copyright (C) 2013-2030 Orvex, " + says);
        }
    }

    void clock()
    {
        const QByteArray both = read("://calclock.sh"_s) + read("://autobootapp.sh"_s);
        QCOMPARE(QCryptographicHash::hash(both, QCryptographicHash::Sha1).toHex(),
                 QByteArray("a689a66b5dee148d7d5bd486829ff790f9e7ac86"));
        const QByteArray rows[][4] = {
            // The keys, what is in the way; then the date that is set, and what is told or logged.
            {"Home Shift+End 20270315083059 Return", "", "2027-03-15 08:30:59", ""},
            {"Ctrl+A 2027 Return", "", "2026-01-31 23:10:20", ""},
            {"2026-0 Backspace Backspace Backspace 7-3 Return", "", "2027-03-31 23:10:20", ""},
            {"Tab Tab Tab Tab 8 Up Tab 7 Return", "", "2026-01-31 23:09:07", ""},
            {"2027 End 08 Tab Shift+Tab End 07 Return", "", "2027-01-31 23:10:07", ""},
            {"End Left Delete Return", "", "2026-01-31 23:10:20", ""},
            {"Escape", "", "", ""},
            {"Return", "rm -f /tmp/calclock.sh; mkdir -p /tmp/calclock.sh/x", "",
             "|void DialogMain::lblDateTime_mouseDoubleClicked(): Copying calclock.sh failed."},
            {"Return|Return", "echo exit 1 >>/usr/local/bin/hwclock", "2026-01-31 23:10:20",
             "|critical Error: Setting date time failed."},
        };
        for (const auto &[keys, obstacle, date, says] : rows) {
            prepare();
            setClock(QDateTime(QDate(2026, 1, 31), QTime(23, 10, 20)));
            QCOMPARE(open("clock", keys, obstacle),
                     "Setting Date Time: 2026-01-31 23:10:20" + says);
            QCOMPARE(box::calls().toUtf8(),
                     date.isEmpty() ? date : "date -s " + date + "\nhwclock -w\n");
            // The old copy stays when nothing is run.
            QCOMPARE(QFile::exists("/tmp/calclock.sh"_s), date.isEmpty());
        }
    }

    // However one comes to the editor, it ends on the date that is typed or pasted, or on the one
    // before. It takes each date that is pasted, and those that are typed from the year on.
    void clockEditor()
    {
        const auto list = [](const char *texts) { return QString::fromLatin1(texts).split(u'|'); };
        const QStringList fromYear = list("Tab|Tab Home|Tab Ctrl+A|Tab Home Shift+End|"
                                          "Tab End Shift+Home|Click Shift+Home|DoubleClick Click");
        const QStringList elsewhere = list("Click|DoubleClick|Tab End|Tab Right|Click Shift+End");
        const QStringList dates = list("2033-01-02 03:04:05|2033-1-2t3:4:5|2033/1/2 3.4.5\n");
        const QStringList noDates = list("hello|2033-13-02 03:04:05|2033-02-29 03:04:05|"
                                         "2033-01-02 24:04:05|2033-01-02 03:04:055|"
                                         "203-01-02 03:04:05|1033-01-02 03:04:05");
        const QString before = "2026-01-31 23:10:20"_s;
        DialogClock dialog(nullptr);
        QWidget *const cancel = dialog.findChildren<QPushButton *>().last();
        dialog.show();
        QTRY_VERIFY(dialog.isActiveWindow());
        for (const QString &way : fromYear + elsewhere) {
            for (const QString &erasing : list("| Delete| Backspace| Ctrl+X")) {
                for (const QString &text : dates + noDates) {
                    const QString typed = QString(text).replace(u' ', " Space "_s);
                    for (const QString &keys : {typed, "Ctrl+V"_s}) {
                        dialog.SetDateTime(QDateTime::fromString(before, "yyyy-MM-dd H:mm:ss"_s));
                        cancel->setFocus();
                        press(&dialog, way + erasing);
                        QGuiApplication::clipboard()->setText(text);
                        press(&dialog, keys);
                        cancel->setFocus();
                        const QString after = dialog.findChild<QLineEdit *>()->text();
                        const QString date = dates.contains(text) ? "2033-01-02 3:04:05"_s : before;
                        const bool mayStay = keys == typed && elsewhere.contains(way);
                        QVERIFY2(after == date || (mayStay && after == before),
                                 qPrintable(way + erasing + u' ' + text + " gives "_s + after));
                    }
                }
            }
        }
    }

    void fan()
    {
        const QByteArray lower = "temp_threshold_lower=";
        const QByteArray upper = "temp_threshold_upper=";
        const QByteArray told = "|information Information: "
                                "Parameters have been changed, reboot to take effect.";
        const QByteArray rows[][5] = {
            // The file, the keys, a command meanwhile; then what is shown, and the file.
            {"# Degrees\n" + lower + "95\n\nother=1\n", "80 Tab 70 Return|Return", "",
             "90, 1" + told, "# Degrees\n" + lower + "80\n\nother=1\n" + upper + "70"},
            {upper + "4294967295\n" + lower + "0x3c", "Return|Return", "", "1, 100" + told,
             upper + "100\n" + lower + "1"},
            {lower + "7 \n\n", "9 Tab 9 Tab Tab Space", "", "7, 1", lower + "7 \n\n"},
            {lower + "5", "Return|Return", "rm -f /etc/fand.conf",
             "5, 1|bool ConfFile::saveFromStringList(const QStringList&): File does not exist..." +
                 told,
             NO_FILE},
        };
        for (const auto &[before, keys, meanwhile, says, after] : rows) {
            write("/etc/fand.conf"_s, before);
            QCOMPARE(open("Fan Setting", keys, meanwhile), "Parameter Input Dialog: " + says);
            QCOMPARE(read("/etc/fand.conf"_s), after);
        }
        open("Fan Setting", ""); // without the file
    }

    void preference()
    {
        const QByteArray links = "vexastd.desktop vxotp.desktop";
        const QByteArray set = "[Preference]\nAutoStartApp=";
        const QByteArray failed = "|critical Error: Setting auto boot application failed.";
        const QByteArray logged = "|void DialogPreference::buttonBox_clicked(QAbstractButton*): "
                                  "Copying autobootapp.sh failed.";
        const QByteArray rows[][6] = {
            // ui.ini, the keys, what is in the way; then what is shown, the links and ui.ini
            {NO_FILE, "Right Return", "", "vexastd", "vxotp.desktop", set + "1\n"},
            {set + "2\n", "Left Return", "", "vxotp", "vexastd.desktop", set + "0\n"},
            {set + "x\n", "Right Tab Tab Space", "", "vexastd", links, set + "x\n"},
            {set + "1\n", "Left Return|Return",
             "cd /etc/xdg/autostart; rm vexastd*; touch vexastd.desktop", "vxotp" + failed, links,
             set + "1\n"},
            {set + "1\n", "Left Return", "rm /tmp/auto*; mkdir -p /tmp/autobootapp.sh/x",
             "vxotp" + logged, links, set + "1\n"},
        };
        for (const auto &[before, keys, obstacle, says, linksAfter, after] : rows) {
            prepare();
            const QTemporaryDir directory; // the toolkit knows the settings of the last one
            GlobalVars::APP_PATH = directory.path() + u'/';
            write(directory.filePath("ui.ini"_s), before);
            QCOMPARE(open("Preference", keys, obstacle), "Preference: " + says);
            QCOMPARE(QDir("/etc/xdg/autostart"_s).entryList(QDir::Files | QDir::System).join(u' '),
                     QString::fromLatin1(linksAfter));
            QCOMPARE(read(directory.filePath("ui.ini"_s)), after);
            // A run leaves its own copy and removes the clock's.
            const bool isRun = keys.endsWith("Return") && !says.endsWith(logged);
            QCOMPARE(QFile::exists("/tmp/calclock.sh"_s), !isRun);
            QCOMPARE(read("/tmp/autobootapp.sh"_s).startsWith("#!/bin/sh"), isRun);
        }

        // Done, but not remembered.
        prepare();
        GlobalVars::APP_PATH = "/proc/"_s;
        QCOMPARE(open("Preference", "Return"),
                 QByteArray("Preference: vexastd|void DialogPreference::SavePreference(): "
                            "Writing /proc/ui.ini failed."));
    }

    void gamma()
    {
        const QByteArray key = "virtual void DialogMain::keyPressEvent(QKeyEvent*): ";
        const QByteArray nonsense = "|critical : Error|106 " + key + "0";
        const QByteArray zero = "gamma 1" + QByteArray(" 0").repeated(32) + "\n";
        const QByteArray rows[][3] = {
            // The keys; then what is shown and logged, and what is set.
            {"2.25 Return", "1.0|106 " + key + "2.25",
             "gamma 1 0 511 511 509 501 29 80 115 141 161 179 194 208 221 233 244 "
             "0 16 16 24 40 51 35 26 20 18 15 14 13 12 11 11\n"},
            {"3 Tab Tab Space", "2.3", ""},
            {"2,2 Return|Return", "2.3" + nonsense, zero},
            {"1e39 Return|Return", "0.0" + nonsense, zero},
        };
        for (const auto &[keys, says, set] : rows) {
            QCOMPARE(open("F10", keys), "Dialog: " + says);
            QCOMPARE(box::calls().toUtf8(), set);
        }

        const int descriptor = ::dup(0); // the next that is free
        ::close(descriptor);
        FbDevice *const device = FbDevice::Instance();
        const LogCapture log;
        QVERIFY(device->CloseDevice());
        QVERIFY(!device->OpenDevice("/nowhere/%1"_s));
        QVERIFY(device->OpenDevice("/dev/fb0"_s));
        QVERIFY(device->GetVarScreenInfo());
        ::close(descriptor); // so that closing fails as well
        QVERIFY(!device->GetVarScreenInfo());
        QCOMPARE(log.texts("fbdevice"_s).join(u'|'),
                 "C Error opening \"/nowhere/%1\". |"
                 "D xres 1920|D yres 1080|D xres_virturl 1920|D yres_virtual 1080|D xoffset 0|"
                 "D yoffset 0|D bits_per_pixel 32|D grayscale 0|"
                 "C Ioctl FBIOGET_VSCREENINFO fail! Bad file descriptor"_s);
        QCOMPARE(open("F10", "-1.5 Return"),
                 "Dialog: 0.0|106 " + key +
                     "-1.5|bool FbDevice::SetGamma(float): "
                     "Ioctl MXCFB_SET_GAMMA fail! Bad file descriptor|" +
                     key +
                     "Setting gamma failed.|bool FbDevice::CloseDevice(): "
                     "Close file error. Bad file descriptor");
        FbDevice::ReleaseInstance();
        QCOMPARE(open("F10", "Escape"), QByteArray("Dialog: -1.5"));
    }

    void upgrades()
    {
        // An upgrader that takes its time is not waited for.
        const QString upgrader = "/usr/local/bin/upgrader"_s;
        write(upgrader, read(upgrader) + "sleep 5\ntouch /tmp/gone\n");
        const QByteArray app = "Upgrade Application";
        const QByteArray choice = app + ": vexastd vxotp|";
        const QByteArray rows[][4] = {
            // What is chosen, and from the list; then what is shown and logged, and what is run.
            {"Upgrade File System", "",
             "579 void DialogMain::startUpgraderFs(): Starting upgrader file system...",
             "upgrader fs fs_patches tore7malvin2ek+\n"},
            {"F12", "", "555 void DialogMain::startUpgraderSelf(): Starting upgrader self...",
             "upgrader app moniconf moniconf\n"},
            {app, "Return",
             choice + "567 void DialogMain::startUpgraderApp(bool): Starting upgrader vexastd...",
             "upgrader vexa_standard /home/root vexastd\n"},
            {app, "Down Return",
             choice + "571 void DialogMain::startUpgraderApp(bool): Starting upgrader vxotp...",
             "upgrader vexa_otp /home/root vxotp\n"},
        };
        for (const auto &[what, keys, says, run] : rows) {
            QCOMPARE(open(what, keys), says);
            QVERIFY(!QFile::exists("/tmp/gone"_s));
            QTRY_COMPARE(box::calls().toUtf8(), run);
        }
        write(upgrader, NO_FILE); // which nobody is told
        open("F12", "");
    }

    // On a product without the OTP application, whose settings can be left all the same.
    void factoryReset()
    {
        write("/etc/orvex/barcode.txt"_s, "O\nB\n463AB001");
        m_window = std::make_unique<DialogMain>();
        QStringList entries;
        for (const QAction *entry : m_window->findChild<QMenu *>()->actions())
            entries << (entry->isVisible() ? entry->text() : "hidden"_s);
        QCOMPARE(entries.join(", "_s),
                 "Upgrade Application, Upgrade File System, hidden, Factory Reset, Fan Setting"_s);
        QCOMPARE(open("Upgrade Application", "Escape"), QByteArray("Upgrade Application: vexastd"));
        const QByteArray offered = "|Factory Reset: vexastd vxotp";
        const QByteArray standard = "vexa_standard/vexaapp.ini vexa_standard/usersensor.ini "
                                    "vexa_standard/filemanager.ini";
        const QByteArray otp = "vexa_otp/vxotp.ini vexa_otp/filemanager.ini";
        const QByteArray all = standard + " " + otp + " vexa_standard/x.ini vexa_otp/x.ini";
        const QByteArray rows[][4] = {
            // The answers, a file that is missing; then what is shown, and what goes.
            {"Return", "", "", ""}, // No is proposed
            {"Alt+Y|Escape", "", offered, ""},
            {"Alt+Y|Return", "", offered, standard},
            {"Alt+Y|Return", "vexa_standard/vexaapp.ini", offered, standard},
            {"Alt+Y|Down Return", "", offered, otp},
        };
        for (const auto &[keys, missing, says, removed] : rows) {
            for (const QByteArray &file : all.split(' '))
                write("/home/root/"_s + QLatin1String(file), file == missing ? NO_FILE : "x");
            QCOMPARE(open("Factory Reset", keys),
                     "question Query: Are sure to factory reset?" + says);
            for (const QByteArray &file : all.split(' '))
                QVERIFY2(read("/home/root/"_s + QLatin1String(file)).isNull() ==
                             removed.contains(file),
                         file);
        }
    }
};

QTEST_MAIN(TestMaintenanceDialogs)
#include "tst_maintenancedialogs.moc"
