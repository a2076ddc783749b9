// SPDX-License-Identifier: MIT
#pragma once

#include "app/terminalentry.h"
#include "display/monitor/displaymode.h"

#include <QDialog>
#include <QString>
#include <QStringList>

#include <memory>

class QAction;
class QMenu;
class QTimer;
class Ui_DialogMain;

// The program's one top-level window: the list of display modes, the clock, the language, and the
// way to every maintenance function through its menu and its keys.
class DialogMain : public QDialog
{
    Q_OBJECT

public:
    // A display mode with the text that it was last read from.
    struct T_Resolution : DisplayMode
    {
        QString text;
    };

    // Fills the list for the attached monitor, so its error boxes can come before the window.
    explicit DialogMain(QWidget *parent = nullptr);
    ~DialogMain() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private slots:
    void actionUpgradeApp_triggered();
    void actionUpgradeFs_triggered();
    void actionPreference_triggered();
    void actionFactoryReset_triggered();
    void actionFanSetting_triggered();
    void secTimer_timeout();
    void btnApply_clicked(bool checked = false);
    void btnOK_clicked(bool checked);
    void btnCancel_clicked(bool checked = false);
    void listResolution_currentTextChanged(const QString &currentText);
    void lblDateTime_mouseDoubleClicked();
    void chkbListAll_clicked(bool checked = false);

private:
    // The menu in its order, which the simulated box reads as well.
    struct MenuEntry
    {
        const char *text;
        QAction *DialogMain::*action;
        void (DialogMain::*slot)();
    };
    static const MenuEntry MENU[];

    void createMenu();
    void initConnections();
    void readProductFlags();
    bool hasOtpApplication() const;
    // A modal box titled "Error" with one OK button.
    void showError(const QString &text);

    // Reads a mode text into resolution, its text included; see parseModeText.
    [[nodiscard]] bool parseDispInfo2Resolution(T_Resolution &resolution, const QString &text);
    // Reads an item of the list into resolution. False when it is no mode, which the user is told.
    [[nodiscard]] bool parseItem(T_Resolution &resolution, const QString &item);
    // Reads the mode that the boot loader's environment holds. 0, or -1 when there is none.
    [[nodiscard]] int get_cur_display_info(T_Resolution &resolution);
    // Reads the attached monitor's EDID block, 128 bytes, into edid; see fetchEdid.
    [[nodiscard]] int readEdid(unsigned char *edid);

    // Fills the list with every standard mode; nothing is selected.
    void listAllResolutions();
    // Fills the list with the modes that fit the monitor and selects the current one.
    void listMonitorResolutions();
    void showItems(const QStringList &items);
    void selectCurrentResolution(const QStringList &items);
    // The current item's text, empty when there is none.
    QString selectedItem() const;
    // Stores a mode for the next start and takes it as the current one.
    void keep(const T_Resolution &resolution);

    void startUpgraderSelf();
    // true: the standard test application; false: the OTP one.
    void startUpgraderApp(bool standard);
    void startUpgraderFs();
    // The chosen item's text, empty when the user cancels.
    QString askForApplication(const QString &title, const QStringList &applications);

    // Lets the user change the gamma. False after Cancel.
    bool askForGamma();
    // Follows an instruction that the user types, and tells the user of an unknown one.
    InstructionResult promptForInstruction(QString &typed);

    // Writes the chosen language's locale into the system-wide profile.
    void selectLanguage();

    std::unique_ptr<Ui_DialogMain> ui;
    T_Resolution m_curResolution;
    QTimer *m_timer = nullptr;
    float m_gamma = 1.0F;
    QMenu *m_menu = nullptr;
    QAction *m_actUpgradeApp = nullptr;
    QAction *m_actUpgradeFs = nullptr;
    QAction *m_actPreference = nullptr;
    QAction *m_actFactoryReset = nullptr;
    QAction *m_actFanSetting = nullptr;
    quint32 m_productFlags = 0;
};
