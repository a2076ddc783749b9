// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

// What box the program runs on: its barcode with what follows from it, and its root file system.
class ProductBarcode
{
public:
    // The capability flag of boxes that carry the OTP test application, the one flag of all that
    // means something to this program.
    static constexpr quint32 OTP_APPLICATION = 0x08;

    // A decoded barcode such as "573KH214": three digits of product type, two letters of product
    // family, three digits of serial number.
    struct T_Barcode
    {
        QString barcode;
        qint32 type = 0;
        QDate productionDate;
        qint32 serialNo = 0;
    };

    // Reads and decodes /etc/orvex/barcode.txt; see DecodeBarcode.
    [[nodiscard]] static bool ReadBarcode(T_Barcode &barcode);

    // Decodes the barcode file's lines that are not empty. There must be three; the third, of eight
    // characters, is the barcode. false with an empty text and type 0 when they are not of that
    // form; false also, but with text and type set, when the serial number is no number.
    [[nodiscard]] static bool DecodeBarcode(T_Barcode &barcode, const QStringList &lines);

    // The capability flags of the record's product type, 0 for a type that has none.
    static void GetTypeFlags(const T_Barcode &barcode, quint32 &flags);

    // The root file system's version, the first line that is not empty of /etc/orvex/version or,
    // only where that is missing, of /etc/version. false, and version is empty, without such a
    // line.
    [[nodiscard]] static bool ReadRootfsVersion(QString &version);

    // The root file system's patch level, the last line that is not empty of
    // /etc/orvex/patches_version.txt, which grows by a line a patch. false, and patch is empty,
    // without such a line.
    [[nodiscard]] static bool ReadRootfsPatch(QString &patch);
};
