#pragma once

#include <UiElements/uielements_export.h>

#include <QMap>
#include <QPointer>
#include <QQmlEngine>
#include <QVariant>

#include <functional>
#include <memory>

class QWidget;
class QWindow;
class QmlEngineHub;
class WCustomAccessibleQuickWidget;
class WPopupQuickView;
class WQmlController;
class WQuickView;
class WQuickWidget;

/// The engine of all QML surfaces of a program.
///
/// It lives in the GUI thread and has no parent when a WQmlEngineLoader or the application object makes it. Keep it in
/// a QPointer: it ends when the application is about to quit. The views that it shows are then unloaded before it.
///
/// Relative URLs begin in the folder in which the program was when the engine was made; see setBaseUrl().
class UIELEMENTS_EXPORT WQmlEngine : public QQmlEngine
{
    Q_OBJECT

public:
    enum QmlViewStatus { Creating, Initializing, Ready, DestroyedController, DestroyedView, Error };
    Q_ENUM(QmlViewStatus)

    /// Creators that find the engine through the application object. WQmlViewFactory supersedes them.
    struct Deprecated;

    explicit WQmlEngine(QObject *parent = nullptr);
    ~WQmlEngine() override;

    /// Takes the import path from the environment variable QML2_IMPORT_PATH, in the place of Qt's defaults. Folders
    /// that do not exist are left out, each with a warning; without any that does nothing changes.
    void fixImportPath();

    /// Views made from now on take their QML from qmlDirectory() instead of from the library.
    bool isReadingQmlFromDisk() const { return m_readQmlFromDisk; }
    void setReadQmlFromDisk(bool read) { m_readQmlFromDisk = read; }

    /// The QML root on disk: at first the folder of the sources that the library was built from.
    QString qmlDirectory() const { return m_qmlDirectory; }
    /// Refused, with a warning, when there is no such folder.
    void setQmlDirectory(const QString &directory);

    /// Views made from now on measure how long they take from the request to their first frame. Turned off, everyone
    /// is disconnected from finishedRendering(), whoever connected.
    bool isWatchingPerformance() const { return m_watchingPerformance; }
    void setPerformanceWatcherEnabled(bool on);

Q_SIGNALS:
    /// `viewName` is the source as it was asked for; `message` gives the reason of an Error and is empty otherwise.
    void qmlViewStatusChanged(WQmlEngine::QmlViewStatus status, const QString &viewName, const QString &message);
    void reloadAllQmlViews();
    /// The time is in nanoseconds, as the views tell it.
    void finishedRendering(const QString &source, qint64 milisec);
    /// Emitted once in the life of the engine.
    void sceneGraphCriticalError();

public Q_SLOTS:
    void onSceneGraphCriticalError();
    /// Loads all views anew that came from disk: they are emptied first and what is left of them is collected, so that
    /// nothing old is used again. Each keeps its controller, and the values of the properties whose names its root
    /// object lists in a property `keptProperties`. What stays alive all the same (bare components) is logged. Code in
    /// QML that wants it asks through Qt.callLater(): Qt ends a program that deletes an item while one of its handlers
    /// runs.
    void reload();

private:
    friend class QmlEngineHub;

    bool m_readQmlFromDisk = false;
    bool m_watchingPerformance = false;
    bool m_sceneGraphErrorReported = false;
    QString m_qmlDirectory;
    std::unique_ptr<QmlEngineHub> m_hub;
};

/// The source is a path below the QML root; one that leads out of it is refused. The properties are handed to
/// WQmlController::init() of the first controller inside the QML, and that controller to the callback; both again for
/// the new controller when the view was reloaded. Null, after a warning, when nothing was made.
struct UIELEMENTS_EXPORT WQmlEngine::Deprecated
{
    using Properties = QMap<QString, QVariant>;
    using OnCreated = std::function<void(WQmlController *)>;
    using OnComponentCreated = std::function<void(QObject *, WQmlController *)>;

    static QPointer<WPopupQuickView> createQmlPopup(const QString &source, QWindow *parent,
                                                    const Properties &properties, const OnCreated &onCreated,
                                                    bool asDialog);
    static QPointer<WQuickView> createQmlDialog(const QString &source, QWindow *parent, const Properties &properties,
                                                const OnCreated &onCreated, bool fixedSize);
    static QPointer<WQuickView> createQmlWindow(const QString &source, QWindow *parent, const Properties &properties,
                                                const OnCreated &onCreated);
    static QPointer<WQuickWidget> createQmlWidget(const QString &source, QWidget *parent, const Properties &properties,
                                                  const OnCreated &onCreated);
    static QPointer<WCustomAccessibleQuickWidget> createCustomAccessibleQmlWidget(const QString &source,
                                                                                  QWidget *parent,
                                                                                  const Properties &properties,
                                                                                  const OnCreated &onCreated);
    /// The object belongs to `parent` and is handed to the callback.
    static void createQmlComponent(const QString &source, QObject *parent, const Properties &properties,
                                   const OnComponentCreated &onCreated);
};
