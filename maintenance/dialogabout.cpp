// SPDX-License-Identifier: MIT
#include "maintenance/dialogabout.h"

#include "app/globalvars.h"
#include "maintenance/identity/appversion.h"
#include "maintenance/identity/productbarcode.h"
#include "ui_dialogabout.h"

#include <QDate>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {

// The most characters of a line that are looked at: it may have megabytes.
constexpr int LONGEST_SHOWN = 1000;

// Shows what a file holds, cut to half the screen, so that the window stays on it.
void showIf(bool isKnown, QLabel *label, const QString &text)
{
    label->setVisible(isKnown);
    if (!isKnown)
        return;
    const QScreen *const screen = QGuiApplication::primaryScreen();
    const int width = screen ? screen->availableSize().width() / 2 : label->maximumWidth();
    label->setText(
        label->fontMetrics().elidedText(text.left(LONGEST_SHOWN), Qt::ElideRight, width));
}

// The form's picture is for 96 dots an inch; at this and above, the double-size one is closer.
constexpr int DENSE_SCREEN_DPI = 144;

} // namespace

DialogAbout::DialogAbout(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DialogAbout)
{
    ui->setupUi(this);
    setWindowTitle(tr("About..."));
    if (devicePixelRatioF() * logicalDpiX() >= DENSE_SCREEN_DPI) {
        QPixmap logo(QStringLiteral(":/image/logo@2x.png"));
        logo.setDevicePixelRatio(devicePixelRatioF());
        ui->lblLogo->setPixmap(logo);
    }
    ui->lblVersion->setText(GetAppVersion());
    //: %1 is the year that the box's clock shows. Orvex is the maker's name.
    ui->lblCompany->setText(tr("Copyright (C) 2013-%1 Orvex").arg(QDate::currentDate().year()));
    // The form's minimum counts instead of the text's own width, which may be more.
    ui->lblCompany->setMinimumWidth(
        std::max(ui->lblCompany->minimumWidth(), ui->lblCompany->sizeHint().width()));
    ui->lblCopyright->setText(tr("All rights reserved."));
    ui->m_lblBarcode->setText(tr("Barcode: %1").arg(GlobalVars::ThisProductBarcode.barcode));

    QString version;
    const bool hasVersion = ProductBarcode::ReadRootfsVersion(version);
    showIf(hasVersion, ui->m_lblRootfsVer, tr("Rootfs Version: %1").arg(version));

    QString patch;
    const bool hasPatch = ProductBarcode::ReadRootfsPatch(patch);
    showIf(hasPatch, ui->m_lblRootfsPatch, tr("Rootfs Patch: %1").arg(patch));
}

DialogAbout::~DialogAbout() = default;
