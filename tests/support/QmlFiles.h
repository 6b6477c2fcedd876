#pragma once

#include <UiElements/qml/WQmlEngine.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/// Collects every message while it lives, as "D text" (debug), "I text" (info) or "W text" (warnings and above).
class MessageLog
{
public:
    MessageLog()
    {
        current() = this;
        m_previous = qInstallMessageHandler(&MessageLog::handle);
    }
    ~MessageLog()
    {
        qInstallMessageHandler(m_previous);
        current() = nullptr;
    }
    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;

    QStringList take() { return std::exchange(m_messages, {}); }
    QStringList takeWarnings() { return take().filter(QRegularExpression(QStringLiteral("^W "))); }

private:
    static MessageLog *&current()
    {
        static MessageLog *log = nullptr;
        return log;
    }
    static void handle(QtMsgType type, const QMessageLogContext &, const QString &message)
    {
        // What the platform that the tests run on says of every window, and of a machine without a session.
        if (message == QLatin1String("This plugin does not support propagateSizeHints()")
            || message == QLatin1String("This plugin does not support raise()")
            || message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR")))
            return;
        const char *const kind = type == QtDebugMsg ? "D " : type == QtInfoMsg ? "I " : "W ";
        current()->m_messages << QLatin1String(kind) + message;
    }

    QStringList m_messages;
    QtMessageHandler m_previous = nullptr;
};

/// A QML root of its own, in which files may be written and broken.
class QmlFiles
{
public:
    explicit QmlFiles(WQmlEngine *engine)
    {
        engine->setQmlDirectory(m_folder.path());
        engine->setReadQmlFromDisk(true);
    }
    void write(const char *name, const QByteArray &body)
    {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("import QtQuick 2.15\n" + body + '\n');
    }
    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

/// Ends what was told to end later.
inline void deleteNow()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
