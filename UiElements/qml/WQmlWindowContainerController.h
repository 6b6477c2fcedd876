#pragma once

#include <UiElements/qml/WQmlController.h>

#include <QPointer>

class QWidget;
class WQuickView;

/// Joins a QML window that is embedded in a widget, its container, to the focus chain of the widgets around it.
///
/// QML takes the focus when focusIn() says so, at its first or last item by the reason, and gives it back with
/// onFocusOut().
class UIELEMENTS_EXPORT WQmlWindowContainerController : public WQmlController
{
    Q_OBJECT

public:
    explicit WQmlWindowContainerController(QObject *parent = nullptr);
    ~WQmlWindowContainerController() override;

    /// The background of the view becomes transparent. Without one of the two nothing changes.
    void setViewAndContainer(const QPointer<QWidget> &container, const QPointer<WQuickView> &view);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The container got the focus, other than by its window becoming active.
    void focusIn(Qt::FocusReason reason);

public Q_SLOTS:
    /// Moves the focus past the container: back for Qt::BacktabFocusReason, on for every other reason.
    void onFocusOut(Qt::FocusReason forward);

private:
    QPointer<QWidget> m_container;
    QPointer<WQuickView> m_view;
};
