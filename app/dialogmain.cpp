// SPDX-License-Identifier: MIT
#define OX_LOG_FILE "dialogmain"
// clang-format off
#define OX_LOG_FIXED_POSITIONS(position)                    \
    position(GAMMA_CHOSEN, 106)                             \
    position(GAMMA_FAILED, 111)                             \
    position(TERMINAL_ENTRY_MISSING, 124)                   \
    position(INSTRUCTION_UNKNOWN, 135)                      \
    position(UPGRADING_SELF, 555)                           \
    position(UPGRADING_STANDARD_APPLICATION, 567)           \
    position(UPGRADING_OTP_APPLICATION, 571)                \
    position(UPGRADING_FILE_SYSTEM, 579)                    \
    position(LANGUAGE_CHOSEN, 586)                          \
    position(PROFILE_NOT_OPENED, 594)
// clang-format on
#include "app/dialogmain.h"

#include "app/errorbox.h"
#include "app/guards/heldsignals.h"
#include "app/languages.h"
#include "app/shellprofile.h"
#include "app/upgrader.h"
#include "display/boxmode.h"
#include "display/dialogconfirm.h"
#include "display/dialoggamma.h"
#include "display/edidfetch.h"
#include "display/fbdevice.h"
#include "display/modetext.h"
#include "display/monitor/edid.h"
#include "display/monitor/modes.h"
#include "display/screenconfiguration.h"
#include "libOxUtils/utils/log.h"
#include "maintenance/dialogabout.h"
#include "maintenance/dialogclock.h"
#include "maintenance/dialogfantempparam.h"
#include "maintenance/dialogpreference.h"
#include "maintenance/embeddedscript.h"
#include "maintenance/identity/productbarcode.h"
#include "maintenance/testapplication.h"
#include "ui_dialogmain.h"

#include <QContextMenuEvent>
#include <QDateTime>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

#include <iterator>

namespace {

constexpr int CLOCK_TICK_MS = 1000;

} // namespace

const DialogMain::MenuEntry DialogMain::MENU[] = {
    {QT_TR_NOOP("Upgrade Application"), &DialogMain::m_actUpgradeApp,
     &DialogMain::actionUpgradeApp_triggered},
    {QT_TR_NOOP("Upgrade File System"), &DialogMain::m_actUpgradeFs,
     &DialogMain::actionUpgradeFs_triggered},
    {QT_TR_NOOP("Preference"), &DialogMain::m_actPreference,
     &DialogMain::actionPreference_triggered},
    {QT_TR_NOOP("Factory Reset"), &DialogMain::m_actFactoryReset,
     &DialogMain::actionFactoryReset_triggered},
    {QT_TR_NOOP("Fan Setting"), &DialogMain::m_actFanSetting,
     &DialogMain::actionFanSetting_triggered},
};

DialogMain::DialogMain(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_DialogMain)
{
    ui->setupUi(this);
    for (const Language &language : LANGUAGES)
        ui->m_cmbLanguage->addItem(tr(language.item));
    secTimer_timeout();
    m_timer = new QTimer(this);
    createMenu();
    initConnections();
    readProductFlags();
    m_actPreference->setVisible(hasOtpApplication());
    listMonitorResolutions();
    m_timer->start(CLOCK_TICK_MS);
    // The form's size is for 96 dots an inch; on a denser screen the list needs more.
    resize(size().expandedTo(sizeHint()));
}

DialogMain::~DialogMain() = default;

void DialogMain::createMenu()
{
    m_menu = new QMenu(this);
    for (const MenuEntry &entry : MENU) {
        this->*entry.action = new QAction(tr(entry.text), this);
        m_menu->addAction(this->*entry.action);
    }
}

void DialogMain::initConnections()
{
    for (const MenuEntry &entry : MENU)
        connect(this->*entry.action, &QAction::triggered, this, entry.slot);
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
    // Read from the file again, and not taken from start-up's globals: the menu shows what the file
    // holds when the window is made.
    m_productFlags = 0;
    ProductBarcode::T_Barcode barcode;
    if (ProductBarcode::ReadBarcode(barcode))
        ProductBarcode::GetTypeFlags(barcode, m_productFlags);
}

bool DialogMain::hasOtpApplication() const
{
    return (m_productFlags & ProductBarcode::OTP_APPLICATION) != 0;
}

void DialogMain::showError(const QString &text)
{
    ErrorBox box(*this, tr("Error"), text);
    box.exec();
    if (box.IsShortened())
        oxlog::critical(OX_LOG_HERE, oxlog::quoted(text));
}

