// SPDX-License-Identifier: MIT
#include "libOxUtils/fileio/conffile.h"

#define OX_LOG_FILE "libOxUtils/fileio/conffile"
#include "libOxUtils/utils/log.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <unistd.h>
#include <utility>

namespace {

ConfFile::T_ConfItem parsed(const QString &line)
{
    ConfFile::T_ConfItem item;
    item.line = line.trimmed();
    QString setting = item.line;
    const int hash = setting.indexOf(QLatin1Char('#'));
    if (hash >= 0) {
        item.comment = setting.mid(hash + 1).trimmed();
        setting.truncate(hash);
    }
    const int equals = setting.indexOf(QLatin1Char('='));
    if (equals >= 0) {
        item.key = setting.left(equals).trimmed();
        item.value = setting.mid(equals + 1).trimmed();
    }
    return item;
}

// A line that holds a setting and a comment is written as its comment alone, the setting is lost:
// see docs/compatibility.md.
QString rendered(const ConfFile::T_ConfItem &item)
{
    QString line;
    if (!item.comment.isEmpty())
        line = QLatin1String("# ") + item.comment;
    else if (!item.key.isEmpty())
        line = item.key + QLatin1Char('=') + item.value;
    else
        line = item.line;
    return line.trimmed();
}

// Opens a file that has to be there already. Why that fails; empty when it does not.
QString openExisting(QFile &file, QIODevice::OpenMode mode)
{
    if (!file.exists())
        return QStringLiteral("File does not exist...");
    // Anything but a file, a pipe for one, could hold the program for ever.
    if (!QFileInfo(file).isFile() || !file.open(mode | QIODevice::Text))
        return oxlog::quoted(QStringLiteral("Cannot open file: %1!").arg(file.fileName()));
    return {};
}

} // namespace

ConfFile::ConfFile(const QString &fileName)
    : m_fileName(fileName)
{
}

bool ConfFile::LoadConf()
{
    m_items.clear();
    m_values.clear();
    QStringList lines;
    if (!loadToStringList(lines)) {
        oxlog::critical(OX_LOG_HERE, QStringLiteral("Loading file failed..."));
        return false;
    }
    for (const QString &line : std::as_const(lines)) {
        const T_ConfItem item = parsed(line);
        m_items.append(item);
        if (!item.key.isEmpty())
            m_values.insert(item.key, item.value);
    }
    return true;
}

bool ConfFile::SaveConf()
{
    // The first line of each key takes the value, later ones keep theirs. Lines without a setting
    // count as lines of the empty key; the value that one of them gets is never written.
    QHash<QString, int> firstIndex;
    firstIndex.reserve(m_items.size());
    for (int i = m_items.size() - 1; i >= 0; --i)
        firstIndex.insert(m_items.at(i).key, i);

    for (auto entry = m_values.cbegin(); entry != m_values.cend(); ++entry) {
        const auto found = firstIndex.constFind(entry.key());
        if (found != firstIndex.constEnd()) {
            m_items[*found].value = entry.value();
        } else {
            oxlog::debug(OX_LOG_HERE, QStringLiteral("Cannot find key: %1").arg(entry.key()));
            m_items.append({QString(), entry.key(), entry.value(), QString()});
        }
    }

    QStringList lines;
    lines.reserve(m_items.size());
    for (const T_ConfItem &item : std::as_const(m_items))
        lines.append(rendered(item));
    return saveFromStringList(lines);
}

bool ConfFile::loadToStringList(QStringList &lines)
{
    QFile file(m_fileName);
    const QString error = openExisting(file, QIODevice::ReadOnly);
    if (!error.isEmpty()) {
        oxlog::critical(OX_LOG_HERE, error);
        return false;
    }
    QTextStream stream(&file);
    const QString text = stream.readAll();
    if (file.error() != QFileDevice::NoError) {
        // What has come so far would be saved as the whole file.
        oxlog::critical(OX_LOG_HERE,
                        oxlog::quoted(QStringLiteral("Cannot read file: %1!").arg(m_fileName)));
        return false;
    }
    file.close();

    lines = text.split(QLatin1Char('\n'));
    while (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();
    return true;
}

bool ConfFile::saveFromStringList(const QStringList &lines)
{
    QFile file(m_fileName);
    const QString error = openExisting(file, QIODevice::WriteOnly);
    if (!error.isEmpty()) {
        oxlog::critical(OX_LOG_HERE, error);
        return false;
    }
    // As one text, so that the file stands truncated for as short as possible: the box may lose
    // power right after a setting is changed.
    QTextStream stream(&file);
    stream << lines.join(QLatin1Char('\n'));
    stream.flush();
    file.close();
    sync();
    return true;
}

QString &ConfFile::GetValue(const QString &key)
{
    return m_values[key];
}

void ConfFile::SetValue(const QString &key, const QString &value)
{
    m_values.insert(key, value);
}
