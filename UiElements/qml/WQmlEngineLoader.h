#pragma once

#include <UiElements/qml/WQmlEngine.h>
#include <UiElements/uielements_export.h>

#include <QObject>

/// Makes an engine when it is first asked for one.
///
/// The engine does not belong to the loader: it ends when the application is about to quit.
class UIELEMENTS_EXPORT WQmlEngineLoader : public QObject
{
    Q_OBJECT

public:
    class Impl;

    WQmlEngineLoader();
    ~WQmlEngineLoader() override;

    /// Null, with a warning, only without an application object to live in.
    WQmlEngine *getQmlEngine() const;

Q_SIGNALS:
    void sceneGraphCriticalError();
    void engineInitialized(WQmlEngine *qmlEngine);

private:
    Impl *const m_impl; // a child
};
