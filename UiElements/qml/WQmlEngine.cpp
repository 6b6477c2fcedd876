#include <UiElements/qml/WQmlEngine.h>

#include "QmlContent_p.h"
#include "QmlEngineHub_p.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/app/WAppSignals.h>
#include <UiElements/qml/WCustomAccessibleQuickWidget.h>
#include <UiElements/qml/WPopupQuickView.h>
#include <UiElements/qml/WQmlController.h>

#include <QDebug>
#include <QDir>
#include <QLoggingCategory>
#include <QMetaEnum>

namespace {

void logStatus(WQmlEngine::QmlViewStatus status, const QString &viewName, const QString &message)
{
    if (status == WQmlEngine::Error) {
        qWarning() << "Qml ERROR! view: " << viewName << " msg: " << message;
    } else if (QLoggingCategory::defaultCategory()->isInfoEnabled()) {
        const char *const key = QMetaEnum::fromType<WQmlEngine::QmlViewStatus>().valueToKey(status);
        qInfo("Qml statusChanged(%s) %s %s", key, qUtf8Printable(viewName), qUtf8Printable(message));
    }
}

} // namespace

WQmlEngine::WQmlEngine(QObject *parent)
    : QQmlEngine(parent)
    , m_qmlDirectory(QDir::cleanPath(QStringLiteral(UIELEMENTS_QML_DIR)))
    , m_hub(std::make_unique<QmlEngineHub>(this))
{
    qRegisterMetaType<WQmlEngine::QmlViewStatus>("WQmlEngine::QmlViewStatus");
    fixImportPath();
    // Without it each component that is made asks the system for the working folder.
    setBaseUrl(baseUrl());
    if (const WAppSignals *bus = WAppSignals::get())
        connect(bus, &WAppSignals::reloadAllQmlViews, this, &WQmlEngine::reload);
    connect(this, &WQmlEngine::qmlViewStatusChanged, &logStatus);
}

WQmlEngine::~WQmlEngine()
{
    qDebug("WQmlEngine destroyed.");
    // Content that outlives its engine is dead but still there, and may call into what is gone.
    m_hub->unload(true);
    m_hub.reset();
}

void WQmlEngine::fixImportPath()
{
    const QByteArray variable = qgetenv("QML2_IMPORT_PATH");
    const QStringList entries = QString::fromLocal8Bit(variable).split(QLatin1Char(':'), Qt::SkipEmptyParts);
    if (entries.isEmpty())
        return;
    if (entries.size() > 1)
        qWarning("QML2_IMPORT_PATH should have only one path! This should NEVER happen!");
    QStringList paths;
    for (const QString &entry : entries) {
        const QString path = QDir::fromNativeSeparators(entry);
        if (path.isEmpty())
            continue;
        const QDir directory(path);
        if (directory.exists())
            paths << path;
        else
            qWarning() << "QML2_IMPORT_PATH is invalid! This should NEVER happen!"
                       << "isEmpty:" << directory.isEmpty() << "isRelative:" << directory.isRelative();
    }
    if (paths.isEmpty())
        qWarning("QML2_IMPORT_PATH isn't being set! This should NEVER happen!");
    else
        setImportPathList(paths);
}

void WQmlEngine::setQmlDirectory(const QString &directory)
{
    if (!QFileInfo(directory).isDir()) {
        qWarning() << "WQmlEngine::setQmlDirectory - There is no folder" << directory;
        return;
    }
    m_qmlDirectory = QDir::cleanPath(QDir(directory).absolutePath());
}

void WQmlEngine::setPerformanceWatcherEnabled(bool on)
{
    if (m_watchingPerformance == on)
        return;
    m_watchingPerformance = on;
    if (!on)
        disconnect(this, &WQmlEngine::finishedRendering, nullptr, nullptr);
}

void WQmlEngine::onSceneGraphCriticalError()
{
    if (m_sceneGraphErrorReported)
        return;
    const QPointer<WQmlEngine> self(this);
    Q_EMIT sceneGraphCriticalError();
    if (self)
        m_sceneGraphErrorReported = true;
}

void WQmlEngine::reload()
{
    qDebug("Reloading WQmlEngine");
    // In this order: what is still in use, or not yet collected, keeps its old types.
    const QPointer<WQmlEngine> self(this);
    m_hub->unload(false);
    if (!self)
        return;
    collectGarbage();
    clearComponentCache();
    const QStringList alive = m_hub->alive();
    if (!alive.isEmpty())
        qInfo() << "WQmlEngine::reload - Still alive:" << alive.join(QLatin1String(", "));
    Q_EMIT reloadAllQmlViews();
}

