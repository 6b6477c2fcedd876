#pragma once

#include <QDBusConnection>
#include <QLatin1String>
#include <QMap>
#include <QObject>
#include <QVariantMap>

class QDBusMessage;
class QDBusPendingCallWatcher;

/// The desktop's settings as its portal tells them, with their values freed from the variants around them. Never
/// blocks. Each signal may end the object.
class WSystemAppearancePortal : public QObject
{
    Q_OBJECT

public:
    using Settings = QMap<QString, QVariantMap>; ///< by name space, then by key

    static inline const QLatin1String appearanceSpace {"org.freedesktop.appearance"};
    static inline const QLatin1String interfaceSpace {"org.gnome.desktop.interface"};
    static inline const QLatin1String accessibilitySpace {"org.gnome.desktop.a11y.interface"};

    explicit WSystemAppearancePortal(QObject *parent);
    ~WSystemAppearancePortal() override;

Q_SIGNALS:
    /// All settings, in place of those before.
    void answered(const WSystemAppearancePortal::Settings &settings);
    void changed(const QString &space, const QString &key, const QVariant &value);
    /// What came is no answer, or no change.
    void misunderstood(const QString &what);

private Q_SLOTS:
    void onSettingChanged(const QDBusMessage &message);
    void onNameOwnerChanged(const QDBusMessage &message);

private:
    enum class Activation { Wanted, Unwanted };

    void callBus(const QString &method, const QVariantList &arguments);
    void ask(Activation activation);
    void onAnswer(QDBusPendingCallWatcher *call);

    QDBusConnection m_bus;
    QDBusPendingCallWatcher *m_call = nullptr; // the latest; answers to others are out of date
    QString m_owner; // who gave the last answer, empty once that is gone
};
