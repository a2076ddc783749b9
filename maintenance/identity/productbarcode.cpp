// SPDX-License-Identifier: MIT
#include "maintenance/identity/productbarcode.h"

#include "maintenance/identity/nonemptylines.h"

#include <QFile>

#include <algorithm>
#include <iterator>

namespace {

constexpr int BARCODE_LINE = 2;
constexpr int BARCODE_LINE_COUNT = 3;
constexpr int BARCODE_LENGTH = 8;

struct ProductType
{
    qint32 type;
    quint32 flags;
};

constexpr quint32 OTP = ProductBarcode::OTP_APPLICATION;

// Every known type.
constexpr ProductType PRODUCT_TYPES[] = {
    {0, 0x00},         {421, 0x00},       {437, 0x00},       {458, 0x20},       {463, 0x40},
    {509, 0x01},       {516, 0x11},       {527, 0x47 | OTP}, {548, 0x44},       {552, 0x47},
    {569, 0x47 | OTP}, {574, 0x47 | OTP}, {681, 0xC0},       {694, 0xC7 | OTP},
};
constexpr qint32 UNKNOWN_TYPE_COUNTS_AS = 458;

// Barcodes whose type does not follow from their first three digits.
constexpr struct
{
    const char *barcode;
    qint32 type;
} FIXED_TYPES[] = {
    {"573KH214", 421}, {"846WF507", 569}, {"391WF628", 0},
    {"391WF743", 0},   {"391WF860", 0},   {"395PL476", 0},
};

const ProductType *findType(qint32 type)
{
    const auto *const found =
        std::find_if(std::begin(PRODUCT_TYPES), std::end(PRODUCT_TYPES),
                     [type](const ProductType &known) { return known.type == type; });
    return found == std::end(PRODUCT_TYPES) ? nullptr : found;
}

qint32 typeOf(const QString &barcode)
{
    for (const auto &fixed : FIXED_TYPES) {
        if (barcode == QLatin1String(fixed.barcode))
            return fixed.type;
    }
    const qint32 number = barcode.left(3).toInt();
    return findType(number) ? number : UNKNOWN_TYPE_COUNTS_AS;
}

void setProductionDate(QDate &date, const QString &family)
{
    if (family == QLatin1String("KH"))
        date = QDate(2015, 7, 1);
    else if (family == QLatin1String("SD"))
        date = QDate(2016, 4, 10);
    else
        date = QDate(2015, 1, 1);
}

} // namespace

bool ProductBarcode::ReadBarcode(T_Barcode &barcode)
{
    return DecodeBarcode(barcode, nonEmptyLines(QStringLiteral("/etc/orvex/barcode.txt")));
}

bool ProductBarcode::DecodeBarcode(T_Barcode &barcode, const QStringList &lines)
{
    barcode.barcode.clear();
    barcode.type = 0;
    if (lines.size() != BARCODE_LINE_COUNT || lines.at(BARCODE_LINE).size() != BARCODE_LENGTH)
        return false;

    barcode.barcode = lines.at(BARCODE_LINE);
    barcode.type = typeOf(barcode.barcode);

    // The family's date goes into this copy alone. The record's own stays null, so that nothing
    // comes to depend on a date that is only guessed from the family.
    QDate productionDate = barcode.productionDate;
    setProductionDate(productionDate, barcode.barcode.mid(3, 2));

    bool isNumber = false;
    barcode.serialNo = barcode.barcode.mid(5, 3).toInt(&isNumber);
    return isNumber;
}

void ProductBarcode::GetTypeFlags(const T_Barcode &barcode, quint32 &flags)
{
    const ProductType *const known = findType(barcode.type);
    flags = known ? known->flags : 0;
}

bool ProductBarcode::ReadRootfsVersion(QString &version)
{
    // The first of the two that exists counts, whatever it holds.
    const QString own = QStringLiteral("/etc/orvex/version");
    const QStringList lines =
        nonEmptyLines(QFile::exists(own) ? own : QStringLiteral("/etc/version"));
    version = lines.value(0).trimmed();
    return !lines.isEmpty();
}

bool ProductBarcode::ReadRootfsPatch(QString &patch)
{
    // The file grows by a line a patch.
    const QStringList lines = nonEmptyLines(QStringLiteral("/etc/orvex/patches_version.txt"));
    patch = lines.value(lines.size() - 1).trimmed();
    return !lines.isEmpty();
}
