#include <UiElements/qml/WQuickViewContext.h>

#include <UiElements/qml/IWQmlViewFactory.h>
#include <UiElements/qml/WQuickView.h>

#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>
#include <QWidget>

WQuickViewContext::WQuickViewContext(const IWQmlViewFactory &factory, const QString &source, QObject *parent)
    : QObject(parent)
    , m_factory(factory)
    , m_source(source)
{
}

WQuickViewContext::~WQuickViewContext()
{
    if (!m_view)
        return;
    disconnect(m_view, nullptr, this, nullptr);
    // The context may be deleted by the QML of this very view. The view ends later and then takes the controller along.
    if (m_controller && m_controller->parent() == this)
        m_controller->setParent(m_view);
    m_view->hide();
    m_view->deleteLater();
}

QWindow *WQuickViewContext::parentWindow() const
{
    return m_parentWidget ? m_parentWidget->window()->windowHandle() : m_parentWindow.data();
}

void WQuickViewContext::setParentWindow(QWindow *window)
{
    m_parentWindow = window;
    m_parentWidget = nullptr;
}

void WQuickViewContext::setParentWidget(QWidget *widget)
{
    m_parentWindow = nullptr;
    m_parentWidget = widget;
}

bool WQuickViewContext::open()
{
    if (m_view) {
        if (m_view->windowStates() & Qt::WindowMinimized)
            m_view->showNormal();
        m_view->raise();
        m_view->requestActivate();
        return true;
    }
    const QPointer<WQuickViewContext> self(this);
    tellClosed(); // opened again by whoever was told the outcome
    if (!self || m_view)
        return self && m_view;
    const QPointer<WQuickView> view = createView(m_factory);
    if (!self) {
        delete view;
        return false;
    }
    if (!view)
        return false;
    m_view = view;
    connect(view, &WQuickView::aboutToClose, this, &WQuickViewContext::onClosed);
    connect(view, &QObject::destroyed, this, &WQuickViewContext::onClosed);
    connect(view, &QQuickView::statusChanged, this, &WQuickViewContext::onStatusChanged);
    onStatusChanged();
    showView();
    if (!self || m_view != view)
        return false;
    Q_EMIT opened();
    return true;
}

void WQuickViewContext::close()
{
    // A view that was not yet shown is not told to close.
    if (m_view && !m_view->handle())
        onClosed();
    else if (m_view)
        m_view->close();
}

QPointer<WQuickView> WQuickViewContext::createView(const IWQmlViewFactory &factory)
{
    return factory.createQmlWindow(m_source, parentWindow(), m_controller);
}

void WQuickViewContext::showView()
{
    QPoint position = m_lastPosition;
    if (!m_hasLastPosition) {
        const QWindow *parent = parentWindow();
        const QScreen *screen = parent ? parent->screen() : QGuiApplication::primaryScreen();
        QRect area = parent ? parent->geometry() : screen ? screen->availableGeometry() : QRect();
        if (parent && parent->parent())
            area.moveTopLeft(parent->mapToGlobal(QPoint()));
        QRect centered(QPoint(), m_view->size());
        centered.moveCenter(area.center());
        position = centered.topLeft();
    }
    m_view->showAt(position);
}

void WQuickViewContext::viewClosed() { }

void WQuickViewContext::rootLoaded(QObject *) { }

void WQuickViewContext::connectRoot(QObject *root, const char *signal, const char *slot)
{
    const QMetaObject *const meta = root->metaObject();
    const int index = meta->indexOfSignal(signal);
    if (index >= 0)
        QMetaObject::connect(root, index, this, metaObject()->indexOfSlot(slot));
}

void WQuickViewContext::onStatusChanged()
{
    if (m_view && m_view->rootObject())
        rootLoaded(m_view->rootObject());
}

void WQuickViewContext::onClosed()
{
    // A view that was destroyed without being closed is null here already.
    if (const QPointer<WQuickView> view = std::exchange(m_view, nullptr)) {
        disconnect(view, nullptr, this, nullptr);
        if (view->handle()) {
            m_lastPosition = view->position();
            m_hasLastPosition = true;
        }
        // Closed in a way that keeps it: nobody would show it again.
        if (!view->getViewOptions().deleteOnClose || !view->handle())
            view->deleteLater();
    }
    const QPointer<WQuickViewContext> self(this);
    m_isClosing = true;
    viewClosed();
    if (self)
        tellClosed();
}

void WQuickViewContext::tellClosed()
{
    if (std::exchange(m_isClosing, false))
        Q_EMIT closed();
}
