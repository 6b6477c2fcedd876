#include "QmlAccessible_p.h"

#include <UiElements/qml/WQmlEngine.h>
#include <UiElements/qml/WQuickView.h>
#include <UiElements/qml/WQuickWidget.h>

#include <QAccessibleWidget>
#include <QColor>
#include <QGuiApplication>
#include <QQuickItem>

namespace {

const char ownerProperty[] = "_uielements_widget";

WQuickWidget *ownerOf(const QObject *window)
{
    return window ? qobject_cast<WQuickWidget *>(window->property(ownerProperty).value<QObject *>()) : nullptr;
}

// Qt asks the factories for the interface that one of ours is put in front of.
bool askingQt = false;

/// An item of one of our engines. Inside a widget Qt takes it for invisible, since the window there is never shown.
class ItemAccessible : public QAccessibleInterface
{
public:
    explicit ItemAccessible(QAccessibleInterface *inner)
        : m_inner(inner)
        , m_item(static_cast<QQuickItem *>(inner->object()))
        , m_innerId(QAccessible::uniqueId(inner))
    {
    }
    ~ItemAccessible() override { QAccessible::deleteAccessibleInterface(m_innerId); }

    QAccessible::State state() const override
    {
        QAccessible::State state = m_inner->state();
        const WQuickWidget *owner = m_item ? ownerOf(m_item->window()) : nullptr;
        if (owner)
            state.invisible = !owner->isVisible() || !m_item->isVisible() || m_item->opacity() <= 0 || rect().isEmpty();
        return state;
    }

    bool isValid() const override { return m_inner->isValid(); }
    QObject *object() const override { return m_item; }
    QWindow *window() const override { return m_inner->window(); }
    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>> relations(QAccessible::Relation match) const override
    {
        return m_inner->relations(match);
    }
    QAccessibleInterface *focusChild() const override { return m_inner->focusChild(); }
    QAccessibleInterface *childAt(int x, int y) const override { return m_inner->childAt(x, y); }
    QAccessibleInterface *parent() const override { return m_inner->parent(); }
    QAccessibleInterface *child(int index) const override { return m_inner->child(index); }
    int childCount() const override { return m_inner->childCount(); }
    int indexOfChild(const QAccessibleInterface *child) const override { return m_inner->indexOfChild(child); }
    QString text(QAccessible::Text kind) const override { return m_inner->text(kind); }
    void setText(QAccessible::Text kind, const QString &text) override { m_inner->setText(kind, text); }
    QRect rect() const override { return m_inner->rect(); }
    QAccessible::Role role() const override { return m_inner->role(); }
    QColor foregroundColor() const override { return m_inner->foregroundColor(); }
    QColor backgroundColor() const override { return m_inner->backgroundColor(); }
    void virtual_hook(int id, void *data) override { m_inner->virtual_hook(id, data); }
    void *interface_cast(QAccessible::InterfaceType type) override { return m_inner->interface_cast(type); }

private:
    // Qt's registry owns it, and when it is emptied at the end of the program may delete it before this one.
    QAccessibleInterface *const m_inner;
    const QPointer<QQuickItem> m_item;
    const QAccessible::Id m_innerId;
};

void collect(const QQuickItem *item, QVector<QAccessibleInterface *> &found)
{
    const QList<QQuickItem *> items = item->childItems();
    for (QQuickItem *child : items) {
        if (!child->isVisible())
            continue;
        // Only items that were given a role have an interface; others are looked through.
        if (QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(child))
            found << interface;
        else
            collect(child, found);
    }
}

class WidgetAccessible : public QAccessibleWidget
{
public:
    explicit WidgetAccessible(WQuickWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Pane)
    {
    }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(view()->quickWindow()) : nullptr;
    }
    int childCount() const override { return 1; }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == view()->quickWindow() ? 0 : -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override { return rect().contains(x, y) ? child(0) : nullptr; }
    QAccessibleInterface *focusChild() const override
    {
        QAccessibleInterface *const window = child(0);
        return widget()->hasFocus() && window ? window->focusChild() : QAccessibleWidget::focusChild();
    }

private:
    WQuickWidget *view() const { return static_cast<WQuickWidget *>(widget()); }
};

} // namespace

