// SPDX-License-Identifier: MIT
#define OX_LOG_FILE "dialogmain"
#define OX_LOG_FIXED_POSITIONS 106, 111, 124, 135, 555, 567, 571, 579, 586, 594
#include "app/dialogmain.h"

#include "app/instruction.h"
#include "app/shellprofile.h"
#include "app/shortenedmessage.h"
#include "app/testapplication.h"
#include "display/dialogconfirm.h"
#include "display/dialoggamma.h"
#include "display/fbdevice.h"
#include "display/i2cdevice.h"
#include "display/modetext.h"
#include "display/monitor/edid.h"
#include "display/monitor/edidtransfer.h"
#include "display/monitor/modes.h"
#include "display/screenkeeper.h"
#include "display/vgai2cswitch.h"
#include "libOxUtils/fileio/conffile.h"
#include "libOxUtils/utils/commandline.h"
#include "libOxUtils/utils/log.h"
#include "libOxUtils/utils/utils.h"
#include "libOxUtils/utils/waitcursor.h"
#include "maintenance/dialogabout.h"
#include "maintenance/dialogclock.h"
#include "maintenance/dialogfantempparam.h"
#include "maintenance/dialogpreference.h"
#include "maintenance/embeddedscript.h"
#include "maintenance/fanthresholds.h"
#include "maintenance/identity/productbarcode.h"
#include "ui_dialogmain.h"

#include <QContextMenuEvent>
#include <QDateTime>
#include <QFile>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

#include <cstdlib>
#include <iterator>

namespace {

// The product capability flag of boxes that carry the OTP test application.
constexpr quint32 OTP_APPLICATION_FLAG = 0x08;

constexpr int CLOCK_TICK_MS = 1000;
constexpr int COMMAND_START_MS = 1000;
constexpr int COMMAND_FINISH_MS = 5000;

bool runCommand(const QString &command, QString &output, QString &error)
{
    const WaitCursor waiting;
    return Utils::ExecShellCommand(command, output, error, COMMAND_START_MS, COMMAND_FINISH_MS);
}

QString dateTimeText(const QDateTime &dateTime)
{
    return dateTime.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

bool isSameSize(const DialogMain::T_Resolution &a, const DialogMain::T_Resolution &b)
{
    return a.width == b.width && a.height == b.height;
}

QStringList itemsOf(const std::vector<T_ResolutionEntry> &entries)
{
    QStringList items;
    for (const T_ResolutionEntry &entry : entries)
        items << modeItem(entry.width, entry.height);
    return items;
}

// The box may be switched off right after a change of mode.
void syncFileSystems()
{
    const WaitCursor waiting;
    const int ignored = std::system("sync");
    Q_UNUSED(ignored)
}

bool setScreenGamma(float gamma)
{
    FbDevice *const framebuffer = FbDevice::Instance();
    // Not checked: without an open device the next step fails.
    framebuffer->OpenDevice(FbDevice::DEV_NAME);
    const bool isSet = framebuffer->SetGamma(gamma);
    framebuffer->CloseDevice();
    return isSet;
}

} // namespace

DialogMain::DialogMain(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_DialogMain)
{
    ui->setupUi(this);
    secTimer_timeout();
    m_timer = new QTimer(this);
    createMenu();
    initConnections();
    new ScreenKeeper(this);
    readProductFlags();
    m_actPreference->setVisible(hasOtpApplication());
    listMonitorResolutions();
    m_timer->start(CLOCK_TICK_MS);
    // The form's size is for 96 dots an inch; on a denser screen the list needs more.
    resize(size().expandedTo(sizeHint()));
}

DialogMain::~DialogMain()
{
    delete ui;
}

void DialogMain::createMenu()
{
    m_menu = new QMenu(this);
    m_actUpgradeApp = new QAction(tr("Upgrade Application"), this);
    m_actUpgradeFs = new QAction(tr("Upgrade File System"), this);
    m_actPreference = new QAction(tr("Preference"), this);
    m_actFactoryReset = new QAction(tr("Factory Reset"), this);
    m_actFanSetting = new QAction(tr("Fan Setting"), this);
    m_menu->addActions(
        {m_actUpgradeApp, m_actUpgradeFs, m_actPreference, m_actFactoryReset, m_actFanSetting});
}

void DialogMain::initConnections()
{
    const auto triggered = &QAction::triggered;
    connect(m_actUpgradeApp, triggered, this, &DialogMain::actionUpgradeApp_triggered);
    connect(m_actUpgradeFs, triggered, this, &DialogMain::actionUpgradeFs_triggered);
    connect(m_actPreference, triggered, this, &DialogMain::actionPreference_triggered);
    connect(m_actFactoryReset, triggered, this, &DialogMain::actionFactoryReset_triggered);
    connect(m_actFanSetting, triggered, this, &DialogMain::actionFanSetting_triggered);
    connect(m_timer, &QTimer::timeout, this, &DialogMain::secTimer_timeout);
    connect(ui->m_btnApply, &QPushButton::clicked, this, &DialogMain::btnApply_clicked);
    connect(ui->m_btnOK, &QPushButton::clicked, this, &DialogMain::btnOK_clicked);
    connect(ui->m_btnCancel, &QPushButton::clicked, this, &DialogMain::btnCancel_clicked);
    connect(ui->m_listResolution, &QListWidget::currentTextChanged, this,
            &DialogMain::listResolution_currentTextChanged);
    connect(ui->m_lblDateTime, &MouseLabel::mouseDoubleClicked, this,
            &DialogMain::lblDateTime_mouseDoubleClicked);
    connect(ui->m_chkbListAll, &QCheckBox::clicked, this, &DialogMain::chkbListAll_clicked);
}

void DialogMain::readProductFlags()
{
    // Read from the file a second time: the window answers for its own menu, whatever start-up
    // found.
    m_productFlags = 0;
    ProductBarcode::T_Barcode barcode;
    if (ProductBarcode::ReadBarcode(barcode))
        ProductBarcode::GetTypeFlags(barcode, m_productFlags);
}

bool DialogMain::hasOtpApplication() const
{
    return (m_productFlags & OTP_APPLICATION_FLAG) != 0;
}

void DialogMain::showError(const QString &text)
{
    QMessageBox box(this);
    box.setIcon(QMessageBox::Critical);
    box.setWindowTitle(tr("Error"));
    // The text can be another program's.
    box.setTextFormat(Qt::PlainText);
    box.setText(shortenedMessage(text));
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

void DialogMain::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1)
        DialogAbout(this).exec();
    else if (event->key() == Qt::Key_F12)
        startUpgraderSelf();
    else if (event->key() == Qt::Key_F10)
        adjustGamma(OX_LOG_AT(106), OX_LOG_AT(111));
    else if (event->key() == Qt::Key_E && event->modifiers().testFlag(Qt::ControlModifier))
        promptForInstruction(OX_LOG_AT(124), OX_LOG_AT(135));
    else
        QDialog::keyPressEvent(event);
}

