#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Collects what is logged at warning level and above while it lives. Logs do not nest across threads.
class WarningLog
{
public:
    WarningLog()
        : m_outer(current())
    {
        current() = this;
        m_previous = qInstallMessageHandler(&WarningLog::handle);
    }
    ~WarningLog()
    {
        qInstallMessageHandler(m_previous);
        current() = m_outer;
    }
    WarningLog(const WarningLog &) = delete;
    WarningLog &operator=(const WarningLog &) = delete;

    /// The messages since the last call.
    QStringList take() { return std::exchange(m_messages, {}); }

private:
    static WarningLog *&current()
    {
        static WarningLog *log = nullptr;
        return log;
    }
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        // What the platform that the tests run on says of every window, and of a machine without a session.
        if (message == QLatin1String("This plugin does not support propagateSizeHints()")
            || message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR")))
            return;
        if (type == QtDebugMsg || type == QtInfoMsg)
            current()->m_previous(type, context, message);
        else
            current()->m_messages << message;
    }

    QStringList m_messages;
    QtMessageHandler m_previous = nullptr;
    WarningLog *const m_outer;
};
