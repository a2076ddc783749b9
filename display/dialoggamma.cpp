// SPDX-License-Identifier: MIT
#include "display/dialoggamma.h"

#include "ui_dialoggamma.h"

#include <QAbstractButton>
#include <QMessageBox>

DialogGamma::DialogGamma(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DialogGamma)
{
    ui->setupUi(this);
    connect(ui->m_buttonBox, &QDialogButtonBox::clicked, this, &DialogGamma::buttonBox_clicked);
}

DialogGamma::~DialogGamma() = default;

void DialogGamma::SetGamma(float gamma)
{
    m_gamma = gamma;
    ui->m_txtGamma->setText(QString::number(static_cast<double>(gamma), 'f', 1));
    ui->m_txtGamma->setFocus();
    ui->m_txtGamma->selectAll();
}

float DialogGamma::GetGamma() const
{
    return m_gamma;
}

void DialogGamma::buttonBox_clicked(QAbstractButton *button)
{
    if (ui->m_buttonBox->standardButton(button) != QDialogButtonBox::Ok) {
        reject();
        return;
    }

    bool isNumber = false;
    const float entered = ui->m_txtGamma->text().toFloat(&isNumber);
    // The toolkit answers a number too large for a float with infinity, and no number either.
    m_gamma = isNumber ? entered : 0.0F;
    if (isNumber) {
        accept();
        return;
    }
    // The text is all that the box has to say, so it has no title. Once it is closed the dialog
    // ends accepted, with gamma 0: the form connects the button box's accepted signal as well,
    // which follows the click.
    QMessageBox::critical(this, QString(), tr("Error"));
}
