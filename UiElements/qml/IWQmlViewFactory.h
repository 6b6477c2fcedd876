#pragma once

#include <UiElements/uielements_export.h>

#include <QPointer>

#include <functional>

class QObject;
class QString;
class QWidget;
class QWindow;
class WCustomAccessibleQuickWidget;
class WPopupQuickView;
class WQuickView;
class WQuickWidget;

/// Makes QML surfaces. See WQmlViewFactory.
class UIELEMENTS_EXPORT IWQmlViewFactory
{
public:
    virtual ~IWQmlViewFactory();

    virtual QPointer<WQuickWidget> createQmlWidget(const QString &source, QWidget *parent,
                                                   QObject *controller) const = 0;
    virtual QPointer<WCustomAccessibleQuickWidget> createCustomAccessibleQmlWidget(const QString &source,
                                                                                   QWidget *parent,
                                                                                   QObject *controller) const = 0;
    virtual QPointer<WQuickView> createQmlWindow(const QString &source, QWindow *parent, QObject *controller) const = 0;
    virtual QPointer<WQuickView> createQmlDialog(const QString &source, QWindow *parent, QObject *controller,
                                                 bool fixedSize) const = 0;
    virtual QPointer<WPopupQuickView> createQmlPopup(const QString &source, QWindow *parent, QObject *controller,
                                                     bool asDialog) const = 0;
    virtual void createQmlComponent(const QString &source, QObject *parent, QObject *controller,
                                    const std::function<void(QObject *)> &onCreated) const = 0;

protected:
    IWQmlViewFactory() = default;
    IWQmlViewFactory(const IWQmlViewFactory &) = default;
    IWQmlViewFactory &operator=(const IWQmlViewFactory &) = default;
};
