#include <UiElements/keyboard/WKeyboardShortcutsManager.h>

#include <UiElements/app/WApplication.h>
#include <UiElements/app/WGlobalSignalListener.h>
#include <UiElements/keyboard/WKeyEvent.h>

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QScopedValueRollback>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

using Shortcut = WKeySequenceLookup::Shortcut;
using Group = WKeySequenceLookup::Group;

/// A key press that a manager hands to its target to see whether it is used there. Managers further out see it too.
struct Delivery
{
    const QEvent *event;
    const QObject *target;
    const Delivery *outer;
};
const Delivery *s_delivery = nullptr;

/// Whether the event goes on to a parent of the widget that it was handed to.
bool leavesTarget(const QEvent *event, const QObject *receiver)
{
    for (const Delivery *delivery = s_delivery; delivery; delivery = delivery->outer) {
        const auto *target = qobject_cast<const QWidget *>(delivery->target);
        const auto *widget = qobject_cast<const QWidget *>(receiver);
        if (delivery->event == event && target && widget && widget != target && widget->isAncestorOf(target))
            return true;
    }
    return false;
}

bool isBeingDelivered(const QEvent *event, const QObject *target)
{
    for (const Delivery *delivery = s_delivery; delivery; delivery = delivery->outer) {
        if (delivery->event == event && delivery->target == target)
            return true;
    }
    return false;
}

bool isKnown(Shortcut shortcut, const char *function)
{
    if (QMetaEnum::fromType<Shortcut>().valueToKey(int(shortcut)))
        return true;
    qWarning("WKeyboardShortcutsManager::%s - Unknown shortcut: %d", function, int(shortcut));
    return false;
}

} // namespace

WKeyboardShortcutsManager::WKeyboardShortcutsManager(QObject *parent)
    : QObject(parent)
{
}

WKeyboardShortcutsManager::~WKeyboardShortcutsManager()
{
    releaseAll();
}

void WKeyboardShortcutsManager::setTarget(QObject *target)
{
    if (target && !target->isWidgetType() && !target->isWindowType()) {
        qWarning("WKeyboardShortcutsManager::setTarget - Neither a widget nor a window: %s",
                 target->metaObject()->className());
        return;
    }
    if (target == m_target)
        return;
    if (m_target)
        disconnect(m_target, nullptr, this, nullptr);
    m_target = target;
    // On the application, because the platform asks the element with the focus alone whether it claims a key, and that
    // may be an item of QML, which has no parents that are asked next.
    if (QCoreApplication *app = QCoreApplication::instance()) {
        app->removeEventFilter(this);
        if (target) {
            app->installEventFilter(this);
            if (auto *gui = qobject_cast<QGuiApplication *>(app))
                connect(gui, &QGuiApplication::focusWindowChanged, this, &WKeyboardShortcutsManager::releaseAll,
                        Qt::UniqueConnection);
        }
    }
    if (target)
        connect(target, &QObject::destroyed, this, &WKeyboardShortcutsManager::onTargetDestroyed);
    QPointer<WKeyboardShortcutsManager> self(this);
    releaseAll();
    if (self)
        Q_EMIT targetChanged();
}

void WKeyboardShortcutsManager::onTargetDestroyed()
{
    if (QCoreApplication *app = QCoreApplication::instance())
        app->removeEventFilter(this);
    m_target.clear();
    QPointer<WKeyboardShortcutsManager> self(this);
    releaseAll();
    if (self)
        Q_EMIT targetChanged();
}

void WKeyboardShortcutsManager::setGroups(const QVector<Group> &groups)
{
    for (Group group : groups) {
        if (!QMetaEnum::fromType<Group>().valueToKey(int(group))) {
            qWarning("WKeyboardShortcutsManager::setGroups - Unknown group: %d", int(group));
            return;
        }
    }
    if (m_groups == groups)
        return;
    m_groups = groups;
    Q_EMIT groupsChanged();
}

QVariantList WKeyboardShortcutsManager::groupList() const
{
    QVariantList list;
    for (Group group : m_groups)
        list << int(group);
    return list;
}

void WKeyboardShortcutsManager::setGroupList(const QVariantList &groups)
{
    QVector<Group> typed;
    for (const QVariant &number : groups) {
        bool ok = false;
        const int value = number.toInt(&ok);
        typed << Group(ok ? value : -1);
    }
    setGroups(typed);
}

void WKeyboardShortcutsManager::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    QPointer<WKeyboardShortcutsManager> self(this);
    if (!enabled)
        releaseAll();
    if (self)
        Q_EMIT enabledChanged(enabled);
}

void WKeyboardShortcutsManager::setBeforeChildren(bool before)
{
    if (m_beforeChildren == before)
        return;
    m_beforeChildren = before;
    Q_EMIT beforeChildrenChanged(before);
}

bool WKeyboardShortcutsManager::isShortcutEnabled(Shortcut shortcut) const
{
    return isKnown(shortcut, "isShortcutEnabled") && !m_disabled.contains(shortcut);
}

