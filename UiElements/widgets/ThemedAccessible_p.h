#pragma once

#include <QAccessible>
#include <QPointer>

/// Adds the role, the id and the key of a themed widget to the accessible interface that Qt made for it.
///
/// Qt's own interfaces know the text of an edit, the rows of a table and the value of a slider; none of their classes
/// is public. So this one stands in front, asks Qt's for everything and answers only these itself.
class ThemedAccessible : public QAccessibleInterface
{
public:
    /// From the first call in the life of an application object on, themed widgets get this interface.
    static void install();
    /// Makes sure of that for a widget whose Qt class announced something to accessibility in its constructor, when the
    /// widget was not yet a themed one.
    static void replaceEarlyInterface(QObject *widget);

    ~ThemedAccessible() override;

    bool isValid() const override;
    QObject *object() const override;
    QWindow *window() const override;
    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>> relations(QAccessible::Relation match) const override;
    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QColor foregroundColor() const override;
    QColor backgroundColor() const override;
    void virtual_hook(int id, void *data) override;
    void *interface_cast(QAccessible::InterfaceType type) override;

private:
    explicit ThemedAccessible(QAccessibleInterface *inner);
    static QAccessibleInterface *create(const QString &className, QObject *object);

    // Qt's registry owns it, and when it is emptied at the end of the program may delete it before this one.
    QAccessibleInterface *const m_inner;
    const QPointer<QObject> m_object;
    const QAccessible::Id m_innerId;
};
