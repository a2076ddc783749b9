// SPDX-License-Identifier: MIT
#include "maintenance/fanthresholds.h"

#include "libOxUtils/fileio/conffile.h"

#include <algorithm>
#include <limits>

namespace {

const QString &lowerKey()
{
    static const QString key = QStringLiteral("temp_threshold_lower");
    return key;
}

const QString &upperKey()
{
    static const QString key = QStringLiteral("temp_threshold_upper");
    return key;
}

int threshold(const QString &text)
{
    const uint highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(text.toUInt(), highest));
}

} // namespace

void readFanThresholds(ConfFile &conf, int &lower, int &upper)
{
    lower = threshold(conf.GetValue(lowerKey()));
    upper = threshold(conf.GetValue(upperKey()));
}

void setFanThresholds(ConfFile &conf, int lower, int upper)
{
    conf.SetValue(lowerKey(), QString::number(lower));
    conf.SetValue(upperKey(), QString::number(upper));
}
