#include <UiElements/qml/WQmlViewFactory.h>

#include "QmlContent_p.h"

#include <UiElements/qml/WCustomAccessibleQuickWidget.h>
#include <UiElements/qml/WPopupQuickView.h>
#include <UiElements/qml/WQmlEngine.h>
#include <UiElements/qml/WQmlEngineLoader.h>

namespace {

QmlRequest requestFor(const QString &source, QObject *controller)
{
    QmlRequest request;
    request.source = source;
    request.prefix = QLatin1String("[WQmlViewFactory] ");
    request.controller = controller;
    return request;
}

/// Null, with a warning, when the source cannot be loaded or there is no engine.
WQmlEngine *engineFor(const QmlRequest &request, const WQmlEngineLoader &loader)
{
    if (request.isRefused())
        return nullptr;
    WQmlEngine *const engine = loader.getQmlEngine();
    if (!engine)
        qWarning("[WQmlViewFactory] Unable to create a Qml view, because there is no QML engine");
    return engine;
}

bool refusesParent(const QWidget *parent, const char *className)
{
    if (!parent)
        qWarning("[WQmlViewFactory] %s should be created with a valid parent! Use WQmlViewFactory::createQmlWindow to "
                 "create a popout window!",
                 className);
    return !parent;
}

} // namespace

WQmlViewFactory::WQmlViewFactory(const WQmlEngineLoader &loader)
    : m_loader(loader)
{
}

WQmlViewFactory::~WQmlViewFactory() = default;

QPointer<WQuickWidget> WQmlViewFactory::createQmlWidget(const QString &source, QWidget *parent,
                                                        QObject *controller) const
{
    if (refusesParent(parent, "WQuickWidget"))
        return nullptr;
    const QmlRequest request = requestFor(source, controller);
    WQmlEngine *const engine = engineFor(request, m_loader);
    return engine ? QmlContent::makeWidget<WQuickWidget>(engine, request, parent) : nullptr;
}

QPointer<WCustomAccessibleQuickWidget> WQmlViewFactory::createCustomAccessibleQmlWidget(const QString &source,
                                                                                        QWidget *parent,
                                                                                        QObject *controller) const
{
    if (refusesParent(parent, "WCustomAccessibleQuickWidget"))
        return nullptr;
    const QmlRequest request = requestFor(source, controller);
    WQmlEngine *const engine = engineFor(request, m_loader);
    return engine ? QmlContent::makeWidget<WCustomAccessibleQuickWidget>(engine, request, parent) : nullptr;
}

QPointer<WQuickView> WQmlViewFactory::createQmlWindow(const QString &source, QWindow *parent, QObject *controller) const
{
    const QmlRequest request = requestFor(source, controller);
    WQmlEngine *const engine = engineFor(request, m_loader);
    return engine ? QmlContent::makeWindow(engine, request, parent) : nullptr;
}

QPointer<WQuickView> WQmlViewFactory::createQmlDialog(const QString &source, QWindow *parent, QObject *controller,
                                                      bool fixedSize) const
{
    const QmlRequest request = requestFor(source, controller);
    WQmlEngine *const engine = engineFor(request, m_loader);
    return engine ? QmlContent::makeDialog(engine, request, parent, fixedSize) : nullptr;
}

QPointer<WPopupQuickView> WQmlViewFactory::createQmlPopup(const QString &source, QWindow *parent, QObject *controller,
                                                          bool asDialog) const
{
    const QmlRequest request = requestFor(source, controller);
    WQmlEngine *const engine = engineFor(request, m_loader);
    return engine ? QmlContent::makePopup(engine, request, parent, asDialog) : nullptr;
}

void WQmlViewFactory::createQmlComponent(const QString &source, QObject *parent, QObject *controller,
                                         const std::function<void(QObject *)> &onCreated) const
{
    const QmlRequest request = requestFor(source, controller);
    if (WQmlEngine *engine = engineFor(request, m_loader))
        QmlContent::makeObject(engine, request, parent, onCreated);
}