// --- Deprecated

namespace {

using Deprecated = WQmlEngine::Deprecated;

/// Null, with a warning, when the source cannot be loaded or there is no engine.
WQmlEngine *engineFor(const QmlRequest &request, const char *emptyHint = "")
{
    const auto *app = qobject_cast<IWApplication *>(QCoreApplication::instance());
    WQmlEngine *const engine = app ? app->getQmlEngine() : nullptr;
    if (!engine) {
        qWarning("Unable to create QML view! WQmlEngine is not attached to WApplication! This should never happen!");
        return nullptr;
    }
    return request.isRefused(emptyHint) ? nullptr : engine;
}

QmlRequest requestFor(const QString &source, const Deprecated::Properties &properties,
                      const Deprecated::OnComponentCreated &onCreated)
{
    QmlRequest request;
    request.source = source;
    request.initialize = [properties, onCreated](QObject *root, WQmlController *controller) {
        const QPointer<QObject> rootGuard(root);
        const QPointer<WQmlController> guard(controller);
        if (controller)
            controller->init(properties);
        if (onCreated && rootGuard)
            onCreated(root, guard);
    };
    return request;
}

QmlRequest requestFor(const QString &source, const Deprecated::Properties &properties,
                      const Deprecated::OnCreated &onCreated)
{
    return requestFor(source, properties,
                      Deprecated::OnComponentCreated([onCreated](QObject *, WQmlController *controller) {
                          if (onCreated && controller)
                              onCreated(controller);
                      }));
}

bool refusesParent(const QWidget *parent, const char *creator)
{
    if (!parent)
        qWarning("WQuickWidget should be created with a valid parent! Use WQmlEngine::Deprecated::%s to create a "
                 "popout window!",
                 creator);
    return !parent;
}

} // namespace

QPointer<WPopupQuickView> WQmlEngine::Deprecated::createQmlPopup(const QString &source, QWindow *parent,
                                                                 const Properties &properties,
                                                                 const OnCreated &onCreated, bool asDialog)
{
    const QmlRequest request = requestFor(source, properties, onCreated);
    WQmlEngine *const engine = engineFor(request);
    return engine ? QmlContent::makePopup(engine, request, parent, asDialog) : nullptr;
}

QPointer<WQuickView> WQmlEngine::Deprecated::createQmlDialog(const QString &source, QWindow *parent,
                                                             const Properties &properties, const OnCreated &onCreated,
                                                             bool fixedSize)
{
    const QmlRequest request = requestFor(source, properties, onCreated);
    WQmlEngine *const engine = engineFor(request);
    return engine ? QmlContent::makeDialog(engine, request, parent, fixedSize) : nullptr;
}

QPointer<WQuickView> WQmlEngine::Deprecated::createQmlWindow(const QString &source, QWindow *parent,
                                                             const Properties &properties, const OnCreated &onCreated)
{
    const QmlRequest request = requestFor(source, properties, onCreated);
    WQmlEngine *const engine = engineFor(request);
    return engine ? QmlContent::makeWindow(engine, request, parent) : nullptr;
}

QPointer<WQuickWidget> WQmlEngine::Deprecated::createQmlWidget(const QString &source, QWidget *parent,
                                                               const Properties &properties, const OnCreated &onCreated)
{
    if (refusesParent(parent, "createQmlWindow"))
        return nullptr;
    const QmlRequest request = requestFor(source, properties, onCreated);
    WQmlEngine *const engine = engineFor(request);
    return engine ? QmlContent::makeWidget<WQuickWidget>(engine, request, parent) : nullptr;
}

QPointer<WCustomAccessibleQuickWidget> WQmlEngine::Deprecated::createCustomAccessibleQmlWidget(
    const QString &source, QWidget *parent, const Properties &properties, const OnCreated &onCreated)
{
    // The text names this function itself, and hosts look for it.
    if (refusesParent(parent, "createCustomAccessibleQmlWidget"))
        return nullptr;
    const QmlRequest request = requestFor(source, properties, onCreated);
    WQmlEngine *const engine = engineFor(request);
    return engine ? QmlContent::makeWidget<WCustomAccessibleQuickWidget>(engine, request, parent) : nullptr;
}

void WQmlEngine::Deprecated::createQmlComponent(const QString &source, QObject *parent, const Properties &properties,
                                                const OnComponentCreated &onCreated)
{
    const QmlRequest request = requestFor(source, properties, onCreated);
    if (WQmlEngine *engine = engineFor(request, " Resource:"))
        QmlContent::makeObject(engine, request, parent, {});
}
