// SPDX-License-Identifier: MIT
#include "app/globalvars.h"

#include <QCoreApplication>

QString GlobalVars::UI_INI_FILE_NAME = QStringLiteral("ui.ini");
QString GlobalVars::APP_PATH;
ProductBarcode::T_Barcode GlobalVars::ThisProductBarcode;
quint32 ProductFlags = 0;

void GlobalVars::Init()
{
    UI_INI_FILE_NAME = QStringLiteral("ui.ini");
    APP_PATH = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    ProductFlags = 0;
    if (ProductBarcode::ReadBarcode(ThisProductBarcode))
        ProductBarcode::GetTypeFlags(ThisProductBarcode, ProductFlags);
}
