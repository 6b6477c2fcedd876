#pragma once

#include <UiElements/keyboard/WKeySequenceLookup.h>
#include <UiElements/uielements_export.h>

#include <QObject>
#include <QString>

/// The second, small bus: the key sequences that views handle themselves, and what developers' tools announce.
///
/// The application object creates the one instance as its child.
class UIELEMENTS_EXPORT WGlobalSignalListener : public QObject
{
    Q_OBJECT

public:
    explicit WGlobalSignalListener(QObject *parent = nullptr);

    /// The listener of the application object. Without one "Unable to find WApplication" is logged and null returned.
    static WGlobalSignalListener *get();

Q_SIGNALS:
    void shortcutActivated(WKeySequenceLookup::Shortcut);
    void setDevToolsThemeMode(QString const &);
};
