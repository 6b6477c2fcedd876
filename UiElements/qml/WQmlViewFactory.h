#pragma once

#include <UiElements/qml/IWQmlViewFactory.h>

#include <QObject>

class WQmlEngineLoader;

/// Makes windows, widgets and bare objects from QML sources, on the engine of a loader.
///
/// A source is a path below the QML root; one that leads out of it is refused. The controller becomes the property
/// `controller` of the root object, also when the view is reloaded; it may be null and stays the caller's. Windows
/// belong to whoever holds them, or close for good (see ViewOptions); widgets belong to their parents.
///
/// When nothing could be made, after a warning, the answer is null. A view whose QML is broken is made: it shows what
/// is wrong, and the content when it is reloaded after the fault is gone. A view whose source is called DevToolsView
/// is neither reloaded nor measured.
///
/// The loader must outlive the factory. What the factory made does not need it.
class UIELEMENTS_EXPORT WQmlViewFactory : public QObject, public IWQmlViewFactory
{
    Q_OBJECT

public:
    explicit WQmlViewFactory(const WQmlEngineLoader &loader);
    ~WQmlViewFactory() override;

    QPointer<WQuickWidget> createQmlWidget(const QString &source, QWidget *parent, QObject *controller) const override;
    QPointer<WCustomAccessibleQuickWidget> createCustomAccessibleQmlWidget(const QString &source, QWidget *parent,
                                                                           QObject *controller) const override;
    QPointer<WQuickView> createQmlWindow(const QString &source, QWindow *parent, QObject *controller) const override;
    QPointer<WQuickView> createQmlDialog(const QString &source, QWindow *parent, QObject *controller,
                                         bool fixedSize) const override;
    QPointer<WPopupQuickView> createQmlPopup(const QString &source, QWindow *parent, QObject *controller,
                                             bool asDialog) const override;
    /// The object is a child of `parent`. The callback gets it as soon as the QML has loaded, as a rule before this
    /// function returns.
    void createQmlComponent(const QString &source, QObject *parent, QObject *controller,
                            const std::function<void(QObject *)> &onCreated) const override;

private:
    const WQmlEngineLoader &m_loader;
};
