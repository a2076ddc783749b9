// SPDX-License-Identifier: MIT
// A text file of key=value lines, changed by key and saved back in place: line order, comments
// and lines of any other kind (section headers too, there is no section handling) are kept. Keys
// are case-sensitive. The text is in the locale's encoding.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class ConfFile
{
public:
    // One line of the file, every part trimmed.
    struct T_ConfItem
    {
        QString line;    // the whole line, comment included
        QString key;     // before the first "="; empty if there is none before the comment
        QString value;   // after that "=", further ones included
        QString comment; // after the first "#"
    };

    // Takes the path; nothing is read yet.
    explicit ConfFile(const QString &fileName);

    // Reads the file in place of any earlier content. False: it does not exist, cannot be opened or
    // cannot be read to its end, and there is no content.
    [[nodiscard]] bool LoadConf();

    // Brings the values into their lines, those of new keys into new lines at the end, and
    // rewrites the file. False: it does not exist (it is never created) or cannot be opened. A
    // failure while writing is not detected.
    [[nodiscard]] bool SaveConf();

    // Reads the lines of the file, without the empty ones at its end. False as LoadConf(), lines
    // stay as they are.
    [[nodiscard]] bool loadToStringList(QStringList &lines);

    // Writes the lines, without a line end after the last one, and has them on the storage before
    // it returns. False as SaveConf().
    [[nodiscard]] bool saveFromStringList(const QStringList &lines);

    // The value of a key, to read or to change. A missing key is added with an empty value, and so
    // gets into the file with the next SaveConf(). Valid until the next call that adds a key.
    QString &GetValue(const QString &key);

    // Sets the value of a key, which is added if it is missing.
    void SetValue(const QString &key, const QString &value);

private:
    QList<T_ConfItem> m_items;
    QHash<QString, QString> m_values;
    QString m_fileName;
};