void DialogMain::contextMenuEvent(QContextMenuEvent * /*event*/)
{
    // At the pointer also when the menu key asked for it.
    m_menu->exec(QCursor::pos());
}

void DialogMain::adjustGamma(const oxlog::Site &valueSite, const oxlog::Site &failureSite)
{
    DialogGamma dialog(this);
    dialog.SetGamma(m_gamma);
    if (dialog.exec() != QDialog::Accepted)
        return;

    // The value stays on offer for the next time even if the framebuffer does not take it.
    m_gamma = dialog.GetGamma();
    oxlog::debug(valueSite, QString::number(static_cast<double>(m_gamma)));
    if (!setScreenGamma(m_gamma))
        oxlog::critical(failureSite, QStringLiteral("Setting gamma failed."));
}

void DialogMain::promptForInstruction(const oxlog::Site &loadSite, const oxlog::Site &unknownSite)
{
    const QString typed =
        QInputDialog::getText(this, tr("Please Input Instruction"),
                              tr("The feature is protected by instruction!"), QLineEdit::Password);
    if (typed.isEmpty())
        return;

    // Without the entry the text is not looked at, and nothing is shown.
    ConfFile entry(QStringLiteral("/usr/share/applications/matchbox-terminal.desktop"));
    if (entry.LoadConf())
        followInstruction(typed, entry, unknownSite);
    else
        oxlog::critical(loadSite, QStringLiteral("Loading configure file failed."));
}

void DialogMain::followInstruction(const QString &typed, ConfFile &entry,
                                   const oxlog::Site &unknownSite)
{
    const QString noDisplay = noDisplayForInstruction(typed);
    if (noDisplay.isNull()) {
        //: The misspelling is part of the interface: the English catalogue keeps it.
        showError(tr("Unkown instruction!"));
        oxlog::debug(unknownSite, QStringLiteral("Unkown instruction: '%1'!").arg(typed));
        return;
    }
    entry.SetValue(QStringLiteral("NoDisplay"), noDisplay);
    entry.SaveConf();
}

void DialogMain::actionUpgradeApp_triggered()
{
    //: The name of an application; it stays as it is.
    QStringList applications{tr("vexastd")};
    if (hasOtpApplication()) {
        //: The name of an application; it stays as it is.
        applications << tr("vxotp");
    }
    const QString chosen = askForApplication(tr("Upgrade Application"), applications);
    if (!chosen.isEmpty())
        startUpgraderApp(chosen == tr("vexastd"));
}