void DialogMain::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1) {
        DialogAbout(this).exec();
    } else if (event->key() == Qt::Key_F12) {
        startUpgraderSelf();
    } else if (event->key() == Qt::Key_F10) {
        if (!askForGamma())
            return;
        oxlog::debug(OX_LOG_AT(GAMMA_CHOSEN), QString::number(static_cast<double>(m_gamma)));
        FbDevice &framebuffer = *FbDevice::Instance();
        // Neither is checked: without an open device the next step fails, and a curve that is set
        // stays so.
        static_cast<void>(framebuffer.OpenDevice(FbDevice::DEV_NAME));
        if (!framebuffer.SetGamma(m_gamma))
            oxlog::critical(OX_LOG_AT(GAMMA_FAILED), QStringLiteral("Setting gamma failed."));
        static_cast<void>(framebuffer.CloseDevice());
    } else if (event->key() == Qt::Key_E && event->modifiers().testFlag(Qt::ControlModifier)) {
        QString typed;
        const InstructionResult result = promptForInstruction(typed);
        if (result == InstructionResult::NoEntry)
            oxlog::critical(OX_LOG_AT(TERMINAL_ENTRY_MISSING),
                            QStringLiteral("Loading configure file failed."));
        else if (result == InstructionResult::Unknown)
            oxlog::debug(OX_LOG_AT(INSTRUCTION_UNKNOWN),
                         QStringLiteral("Unkown instruction: '%1'!").arg(typed));
    } else {
        QDialog::keyPressEvent(event);
    }
}

void DialogMain::contextMenuEvent(QContextMenuEvent * /*event*/)
{
    // At the pointer also when the menu key asked for it.
    m_menu->exec(QCursor::pos());
}

bool DialogMain::askForGamma()
{
    DialogGamma dialog(this);
    dialog.SetGamma(m_gamma);
    if (dialog.exec() != QDialog::Accepted)
        return false;

    // The value stays on offer for the next time even if the framebuffer does not take it.
    m_gamma = dialog.GetGamma();
    return true;
}

InstructionResult DialogMain::promptForInstruction(QString &typed)
{
    typed =
        QInputDialog::getText(this, tr("Please Input Instruction"),
                              tr("The feature is protected by instruction!"), QLineEdit::Password);
    const InstructionResult result = followInstruction(typed);
    if (result == InstructionResult::Unknown) {
        //: Misspelt in English, as support knows it: see docs/compatibility.md.
        showError(tr("Unkown instruction!"));
    }
    return result;
}

void DialogMain::actionUpgradeApp_triggered()
{
    const QString standard = tr(standardApplication().name);
    QStringList applications{standard};
    if (hasOtpApplication())
        applications << tr(otpApplication().name);
    const QString chosen = askForApplication(tr("Upgrade Application"), applications);
    if (!chosen.isEmpty())
        startUpgraderApp(chosen == standard);
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
    //: English lacks a word, as support knows it: see docs/compatibility.md.
    const QString question = tr("Are sure to factory reset?");
    if (QMessageBox::question(this, tr("Query"), question, QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) != QMessageBox::Yes)
        return;

    // Both are on offer, unlike for an upgrade: settings can be left of an application that the
    // product's flags do not name.
    const QString standard = tr(standardApplication().name);
    const QString chosen =
        askForApplication(tr("Factory Reset"), {standard, tr(otpApplication().name)});
    if (!chosen.isEmpty())
        removeSettings(chosen == standard ? standardApplication() : otpApplication());
}

void DialogMain::actionFanSetting_triggered()
{
    // Shown after every acceptance: the log has the reason when the save failed.
    if (DialogFanTempParam::Run(this))
        QMessageBox::information(this, tr("Information"),
                                 tr("Parameters have been changed, reboot to take effect."));
}

