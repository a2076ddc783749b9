// SPDX-License-Identifier: MIT
#pragma once

#include "maintenance/identity/productbarcode.h"

#include <QString>

// Values that hold for the whole program, set once at start-up.
class GlobalVars
{
public:
    // The name of the program's own settings file, "ui.ini", which lies in APP_PATH.
    static QString UI_INI_FILE_NAME;
    // The executable's directory, with a "/" at its end; empty before Init().
    static QString APP_PATH;
    // The box's barcode; an empty record when none could be read.
    static ProductBarcode::T_Barcode ThisProductBarcode;

    // Sets all of them and ProductFlags. Needs the application object, which knows the directory.
    static void Init();
};

// The capability flags that follow from the barcode's product type, 0 without a barcode. Nothing in
// the program reads them here: the main window reads the barcode for itself.
extern quint32 ProductFlags;