void QmlAccessible::install()
{
    // Qt forgets all factories with the application object, and asks the newest one first.
    QAccessible::removeFactory(&QmlAccessible::create);
    QAccessible::installFactory(&QmlAccessible::create);
}

void QmlAccessible::setOwner(QQuickWindow *window, WQuickWidget *widget)
{
    window->setProperty(ownerProperty, QVariant::fromValue<QObject *>(widget));
}

QAccessibleInterface *QmlAccessible::create(const QString &, QObject *object)
{
    if (askingQt)
        return nullptr;
    if (auto *widget = qobject_cast<WQuickWidget *>(object))
        return new WidgetAccessible(widget);
    if (auto *item = qobject_cast<QQuickItem *>(object)) {
        // It may be asked for before the item is in a window.
        if (!qobject_cast<WQmlEngine *>(qmlEngine(item)))
            return nullptr;
        askingQt = true;
        QAccessibleInterface *const inner = QAccessible::queryAccessibleInterface(object);
        askingQt = false;
        return inner ? new ItemAccessible(inner) : nullptr;
    }
    auto *window = qobject_cast<QQuickWindow *>(object);
    return window && (qobject_cast<WQuickView *>(window) || ownerOf(window)) ? new QmlAccessible(window) : nullptr;
}

QmlAccessible::QmlAccessible(QQuickWindow *window)
    : QAccessibleObject(window)
{
}

QQuickWindow *QmlAccessible::quickWindow() const
{
    return static_cast<QQuickWindow *>(object());
}

QVector<QAccessibleInterface *> QmlAccessible::children() const
{
    QVector<QAccessibleInterface *> found;
    collect(quickWindow()->contentItem(), found);
    return found;
}

QAccessibleInterface *QmlAccessible::parent() const
{
    WQuickWidget *const owner = ownerOf(object());
    return QAccessible::queryAccessibleInterface(owner ? static_cast<QObject *>(owner) : qApp);
}

QAccessibleInterface *QmlAccessible::child(int index) const
{
    return children().value(index);
}

int QmlAccessible::childCount() const
{
    return children().size();
}

int QmlAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    return children().indexOf(const_cast<QAccessibleInterface *>(child));
}

QAccessibleInterface *QmlAccessible::childAt(int x, int y) const
{
    const QVector<QAccessibleInterface *> found = children();
    for (int i = found.size() - 1; i >= 0; --i) { // later ones are in front
        if (!found.at(i)->rect().contains(x, y))
            continue;
        QAccessibleInterface *const inner = found.at(i)->childAt(x, y);
        return inner ? inner : found.at(i);
    }
    return nullptr;
}

QAccessibleInterface *QmlAccessible::focusChild() const
{
    QQuickItem *item = quickWindow()->activeFocusItem();
    QAccessibleInterface *found = nullptr;
    for (; item && !found; item = item->parentItem())
        found = QAccessible::queryAccessibleInterface(item);
    return found;
}

QRect QmlAccessible::rect() const
{
    if (const WQuickWidget *owner = ownerOf(object()))
        return QRect(owner->mapToGlobal(QPoint()), owner->size());
    return quickWindow()->geometry();
}

QWindow *QmlAccessible::window() const
{
    if (const WQuickWidget *owner = ownerOf(object()))
        return owner->window()->windowHandle();
    return quickWindow();
}

QString QmlAccessible::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name)
        return QString();
    const WQuickWidget *owner = ownerOf(object());
    return owner ? owner->accessibleName() : quickWindow()->title();
}

QAccessible::Role QmlAccessible::role() const
{
    if (ownerOf(object()))
        return QAccessible::Grouping;
    const QAccessible::Role set = static_cast<WQuickView *>(object())->accessibleRole();
    return set == QAccessible::NoRole ? QAccessible::Window : set;
}

QAccessible::State QmlAccessible::state() const
{
    QAccessible::State state;
    if (const WQuickWidget *owner = ownerOf(object())) {
        state.invisible = !owner->isVisible();
    } else {
        state.active = QGuiApplication::focusWindow() == quickWindow();
        state.invisible = !quickWindow()->isVisible();
    }
    return state;
}