void DialogMain::actionUpgradeFs_triggered()
{
    startUpgraderFs();
}

void DialogMain::actionPreference_triggered()
{
    DialogPreference(this).exec();
}

void DialogMain::actionFactoryReset_triggered()
{
    //: The missing word is part of the interface: the English catalogue keeps the text as it is.
    const QString question = tr("Are sure to factory reset?");
    if (QMessageBox::question(this, tr("Query"), question, QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) != QMessageBox::Yes)
        return;

    // Both are on offer whatever the product's flags, unlike for an upgrade; that is intended.
    const QString chosen = askForApplication(tr("Factory Reset"), {tr("vexastd"), tr("vxotp")});
    if (!chosen.isEmpty())
        removeSettings(chosen == tr("vexastd") ? standardApplication() : otpApplication());
}

void DialogMain::actionFanSetting_triggered()
{
    ConfFile conf(QStringLiteral("/etc/fand.conf"));
    if (!conf.LoadConf())
        return;

    int lower = 0;
    int upper = 0;
    readFanThresholds(conf, lower, upper);
    DialogFanTempParam dialog(this);
    dialog.SetThresholds(lower, upper);
    if (dialog.exec() != QDialog::Accepted)
        return;

    dialog.GetThresholds(lower, upper);
    setFanThresholds(conf, lower, upper);
    conf.SaveConf();
    // Shown after every acceptance: the log has the reason when the save failed.
    QMessageBox::information(this, tr("Information"),
                             tr("Parameters have been changed, reboot to take effect."));
}

void DialogMain::secTimer_timeout()
{
    ui->m_lblDateTime->setText(dateTimeText(QDateTime::currentDateTime()));
}

void DialogMain::btnApply_clicked(bool /*checked*/)
{
    T_Resolution wanted;
    if (!parseItem(wanted, selectedItem()) || isSameSize(wanted, m_curResolution))
        return;

    // The new mode comes first and the question after it, so that the user judges what can be seen.
    switchScreenTo(wanted);
    DialogConfirm dialog(this);
    if (dialog.exec() == QDialog::Accepted)
        storeMode(wanted);
    else
        switchScreenTo(m_curResolution);
}

void DialogMain::btnOK_clicked(bool /*checked*/)
{
    btnApply_clicked(false);
    close();
    selectLanguage();
}

void DialogMain::btnCancel_clicked(bool /*checked*/)
{
    close();
}

void DialogMain::listResolution_currentTextChanged(const QString &currentText)
{
    if (currentText.isEmpty())
        return;
    T_Resolution selected;
    if (parseItem(selected, currentText))
        ui->m_btnApply->setEnabled(!isSameSize(selected, m_curResolution));
}

void DialogMain::lblDateTime_mouseDoubleClicked()
{
    // The clock is set to what the dialog shows: the seconds that pass while it is open are lost.
    QDateTime dateTime = QDateTime::currentDateTime();
    DialogClock dialog(this);
    dialog.SetDateTime(dateTime);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.GetDateTime(dateTime);

    const ScriptResult result =
        runEmbeddedScript(QStringLiteral("calclock.sh"), {dateTimeText(dateTime)}, OX_LOG_HERE);
    // A failed copy is told to the log alone, on purpose, and leaves nothing to clear away.
    if (result != ScriptResult::CopyFailed)
        QFile::remove(QStringLiteral("/tmp/calclock.sh"));
    if (result == ScriptResult::RunFailed)
        showError(tr("Setting date time failed."));
}

void DialogMain::chkbListAll_clicked(bool checked)
{
    if (checked)
        listAllResolutions();
    else
        listMonitorResolutions();
}

bool DialogMain::parseItem(T_Resolution &resolution, const QString &item)
{
    const bool isParsed = parseDispInfo2Resolution(resolution, item.simplified());
    if (!isParsed)
        showError(tr("Cannot parse resolution string."));
    return isParsed;
}

bool DialogMain::parseDispInfo2Resolution(T_Resolution &resolution, const QString &text)
{
    resolution.text = text;
    const ModeTextResult result =
        parseModeText(text, resolution.width, resolution.height, resolution.refreshRate);
    if (result != ModeTextResult::NoWidth) {
        oxlog::debug(OX_LOG_HERE, QString::asprintf("%dx%d@%d", static_cast<int>(resolution.width),
                                                    static_cast<int>(resolution.height),
                                                    static_cast<int>(resolution.refreshRate)));
    }
    return result == ModeTextResult::Read;
}

