// SPDX-License-Identifier: MIT
#include "maintenance/dialogabout.h"

#include "app/globalvars.h"
#include "libOxUtils/utils/picture.h"
#include "maintenance/identity/appversion.h"
#include "maintenance/identity/productbarcode.h"
#include "maintenance/wrappedtext.h"
#include "ui_dialogabout.h"

#include <QDate>
#include <QGuiApplication>
#include <QScreen>
#include <QToolTip>

#include <algorithm>

namespace {

// The most characters of a line that are looked at: it may have megabytes.
constexpr int MOST_CHARACTERS = 10000;

constexpr int MOST_LINES = 3;

// Pixels of the screen that are left beside a window or a tool tip.
constexpr int SCREEN_MARGIN = 40;

// At 96 dots an inch the style asks for a pixel more than the form has; a button can do without.
constexpr int SPARED_PIXELS = 1;

} // namespace

DialogAbout::DialogAbout(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DialogAbout)
{
    ui->setupUi(this);
    setWindowTitle(tr("About..."));
    showPicture(*ui->lblLogo, QStringLiteral("logo"));
    ui->lblVersion->setText(GetAppVersion());
    //: %1 is the year that the box's clock shows. Orvex is the maker's name.
    ui->lblCompany->setText(tr("Copyright (C) 2013-%1 Orvex").arg(QDate::currentDate().year()));
    // The form's minimum counts instead of the text's own width, which may be more.
    ui->lblCompany->setMinimumWidth(
        std::max(ui->lblCompany->minimumWidth(), ui->lblCompany->sizeHint().width()));
    ui->lblCopyright->setText(tr("All rights reserved."));
    ui->m_lblBarcode->setText(tr("Barcode: %1").arg(GlobalVars::ThisProductBarcode.barcode));

    const int wanted = ui->buttonBox->sizeHint().height();
    const int least = ui->buttonBox->minimumHeight();
    ui->buttonBox->setFixedHeight(wanted > least + SPARED_PIXELS ? wanted : least);

    QString version;
    const bool hasVersion = ProductBarcode::ReadRootfsVersion(version);
    showIf(hasVersion, ui->m_lblRootfsVer, tr("Rootfs Version: %1").arg(version));

    QString patch;
    const bool hasPatch = ProductBarcode::ReadRootfsPatch(patch);
    showIf(hasPatch, ui->m_lblRootfsPatch, tr("Rootfs Patch: %1").arg(patch));
}

DialogAbout::~DialogAbout() = default;

void DialogAbout::showIf(bool isKnown, QLabel *label, const QString &text)
{
    label->setVisible(isKnown);
    if (!isKnown)
        return;
    const QScreen *const screen = QGuiApplication::primaryScreen();
    const QSize room =
        (screen ? screen->availableSize() : maximumSize()) - QSize(SCREEN_MARGIN, SCREEN_MARGIN);
    const QMargins margins = layout()->contentsMargins();
    const int beside = margins.left() + margins.right() + ui->lblLogo->sizeHint().width() +
                       ui->gridLayout->horizontalSpacing();
    const QString read = text.left(MOST_CHARACTERS);
    const QString shown = wrappedText(read, label->font(), room.width() - beside, MOST_LINES);
    label->setText(shown);
    if (!shown.endsWith(QChar(0x2026)))
        return;
    const QFont font = QToolTip::font();
    // One that finds no place above or below the pointer comes up under it, and goes at once.
    const int lines = room.height() / 2 / QFontMetrics(font).lineSpacing();
    // Marked up, since the toolkit would take what looks like a tag for one.
    const QString tip = wrappedText(read, font, room.width(), lines);
    label->setToolTip(QStringLiteral("<p style='white-space:pre'>") + tip.toHtmlEscaped());
}
