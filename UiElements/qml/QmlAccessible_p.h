#pragma once

#include <QAccessibleObject>
#include <QPointer>

class QQuickItem;
class QQuickWindow;
class WQuickWidget;

/// A window of QML as a screen reader sees it: with the role that was set for it, and its items inside.
///
/// Qt shows the items of windows, but nothing of what is inside a QQuickWidget: its window, which is never shown,
/// stands apart from the widget. Here the window is the one child of the widget.
class QmlAccessible : public QAccessibleObject
{
public:
    static void install();
    /// Says to which widget a window belongs that is never shown.
    static void setOwner(QQuickWindow *window, WQuickWidget *widget);

    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    QRect rect() const override;
    QWindow *window() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

private:
    explicit QmlAccessible(QQuickWindow *window);
    static QAccessibleInterface *create(const QString &className, QObject *object);
    QQuickWindow *quickWindow() const;
    QVector<QAccessibleInterface *> children() const;
};
