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

// Cuts a text that tells what a file holds to half the screen, so that the window stays on it.
QString shortened(const QLabel *label, const QString &text)
{
    const int width = QGuiApplication::primaryScreen()->availableSize().width() / 2;
    return label->fontMetrics().elidedText(text.left(LONGEST_SHOWN), Qt::ElideRight, width);
}

// The form's picture is for 96 dots an inch; from half as many more its double is nearer.
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
    ui->m_lblRootfsVer->setVisible(ProductBarcode::ReadRootfsVersion(version));
    ui->m_lblRootfsVer->setText(
        shortened(ui->m_lblRootfsVer, tr("Rootfs Version: %1").arg(version)));

    QString patch;
    ui->m_lblRootfsPatch->setVisible(ProductBarcode::ReadRootfsPatch(patch));
    ui->m_lblRootfsPatch->setText(
        shortened(ui->m_lblRootfsPatch, tr("Rootfs Patch: %1").arg(patch)));
}

DialogAbout::~DialogAbout() = default;
