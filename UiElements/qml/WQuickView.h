#pragma once

#include <UiElements/qml/ViewOptions.h>
#include <UiElements/uielements_export.h>

#include <QAccessible>
#include <QElapsedTimer>
#include <QQuickView>

#include <functional>

class QQuickItem;
class QmlContent;
class WQmlController;

/// A window that shows QML.
///
/// It belongs to whoever holds it; with ViewOptions::deleteOnClose it ends when it is closed, or when its parent window
/// ends. The parent window is its transient parent: the view is a window of its own that stays above it.
class UIELEMENTS_EXPORT WQuickView : public QQuickView
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(QAccessible::Role accessibleRole READ accessibleRole WRITE setAccessibleRole)

public:
    explicit WQuickView(QQmlEngine *engine, QWindow *parentWindow = nullptr, const ViewOptions &options = {});
    ~WQuickView() override;

    /// What a screen reader calls the window; NoRole leaves it to Qt.
    QAccessible::Role accessibleRole() const { return m_accessibleRole; }
    void setAccessibleRole(QAccessible::Role role);

    const ViewOptions &getViewOptions() const { return m_options; }
    void setViewOptions(const ViewOptions &options);

    /// Whether the view measures, from its next content on, the time from the request to the first frame.
    void setPerformanceWatcherEnabled(bool on);

    /// From now on the window has the size of its content and follows it.
    void setupFixedSize();

    /// Shows the view with its top left corner there, or as near as its screen allows, once its content has loaded.
    void showAt(const QPoint &globalPosition);

    /// The first controller inside the root object; null without one.
    QPointer<WQmlController> findController() const;
    void callControllerCallback(const std::function<void(WQmlController *)> &callback) const;

Q_SIGNALS:
    void aboutToClose();
    void aboutToShow();
    /// The time is in nanoseconds.
    void finishedRendering(const QString &source, qint64 milisec);
    void escapeKeyPressed();
    void f6KeyPressed();

public Q_SLOTS:
    void _dispatchShow();
    /// Closes a view that tracks activation when it has lost it, once the event that took it is over.
    virtual void onActiveChanged();
    void updateSize();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    /// Called when the view has its content and is about to be shown by showAt().
    virtual void place();
    void dispatchShow();
    virtual bool closesOnEscape() const { return m_options.closeOnEscape; }
    static QWindow *topLevel(QWindow *window);
    /// Whether the focus is in this window or in one that belongs to it.
    bool holdsFocus() const;

private:
    friend class QmlContent;
    void startMeasuring();
    void takeSize(const QQuickItem *content);
    void onFrame();
    void onStatus(QQuickView::Status status);
    void closeUnlessFocused();

    ViewOptions m_options;
    QmlContent *m_content = nullptr; // a child; none in a view that its host fills
    QAccessible::Role m_accessibleRole = QAccessible::NoRole;
    bool m_watchingPerformance = false;
    bool m_fixedSize = false;
    bool m_showWhenReady = false;
    bool m_wasActive = false;
    QPoint m_showPosition;
    QElapsedTimer m_requested;
};