void WKeyboardShortcutsManager::setShortcutEnabled(Shortcut shortcut, bool enabled)
{
    if (!isKnown(shortcut, "setShortcutEnabled"))
        return;
    m_disabled.removeAll(shortcut);
    if (enabled)
        return;
    m_disabled << shortcut;
    const auto held =
        std::find_if(m_held.begin(), m_held.end(), [shortcut](const Held &h) { return h.shortcut == shortcut; });
    if (held != m_held.end()) {
        m_held.erase(held);
        Q_EMIT released(shortcut);
    }
}

bool WKeyboardShortcutsManager::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (!isInside(watched) || wanted(*static_cast<QKeyEvent *>(event)) == Shortcut::NoShortcut)
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress: return onKeyPress(watched, static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease: release(*static_cast<QKeyEvent *>(event)); return false;
    default: return false;
    }
}

/// Whether the key events of the receiver are those of the target.
bool WKeyboardShortcutsManager::isInside(const QObject *receiver) const
{
    if (!m_target || receiver == m_target)
        return m_target;
    if (const auto *item = qobject_cast<const QQuickItem *>(receiver))
        receiver = item->window();
    if (const auto *window = qobject_cast<const QQuickWindow *>(receiver)) {
        if (window == m_target)
            return true;
        // A QQuickWidget's window is on no screen and knows nothing of the widget.
        const auto *widget = qobject_cast<QQuickWidget *>(QApplication::focusWidget());
        if (!widget || widget->quickWindow() != window)
            return false;
        receiver = widget;
    }
    const auto *widget = qobject_cast<const QWidget *>(receiver);
    if (!widget)
        return false;
    if (const auto *target = qobject_cast<const QWidget *>(m_target))
        return target == widget || target->isAncestorOf(widget);
    return widget->window()->windowHandle() == m_target;
}

Shortcut WKeyboardShortcutsManager::wanted(const QKeyEvent &event) const
{
    const auto *widget = qobject_cast<const QWidget *>(m_target);
    if (!m_enabled || m_groups.isEmpty() || (widget && !widget->isEnabled()))
        return Shortcut::NoShortcut;
    const QVector<Shortcut> all = WKeySequenceLookup::findAll(WKeyEvent(event), m_groups);
    const auto first =
        std::find_if(all.begin(), all.end(), [this](Shortcut shortcut) { return !m_disabled.contains(shortcut); });
    return first == all.end() ? Shortcut::NoShortcut : *first;
}

bool WKeyboardShortcutsManager::onKeyPress(QObject *watched, QKeyEvent *event)
{
    if (leavesTarget(event, watched)) {
        event->ignore();
        return true;
    }
    const bool atTarget = watched == m_target;
    if (!atTarget && !(m_beforeChildren && isInside(watched)))
        return false;
    if (isBeingDelivered(event, m_target))
        return false;
    const Shortcut shortcut = wanted(*event);
    if (shortcut == Shortcut::NoShortcut)
        return false;
    if (!m_beforeChildren || WKeySequenceLookup::comesAfterInputs(shortcut)) {
        if (!atTarget)
            return false;
        QPointer<WKeyboardShortcutsManager> self(this);
        if (usesKey(event) || !self)
            return true;
    }
    event->accept();
    if (!event->isAutoRepeat())
        activate(shortcut, *event);
    return true;
}

/// Hands the press to the target and all its event filters, but not to the parents that would be next.
bool WKeyboardShortcutsManager::usesKey(QKeyEvent *event)
{
    const Delivery delivery = {event, m_target, s_delivery};
    const QScopedValueRollback<const Delivery *> rollback(s_delivery, &delivery);
    QCoreApplication::sendEvent(m_target, event);
    return event->isAccepted();
}

void WKeyboardShortcutsManager::activate(Shortcut shortcut, const QKeyEvent &event)
{
    const bool isHeld =
        std::any_of(m_held.begin(), m_held.end(), [shortcut](const Held &held) { return held.shortcut == shortcut; });
    if (!isHeld)
        m_held << Held {shortcut, event.key(), event.nativeScanCode()};
    const QPointer<WKeyboardShortcutsManager> self(this);
    const auto *app = qobject_cast<WApplication *>(QCoreApplication::instance());
    if (WGlobalSignalListener *listener = app ? app->getGlobalSignalListener() : nullptr)
        Q_EMIT listener->shortcutActivated(shortcut);
    if (self)
        Q_EMIT activated(shortcut);
}

void WKeyboardShortcutsManager::release(const QKeyEvent &event)
{
    if (event.isAutoRepeat())
        return;
    // By the physical key where it is known: with Shift let go before, the key has another name.
    const auto held = std::find_if(m_held.begin(), m_held.end(), [&event](const Held &h) {
        return h.nativeScanCode ? h.nativeScanCode == event.nativeScanCode() : h.key == event.key();
    });
    if (held == m_held.end())
        return;
    const Shortcut shortcut = held->shortcut;
    m_held.erase(held);
    Q_EMIT released(shortcut);
}

void WKeyboardShortcutsManager::releaseAll()
{
    const QVector<Held> all = std::exchange(m_held, {});
    const QPointer<WKeyboardShortcutsManager> self(this);
    for (const Held &held : all) {
        if (self)
            Q_EMIT released(held.shortcut);
    }
}
