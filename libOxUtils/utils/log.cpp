// SPDX-License-Identifier: MIT
#include "libOxUtils/utils/log.h"

#include <QDebug>
#include <QMessageLogger>

void oxlog::debug(const Site &site, const QString &text)
{
    QMessageLogger(site.file, site.line, site.function).debug().noquote().nospace() << text;
}

void oxlog::critical(const Site &site, const QString &text)
{
    QMessageLogger(site.file, site.line, site.function).critical().noquote().nospace() << text;
}

QString oxlog::quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}
