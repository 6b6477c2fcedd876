#pragma once

#include <UiElements/uielements_export.h>

#include <QObject>
#include <QPoint>
#include <QPointer>

class IWQmlViewFactory;
class QWidget;
class QWindow;
class WQuickView;

/// One QML window that can be opened again and again: made when it is opened, brought to the front while it is open,
/// gone when it is closed. It ends with the context.
///
/// It appears where the user left it, at first in the middle of its parent window. The factory must outlive the
/// context.
class UIELEMENTS_EXPORT WQuickViewContext : public QObject
{
    Q_OBJECT

public:
    WQuickViewContext(const IWQmlViewFactory &factory, const QString &source, QObject *parent = nullptr);
    ~WQuickViewContext() override;

    QString source() const { return m_source; }

    /// The window above which the view stays.
    QWindow *parentWindow() const;
    void setParentWindow(QWindow *window);
    /// The window that the widget is in when the view is opened.
    void setParentWidget(QWidget *widget);

    /// What the next view that is made gets as its controller. It stays the caller's. A child of the context lives on
    /// for as long as an open view needs it when the context ends.
    QObject *controller() const { return m_controller; }
    void setController(QObject *controller) { m_controller = controller; }

    bool isOpen() const { return !m_view.isNull(); }
    QPointer<WQuickView> view() const { return m_view; }

    /// False, after a warning, when there is nothing to show.
    bool open();

public Q_SLOTS:
    void close();

Q_SIGNALS:
    void opened();
    /// The view was closed, by whomever. The context may be opened again, or deleted.
    void closed();

protected:
    /// Makes the view.
    virtual QPointer<WQuickView> createView(const IWQmlViewFactory &factory);
    /// Shows it for the first time.
    virtual void showView();
    /// The view is gone, or going; before closed().
    virtual void viewClosed();
    /// The view has a root object, at first and after each time it is reloaded.
    virtual void rootLoaded(QObject *root);
    /// Connects a signal of the root object, named "accepted()", with a slot of this, if it has that signal.
    void connectRoot(QObject *root, const char *signal, const char *slot);

private:
    void onStatusChanged();
    void onClosed();
    void tellClosed();

    const IWQmlViewFactory &m_factory;
    const QString m_source;
    QPointer<QWindow> m_parentWindow;
    QPointer<QWidget> m_parentWidget;
    QPointer<QObject> m_controller;
    QPointer<WQuickView> m_view;
    QPoint m_lastPosition;
    bool m_hasLastPosition = false;
    bool m_isClosing = false; // until closed() is emitted
};
