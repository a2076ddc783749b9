// SPDX-License-Identifier: MIT
#pragma once

#include "libOxUtils/utils/log.h"

#include <QDialog>
#include <QString>

#include <vector>

class QAction;
class QMenu;
class QTimer;
class Ui_DialogMain;
struct T_ResolutionEntry;

// The program's one top-level window: the list of display modes, the clock, the language, and the
// way to every maintenance function through its menu and its keys.
class DialogMain : public QDialog
{
    Q_OBJECT

public:
    // A display mode: size in pixels, refresh rate in Hz, and the text it was last read from.
    struct T_Resolution
    {
        quint32 width = 0;
        quint32 height = 0;
        quint32 refreshRate = 0;
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
    void createMenu();
    void initConnections();
    void readProductFlags();
    bool hasOtpApplication() const;
    void showError(const QString &text);

    // Reads a mode text into resolution, its text included; see parseModeText.
    bool parseDispInfo2Resolution(T_Resolution &resolution, const QString &text);
    // Reads the mode that the boot loader's environment holds. 0, or -1 when there is none.
    int get_cur_display_info(T_Resolution &resolution);
    // Reads the attached monitor's EDID block, 128 bytes, into edid. 0, or -1 when no bus gives a
    // usable one; edid then holds what the last attempt left there.
    int readEdid(unsigned char *edid);
    int readEdidThroughVgaSwitch(unsigned char *edid);
    void listAllResolutions();
    void listMonitorResolutions();
    void showResolutions(const std::vector<T_ResolutionEntry> &entries);
    void selectCurrentResolution();
    QString selectedItem() const;
    void switchTo(const T_Resolution &resolution);
    void keep(const T_Resolution &resolution);

    void startUpgraderSelf();
    // true: the standard test application; false: the OTP one.
    void startUpgraderApp(bool standard);
    void startUpgraderFs();
    // The chosen item's text, empty when the user cancels.
    QString askForApplication(const QString &title, const QStringList &applications);

    void adjustGamma(const oxlog::Site &valueSite, const oxlog::Site &failureSite);
    void promptForInstruction(const oxlog::Site &loadSite, const oxlog::Site &unknownSite);
    void selectLanguage();

    Ui_DialogMain *ui;
    T_Resolution m_curResolution;
    QTimer *m_timer;
    float m_gamma;
    QMenu *m_menu;
    QAction *m_actUpgradeApp;
    QAction *m_actUpgradeFs;
    QAction *m_actPreference;
    QAction *m_actFactoryReset;
    QAction *m_actFanSetting;
    quint32 m_productFlags;
};