void DialogMain::secTimer_timeout()
{
    const QDateTime now = QDateTime::currentDateTime();
    ui->m_lblDateTime->setText(now.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
}

void DialogMain::btnApply_clicked(bool /*checked*/)
{
    T_Resolution wanted;
    if (!parseItem(wanted, selectedItem()) || isSameSize(wanted, m_curResolution))
        return;

    // A program that ended before the answer would leave a mode that perhaps cannot be seen.
    const HeldSignals untilAnswered;
    ScreenConfiguration before;
    const QRect place = geometry();
    // The new mode comes first and the question after it, so that the user judges what can be seen.
    switchScreen(wanted);
    DialogConfirm dialog(this);
    if (dialog.exec() == QDialog::Accepted) {
        keep(wanted);
        return;
    }
    switchScreen(m_curResolution);
    before.restoreIfLost(m_curResolution);
    // The window manager has moved the window onto a smaller screen and cut it to that.
    setGeometry(place);
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
    if (!parseItem(selected, currentText))
        return;
    const bool isNew = !isSameSize(selected, m_curResolution);
    // Apply cannot keep the keyboard then, and the toolkit would give it to OK.
    if (!isNew && focusWidget() == ui->m_btnApply)
        ui->m_listResolution->setFocus();
    ui->m_btnApply->setEnabled(isNew);
    // A disabled button would swallow the right click that opens the window's menu.
    ui->m_btnApply->setAttribute(Qt::WA_TransparentForMouseEvents, !isNew);
}

void DialogMain::lblDateTime_mouseDoubleClicked()
{
    const std::optional<ScriptResult> result = DialogClock::Run(this);
    if (result == ScriptResult::CopyFailed)
        oxlog::critical(OX_LOG_HERE, QStringLiteral("Copying calclock.sh failed."));
    else if (result == ScriptResult::RunFailed)
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
    const ModeTextResult result = parseModeText(text, resolution);
    if (result != ModeTextResult::NoWidth) {
        oxlog::debug(OX_LOG_HERE, QString::asprintf("%dx%d@%d", static_cast<int>(resolution.width),
                                                    static_cast<int>(resolution.height),
                                                    static_cast<int>(resolution.refreshRate)));
    }
    return result == ModeTextResult::Read;
}

int DialogMain::get_cur_display_info(T_Resolution &resolution)
{
    QString text;
    QString error;
    if (!readStoredMode(text, error)) {
        oxlog::critical(OX_LOG_HERE, oxlog::quoted(error));
        return -1;
    }
    return parseDispInfo2Resolution(resolution, text) ? 0 : -1;
}

int DialogMain::readEdid(unsigned char *edid)
{
    return fetchEdid(edid);
}

void DialogMain::listAllResolutions()
{
    showItems(modeItems({std::begin(ALL_RESOLUTIONS), std::end(ALL_RESOLUTIONS)}));
}

void DialogMain::listMonitorResolutions()
{
    unsigned char edid[EDID_BLOCK_SIZE] = {};
    int result = -1;
    {
        // Led back before a message waits for the user.
        const DdcLines lines;
        result = readEdid(edid);
    }
    T_NativeTiming native;
    if (result != 0) {
        showError(tr("Cannot read edid information."));
    } else if (getNativeTiming(edid, native) != 0) {
        showError(tr("Parsing edid information failed."));
    } else {
        const QStringList items = modeItems(monitorModes(native).entries);
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
    ui->m_listResolution->setCurrentRow(items.indexOf(modeItem(m_curResolution)));
}

QString DialogMain::selectedItem() const
{
    const QListWidgetItem *item = ui->m_listResolution->currentItem();
    return item ? item->text() : QString();
}

void DialogMain::keep(const T_Resolution &resolution)
{
    QString error;
    if (!storeMode(resolution, error)) {
        showError(error);
        return;
    }
    m_curResolution = resolution;
    listResolution_currentTextChanged(selectedItem());
}

void DialogMain::startUpgraderSelf()
{
    oxlog::debug(OX_LOG_AT(UPGRADING_SELF), QStringLiteral("Starting upgrader self..."));
    startUpgrader(upgradeSelfCommand());
}

void DialogMain::startUpgraderApp(bool standard)
{
    const TestApplication application = standard ? standardApplication() : otpApplication();
    const QString message =
        QStringLiteral("Starting upgrader %1...").arg(QLatin1String(application.name));
    if (standard)
        oxlog::debug(OX_LOG_AT(UPGRADING_STANDARD_APPLICATION), message);
    else
        oxlog::debug(OX_LOG_AT(UPGRADING_OTP_APPLICATION), message);
    startUpgrader(upgradeApplicationCommand(application));
}

void DialogMain::startUpgraderFs()
{
    oxlog::debug(OX_LOG_AT(UPGRADING_FILE_SYSTEM),
                 QStringLiteral("Starting upgrader file system..."));
    startUpgrader(upgradeFileSystemCommand());
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
    oxlog::debug(OX_LOG_AT(LANGUAGE_CHOSEN), oxlog::quoted(language));
    if (!writeLocaleLine(QLatin1String(SHELL_PROFILE), localeLine(language)))
        oxlog::critical(OX_LOG_AT(PROFILE_NOT_OPENED), QStringLiteral("Open /etc/profile failed"));
}
