#include <UiElements/qml/WQmlEngineLoader.h>

#include "WQmlEngineLoader_p.h"

#include <UiElements/qml/WQmlEngine.h>

#include <QCoreApplication>
#include <QDebug>
#include <QQuickWindow>

WQmlEngineLoader::Impl::Impl(QObject *parent)
    : QObject(parent)
{
}

WQmlEngineLoader::Impl::~Impl() = default;

WQmlEngine *WQmlEngineLoader::Impl::engine() const
{
    return m_engine;
}

void WQmlEngineLoader::Impl::load()
{
    if (m_engine) {
        qWarning("Qml engine has already been initialized.");
        return;
    }
    if (!QCoreApplication::instance() || QCoreApplication::closingDown()) {
        qWarning("WQmlEngineLoader - There is no application object for a QML engine to live in");
        return;
    }
    m_engine = new WQmlEngine(nullptr);
    connect(qApp, &QCoreApplication::aboutToQuit, m_engine.data(), &QObject::deleteLater);
    connect(m_engine.data(), &WQmlEngine::sceneGraphCriticalError, this, &Impl::sceneGraphCriticalError);
    Q_EMIT engineInitialized(m_engine);
    qDebug() << "Qml has been loaded. Backend: " << QQuickWindow::sceneGraphBackend();
    if (m_engine)
        qDebug() << "Qml search paths: " << m_engine->importPathList().join(QLatin1String(", "));
}

WQmlEngineLoader::WQmlEngineLoader()
    : m_impl(new Impl(this))
{
    connect(m_impl, &Impl::sceneGraphCriticalError, this, &WQmlEngineLoader::sceneGraphCriticalError);
    connect(m_impl, &Impl::engineInitialized, this, &WQmlEngineLoader::engineInitialized);
}

WQmlEngineLoader::~WQmlEngineLoader() = default;

WQmlEngine *WQmlEngineLoader::getQmlEngine() const
{
    if (!m_impl->engine())
        m_impl->load();
    return m_impl->engine();
}
