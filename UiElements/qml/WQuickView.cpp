#include <UiElements/qml/WQuickView.h>

#include "QmlAccessible_p.h"
#include "QmlContent_p.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/qml/WQmlController.h>
#include <UiElements/widgets/WidgetUtils.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QScreen>
#include <QTimer>

#include <cmath>

// Not QWindow's parent: that would put this window inside the other one.
WQuickView::WQuickView(QQmlEngine *engine, QWindow *parentWindow, const ViewOptions &options)
    : QQuickView(engine, nullptr)
{
    QmlAccessible::install();
    if (const auto *app = qobject_cast<WApplication *>(QCoreApplication::instance()))
        setIcon(app->getDialogIcon(parentWindow));
    if (QWindow *owner = topLevel(parentWindow)) {
        setTransientParent(owner);
        connect(owner, &QObject::destroyed, this, [this] {
            if (m_options.deleteOnClose)
                deleteLater();
        });
    }
    connect(this, &QQuickView::statusChanged, this, &WQuickView::onStatus);
    setViewOptions(options);
}

WQuickView::~WQuickView() = default;

void WQuickView::setAccessibleRole(QAccessible::Role role)
{
    m_accessibleRole = role;
}

void WQuickView::setViewOptions(const ViewOptions &options)
{
    // A window inside of another one is not told when that one moves.
    for (const QWindow *window = m_options.parentWindow; window; window = window->parent()) {
        disconnect(window, &QWindow::xChanged, this, &WQuickView::onActiveChanged);
        disconnect(window, &QWindow::yChanged, this, &WQuickView::onActiveChanged);
    }
    const bool wasTracking = std::exchange(m_options, options).trackActivation;
    if (!options.trackActivation) {
        if (wasTracking) {
            disconnect(this, &QWindow::activeChanged, this, &WQuickView::onActiveChanged);
            disconnect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WQuickView::onActiveChanged);
        }
        return;
    }
    connect(this, &QWindow::activeChanged, this, &WQuickView::onActiveChanged, Qt::UniqueConnection);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WQuickView::onActiveChanged, Qt::UniqueConnection);
    for (const QWindow *window = options.parentWindow; window; window = window->parent()) {
        connect(window, &QWindow::xChanged, this, &WQuickView::onActiveChanged, Qt::UniqueConnection);
        connect(window, &QWindow::yChanged, this, &WQuickView::onActiveChanged, Qt::UniqueConnection);
    }
}

void WQuickView::setPerformanceWatcherEnabled(bool on)
{
    if (m_watchingPerformance == on)
        return;
    m_watchingPerformance = on;
    m_requested.invalidate();
    // Render threads tell of their frames; the slot runs in the view's thread.
    if (on)
        connect(this, &QQuickWindow::frameSwapped, this, &WQuickView::onFrame, Qt::QueuedConnection);
    else
        disconnect(this, &QQuickWindow::frameSwapped, this, &WQuickView::onFrame);
}

void WQuickView::startMeasuring()
{
    if (m_watchingPerformance)
        m_requested.start();
}

void WQuickView::onFrame()
{
    if (!m_requested.isValid() || !rootObject())
        return;
    const qint64 time = m_requested.nsecsElapsed();
    m_requested.invalidate();
    Q_EMIT finishedRendering(source().toString(), time);
}

void WQuickView::setupFixedSize()
{
    m_fixedSize = true;
    updateSize();
    if (const QQuickItem *root = rootObject()) {
        connect(root, &QQuickItem::widthChanged, this, &WQuickView::updateSize, Qt::UniqueConnection);
        connect(root, &QQuickItem::heightChanged, this, &WQuickView::updateSize, Qt::UniqueConnection);
    }
}

void WQuickView::updateSize()
{
    if (const QQuickItem *root = rootObject())
        takeSize(root);
}

void WQuickView::takeSize(const QQuickItem *content)
{
    const QSize size(int(std::ceil(content->width())), int(std::ceil(content->height())));
    if (size.isEmpty())
        return;
    if (m_fixedSize) {
        setMinimumSize(size);
        setMaximumSize(size);
    }
    resize(size);
}

void WQuickView::showAt(const QPoint &globalPosition)
{
    m_showPosition = globalPosition;
    dispatchShow();
}

void WQuickView::dispatchShow()
{
    m_showWhenReady = true;
    if (status() != Loading)
        _dispatchShow();
}

void WQuickView::_dispatchShow()
{
    m_showWhenReady = false;
    const QPointer<WQuickView> self(this);
    place();
    if (!self)
        return;
    show();
    requestActivate();
}

void WQuickView::place()
{
    QScreen *const target = QGuiApplication::screenAt(m_showPosition);
    if (target && target != screen())
        setScreen(target);
    QList<QRect> areas;
    const QList<QScreen *> screens = target ? QList<QScreen *> {target} : QGuiApplication::screens();
    for (const QScreen *screen : screens)
        areas << screen->availableGeometry();
    setPosition(WidgetUtils::fittedToScreen(QRect(m_showPosition, size()), areas).topLeft());
}

QPointer<WQmlController> WQuickView::findController() const
{
    return QmlRequest::findController(rootObject());
}

void WQuickView::callControllerCallback(const std::function<void(WQmlController *)> &callback) const
{
    WQmlController *const controller = findController();
    if (callback && controller)
        callback(controller);
}

void WQuickView::onStatus(QQuickView::Status status)
{
    const QPointer<WQuickView> self(this);
    if (status == Ready && m_fixedSize)
        setupFixedSize();
    if (self && status != Loading && status != Null && m_showWhenReady)
        _dispatchShow();
    if (self && m_content)
        m_content->onStatus(QQmlComponent::Status(status));
}

QWindow *WQuickView::topLevel(QWindow *window)
{
    while (window && window->parent())
        window = window->parent();
    return window;
}

bool WQuickView::holdsFocus() const
{
    const QWindow *window = QGuiApplication::focusWindow();
    return window && (window == this || isAncestorOf(window, IncludeTransients));
}

void WQuickView::onActiveChanged()
{
    if (!isVisible()) {
        m_wasActive = false;
    } else if (holdsFocus()) {
        m_wasActive = true;
    } else if (m_wasActive) {
        // The focus may come back at once, or go on to a window that this one is opening.
        QTimer::singleShot(0, this, &WQuickView::closeUnlessFocused);
    }
}

void WQuickView::closeUnlessFocused()
{
    if (isVisible() && m_wasActive && !holdsFocus())
        close();
}

bool WQuickView::event(QEvent *event)
{
    const QPointer<WQuickView> self(this);
    if (event->type() == QEvent::Close) {
        Q_EMIT aboutToClose();
        if (!self)
            return true;
        if (m_options.deleteOnClose)
            deleteLater();
    } else if (event->type() == QEvent::Show) {
        Q_EMIT aboutToShow();
        if (!self)
            return true;
    }
    return QQuickView::event(event);
}

void WQuickView::keyPressEvent(QKeyEvent *event)
{
    const QPointer<WQuickView> self(this);
    if (event->key() == Qt::Key_Escape)
        Q_EMIT escapeKeyPressed();
    else if (event->key() == Qt::Key_F6)
        Q_EMIT f6KeyPressed();
    if (!self)
        return;
    // Without an item in focus nobody says that the key is not taken.
    const bool asked = activeFocusItem();
    QQuickView::keyPressEvent(event);
    if (self && closesOnEscape() && event->key() == Qt::Key_Escape && (!asked || !event->isAccepted())) {
        event->accept();
        const QPointer<QWindow> owner(transientParent());
        close();
        if (owner && owner->isVisible())
            owner->requestActivate();
    }
}
