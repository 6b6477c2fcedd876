#pragma once

#include <UiElements/qml/WQmlEngine.h>
#include <UiElements/qml/WQmlEngineLoader.h>
#include <UiElements/qml/WQmlViewFactory.h>

#include <QPointer>

/// An engine that watches its views, and what makes them. The engine ends with it.
class QmlMaker
{
public:
    QmlMaker();
    ~QmlMaker();
    QmlMaker(const QmlMaker &) = delete;
    QmlMaker &operator=(const QmlMaker &) = delete;

    /// Null when the application is about to quit.
    WQmlEngine *engine() const { return m_engine; }
    const WQmlViewFactory &factory() const { return m_factory; }

private:
    const WQmlEngineLoader m_loader;
    const WQmlViewFactory m_factory;
    const QPointer<WQmlEngine> m_engine;
};
