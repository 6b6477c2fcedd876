#include "ThemedAccessible_p.h"

#include <UiElements/keyboard/WShortcut.h>
#include <UiElements/widgets/ThemeSupport.h>

#include <QColor>
#include <QRect>
#include <QWidget>
#include <QWindow>

namespace {

// Qt asks the factories for the interface that this one is put in front of.
bool askingQt = false;

const ThemeSupport *supportOf(QObject *object)
{
    return object && object->isWidgetType() ? ThemeSupport::of(static_cast<QWidget *>(object)) : nullptr;
}

} // namespace

void ThemedAccessible::install()
{
    // Qt knows a factory that it has already, and forgets all of them with the application object.
    QAccessible::installFactory(&ThemedAccessible::create);
}

void ThemedAccessible::replaceEarlyInterface(QObject *widget)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
    if (interface && !dynamic_cast<ThemedAccessible *>(interface))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(interface));
}

QAccessibleInterface *ThemedAccessible::create(const QString &, QObject *object)
{
    if (askingQt || !supportOf(object))
        return nullptr;
    askingQt = true;
    QAccessibleInterface *inner = QAccessible::queryAccessibleInterface(object);
    askingQt = false;
    return inner ? new ThemedAccessible(inner) : nullptr;
}

ThemedAccessible::ThemedAccessible(QAccessibleInterface *inner)
    : m_inner(inner)
    , m_object(inner->object())
    , m_innerId(QAccessible::uniqueId(inner))
{
}

ThemedAccessible::~ThemedAccessible()
{
    QAccessible::deleteAccessibleInterface(m_innerId);
}

bool ThemedAccessible::isValid() const
{
    return m_inner->isValid();
}

QObject *ThemedAccessible::object() const
{
    return m_object;
}

QWindow *ThemedAccessible::window() const
{
    return m_inner->window();
}

QVector<QPair<QAccessibleInterface *, QAccessible::Relation>> ThemedAccessible::relations(
    QAccessible::Relation match) const
{
    return m_inner->relations(match);
}

QAccessibleInterface *ThemedAccessible::focusChild() const
{
    return m_inner->focusChild();
}

QAccessibleInterface *ThemedAccessible::childAt(int x, int y) const
{
    return m_inner->childAt(x, y);
}

QAccessibleInterface *ThemedAccessible::parent() const
{
    return m_inner->parent();
}

QAccessibleInterface *ThemedAccessible::child(int index) const
{
    return m_inner->child(index);
}

int ThemedAccessible::childCount() const
{
    return m_inner->childCount();
}

int ThemedAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    return m_inner->indexOfChild(child);
}

QString ThemedAccessible::text(QAccessible::Text kind) const
{
    if (kind == ThemeSupport::ElementUniqueIdText) {
        if (const ThemeSupport *support = supportOf(object()))
            return support->elementUniqueId();
    }
    if (kind == QAccessible::Accelerator) {
        const WShortcut *shortcut = WShortcut::attachedTo(qobject_cast<QWidget *>(object()));
        if (shortcut && !shortcut->key().isEmpty())
            return shortcut->key().toString(QKeySequence::NativeText);
    }
    return m_inner->text(kind);
}

void ThemedAccessible::setText(QAccessible::Text kind, const QString &text)
{
    m_inner->setText(kind, text);
}

QRect ThemedAccessible::rect() const
{
    return m_inner->rect();
}

QAccessible::Role ThemedAccessible::role() const
{
    const ThemeSupport *support = supportOf(object());
    return support && support->accessibleRole() != QAccessible::NoRole ? support->accessibleRole() : m_inner->role();
}

QAccessible::State ThemedAccessible::state() const
{
    return m_inner->state();
}

QColor ThemedAccessible::foregroundColor() const
{
    return m_inner->foregroundColor();
}

QColor ThemedAccessible::backgroundColor() const
{
    return m_inner->backgroundColor();
}

void ThemedAccessible::virtual_hook(int id, void *data)
{
    m_inner->virtual_hook(id, data);
}

void *ThemedAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return m_inner->interface_cast(type);
}
