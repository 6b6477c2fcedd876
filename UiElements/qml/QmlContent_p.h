#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QUrl>
#include <QVariant>

#include <functional>

class QQuickItem;
class QWidget;
class QWindow;
class QmlEngineHub;
class WPopupQuickView;
class WQmlController;
class WQmlEngine;
class WQuickView;
class WQuickWidget;

/// What somebody asked for.
struct QmlRequest
{
    QString source;
    QLatin1String prefix; ///< of every line that is logged about it
    QPointer<QObject> controller;
    /// Sets up each root object that is made, with the controller found inside it.
    std::function<void(QObject *root, WQmlController *controller)> initialize;

    bool isFromFactory() const { return prefix.size() > 0; }
    QString name() const; ///< of the file, without folder and suffixes
    QByteArray line(const char *text) const { return QByteArray(prefix.data(), prefix.size()) + text; }

    /// Warns of a source that cannot be loaded.
    bool isRefused(const char *emptyHint = "") const;
    QVariantMap initialProperties() const;
    static WQmlController *findController(QObject *root);
};

/// Loads the content of a view, reports about it and loads it anew when the engine says so. It lives with the view, as
/// its child.
///
/// The view gets a component of its own, which costs next to nothing and which Qt may delete as it likes. The root
/// object comes from the one that the engine keeps.
class QmlContent : public QObject
{
    Q_OBJECT

public:
    ~QmlContent() override;

    /// What both the factory and the older creators make. Null only if what the view did while it loaded ended it.
    static QPointer<WQuickView> makeWindow(WQmlEngine *engine, const QmlRequest &request, QWindow *parent);
    static QPointer<WQuickView> makeDialog(WQmlEngine *engine, const QmlRequest &request, QWindow *parent,
                                           bool fixedSize);
    static QPointer<WPopupQuickView> makePopup(WQmlEngine *engine, const QmlRequest &request, QWindow *parent,
                                               bool asDialog);
    template <typename Widget>
    static QPointer<Widget> makeWidget(WQmlEngine *engine, const QmlRequest &request, QWidget *parent)
    {
        const QPointer<QWidget> parentGuard(parent);
        if (!announce(engine, request) || !parentGuard)
            return nullptr;
        const QPointer<Widget> widget(new Widget(engine, parent));
        attach(widget, engine, request);
        return widget;
    }
    static void makeObject(WQmlEngine *engine, const QmlRequest &request, QObject *parent,
                           const std::function<void(QObject *)> &onCreated);

    void onStatus(QQmlComponent::Status status);
    /// Empties the view, if it can be filled again or if that is not wanted.
    void unload(bool forGood);
    void reload();

protected:
    QmlContent(QObject *view, WQmlEngine *engine, const QmlRequest &request);

    void start();
    void onSceneGraphError(const QString &message);

    virtual QObject *root() const = 0;
    virtual QUrl source() const = 0;
    virtual QList<QQmlError> errors() const = 0;
    virtual QQuickItem *contentItem() const = 0;
    virtual void setContent(const QUrl &url, QQmlComponent *component, QObject *root) = 0;
    virtual void aboutToLoad() = 0;
    virtual void errorShown() = 0;
    virtual void contentShown() = 0;
    virtual bool isWidget() const = 0;
    /// The view calls onStatus().
    void follow(WQuickView *view);
    static void startMeasuring(WQuickView *view);
    static void startMeasuring(WQuickWidget *view);
    static void prepareSize(WQuickView *view, const QQuickItem *content);
    /// Connects the view to the engine's watcher, if that is on.
    virtual void watchPerformance(const WQmlEngine *engine) = 0;

private:
    /// False when somebody who was told ended the engine.
    static bool announce(WQmlEngine *engine, const QmlRequest &request);
    /// Names the view, connects it with the engine, and loads.
    static void attach(WQuickView *view, WQmlEngine *engine, const QmlRequest &request);
    static void attach(WQuickWidget *view, WQmlEngine *engine, const QmlRequest &request);

    void load(const QUrl &url);
    void fill();
    void initialize(QObject *root);
    void followController(QObject *controller);
    void keepValues(const QObject *root);
    void restoreValues(QObject *root);
    void showError(const QString &text);
    /// The colors of the theme, and of the window around a widget.
    void colorError();
    bool eventFilter(QObject *watched, QEvent *event) override;

    QObject *const m_view;
    const QPointer<WQmlEngine> m_engine;
    const QPointer<QmlEngineHub> m_hub;
    const QmlRequest m_request;
    const QString m_name;
    QPointer<QQmlComponent> m_component;
    QList<QQmlError> m_creationErrors;
    QVariantMap m_keptValues;
    QPointer<QObject> m_errorItem;
    QPointer<QObject> m_controller;
    bool m_isReloadable = false;
};
