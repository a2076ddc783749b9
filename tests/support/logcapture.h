// SPDX-License-Identifier: MIT
// Collects what goes to the toolkit's log while it lives, then gives the log back.
#pragma once

#include <QStringList>
#include <QVector>

class LogCapture
{
public:
    struct Message
    {
        QtMsgType type;
        int line;
        QString file, function, text;
    };

    LogCapture() { s_messages.clear(); }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(LogCapture)

    static const QVector<Message> &messages() { return s_messages; }

    // The messages of one source file (the toolkit's own have none), each behind a letter: D for
    // debug, C for what is worse.
    static QStringList texts(const QString &file)
    {
        QStringList result;
        for (const Message &message : qAsConst(s_messages)) {
            if (message.file == file)
                result << QLatin1String(message.type == QtDebugMsg ? "D " : "C ") + message.text;
        }
        return result;
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        s_messages.append({type, context.line, QString::fromUtf8(context.file),
                           QString::fromUtf8(context.function), text});
    }

    static inline QVector<Message> s_messages;
    const QtMessageHandler m_previous = qInstallMessageHandler(&LogCapture::collect);
};