int DialogMain::get_cur_display_info(T_Resolution &resolution)
{
    QString output;
    QString error;
    if (!runCommand(QStringLiteral("fw_printenv -n display"), output, error)) {
        oxlog::critical(OX_LOG_HERE, oxlog::quoted(error));
        return -1;
    }
    return parseDispInfo2Resolution(resolution, output.trimmed()) ? 0 : -1;
}

int DialogMain::readEdid(unsigned char *edid)
{
    I2CDevice device;
    for (const QString &bus : {I2CDevice::VGA_I2C_FILE_NAME, I2CDevice::HDMI_I2C_FILE_NAME}) {
        if (!device.OpenDevice(bus))
            continue;
        const bool valid =
            readEdidBlock(device.Descriptor(), EDID_SLAVE_ADDRESS, edid, EDID_BLOCK_SIZE) == 0 &&
            checkEdidHeader(edid) == 0;
        device.CloseDevice();
        if (valid)
            return 0;
    }
    return -1;
}

int DialogMain::readEdidThroughVgaSwitch(unsigned char *edid)
{
    const VgaI2cSwitch vga;
    return readEdid(edid);
}

void DialogMain::listAllResolutions()
{
    showItems(itemsOf({std::begin(ALL_RESOLUTIONS), std::end(ALL_RESOLUTIONS)}));
}

void DialogMain::listMonitorResolutions()
{
    unsigned char edid[EDID_BLOCK_SIZE] = {};
    T_NativeTiming native;
    if (readEdidThroughVgaSwitch(edid) != 0) {
        showError(tr("Cannot read edid information."));
    } else if (getNativeTiming(edid, native) != 0) {
        showError(tr("Parsing edid information failed."));
    } else {
        const QStringList items = itemsOf(monitorResolutions(native.width, native.height));
        showItems(items);
        selectCurrentResolution(items);
    }
}

void DialogMain::showItems(const QStringList &items)
{
    ui->m_listResolution->clear();
    ui->m_listResolution->insertItems(ui->m_listResolution->count(), items);
}

void DialogMain::selectCurrentResolution(const QStringList &items)
{
    if (get_cur_display_info(m_curResolution) != 0) {
        showError(tr("Getting current display information failed."));
        return;
    }
    const QString current = modeItem(m_curResolution.width, m_curResolution.height);
    ui->m_listResolution->setCurrentRow(items.indexOf(current));
}

QString DialogMain::selectedItem() const
{
    const QListWidgetItem *item = ui->m_listResolution->currentItem();
    return item ? item->text() : QString();
}

void DialogMain::switchScreenTo(const T_Resolution &resolution)
{
    // Not checked: whether the screen can be seen is for the user to say.
    QString output;
    QString error;
    runCommand(switchScreenCommand(resolution.width, resolution.height, resolution.refreshRate),
               output, error);
}

void DialogMain::storeMode(const T_Resolution &resolution)
{
    QString output;
    QString error;
    if (!runCommand(storeModeCommand(resolution.width, resolution.height, resolution.refreshRate),
                    output, error)) {
        showError(error);
        return;
    }
    syncFileSystems();
    m_curResolution = resolution;
    listResolution_currentTextChanged(selectedItem());
}

void DialogMain::startUpgraderSelf()
{
    oxlog::debug(OX_LOG_AT(555), QStringLiteral("Starting upgrader self..."));
    startDetachedCommand(upgradeSelfCommand());
}

void DialogMain::startUpgraderApp(bool standard)
{
    if (standard)
        oxlog::debug(OX_LOG_AT(567), QStringLiteral("Starting upgrader vexastd..."));
    else
        oxlog::debug(OX_LOG_AT(571), QStringLiteral("Starting upgrader vxotp..."));
    startDetachedCommand(
        upgradeApplicationCommand(standard ? standardApplication() : otpApplication()));
}

void DialogMain::startUpgraderFs()
{
    oxlog::debug(OX_LOG_AT(579), QStringLiteral("Starting upgrader file system..."));
    startDetachedCommand(upgradeFileSystemCommand());
}

QString DialogMain::askForApplication(const QString &title, const QStringList &applications)
{
    bool accepted = false;
    const QString chosen = QInputDialog::getItem(this, title, tr("Please select application"),
                                                 applications, 0, false, &accepted);
    return accepted ? chosen : QString();
}

void DialogMain::selectLanguage()
{
    const QString language = ui->m_cmbLanguage->currentText();
    oxlog::debug(OX_LOG_AT(586), oxlog::quoted(language));
    if (!writeLocaleLine(QStringLiteral("/etc/profile"), localeLine(language)))
        oxlog::critical(OX_LOG_AT(594), QStringLiteral("Open /etc/profile failed"));
}
