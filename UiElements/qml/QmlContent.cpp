#include "QmlContent_p.h"

#include "QmlEngineHub_p.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/qml/WPopupQuickView.h>
#include <UiElements/qml/WQmlController.h>
#include <UiElements/qml/WQmlEngine.h>
#include <UiElements/qml/WQuickView.h>
#include <UiElements/qml/WQuickWidget.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QDebug>
#include <QEvent>
#include <QGuiApplication>
#include <QJSValue>
#include <QLoggingCategory>
#include <QPalette>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

const QLatin1String devTools("DevToolsView");

/// Lines that nobody reads are not put together.
const QLoggingCategory &category()
{
    return *QLoggingCategory::defaultCategory();
}

void report(WQmlEngine *engine, WQmlEngine::QmlViewStatus status, const QmlRequest &request,
            const QString &message = QString())
{
    if (engine)
        Q_EMIT engine->qmlViewStatusChanged(status, request.source, message);
}

QString joined(const QList<QQmlError> &errors, QString (QQmlError::*text)() const)
{
    QStringList texts;
    for (const QQmlError &error : errors)
        texts << (error.*text)();
    return texts.join(QLatin1String(", "));
}

/// Whether a value means the same after the objects that it came from are gone.
bool isPlain(const QVariant &value)
{
    const int type = value.userType();
    if (type == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        return std::all_of(list.begin(), list.end(), isPlain);
    }
    if (type == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        return std::all_of(map.begin(), map.end(), isPlain);
    }
    return value.isValid() && !(QMetaType::typeFlags(type) & QMetaType::PointerToQObject);
}

QVariant plainValue(QVariant value)
{
    if (value.userType() == qMetaTypeId<QJSValue>())
        value = value.value<QJSValue>().toVariant();
    return isPlain(value) ? value : QVariant();
}

class ViewContent final : public QmlContent
{
public:
    ViewContent(WQuickView *view, WQmlEngine *engine, const QmlRequest &request)
        : QmlContent(view, engine, request)
        , m_view(view)
    {
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        connect(view, &QQuickWindow::sceneGraphError, this,
                [this](QQuickWindow::SceneGraphError, const QString &message) { onSceneGraphError(message); });
        follow(view);
        start();
    }

private:
    QObject *root() const override { return m_view->rootObject(); }
    QUrl source() const override { return m_view->source(); }
    QList<QQmlError> errors() const override { return m_view->errors(); }
    QQuickItem *contentItem() const override { return m_view->contentItem(); }
    bool isWidget() const override { return false; }
    void aboutToLoad() override { startMeasuring(m_view); }
    void setContent(const QUrl &url, QQmlComponent *component, QObject *root) override
    {
        // The view gives the item its own size at once, whatever that was for the content before.
        if (const auto *item = qobject_cast<QQuickItem *>(root))
            prepareSize(m_view, item);
        m_view->setContent(url, component, root);
    }
    void watchPerformance(const WQmlEngine *engine) override
    {
        m_view->setPerformanceWatcherEnabled(engine->isWatchingPerformance());
        if (engine->isWatchingPerformance())
            connect(m_view, &WQuickView::finishedRendering, engine, &WQmlEngine::finishedRendering);
    }
    void errorShown() override
    {
        // A window that has never had content is too small to read anything in.
        const QSize readable = m_view->size().expandedTo({480, 160}).boundedTo(m_view->maximumSize());
        m_sizedForError = m_sizedForError || readable != m_view->size();
        m_view->resize(readable);
    }
    void contentShown() override
    {
        if (std::exchange(m_sizedForError, false) && m_view->initialSize().isValid())
            m_view->resize(m_view->initialSize());
    }

    WQuickView *const m_view;
    bool m_sizedForError = false;
};

class WidgetContent final : public QmlContent
{
public:
    WidgetContent(WQuickWidget *view, WQmlEngine *engine, const QmlRequest &request)
        : QmlContent(view, engine, request)
        , m_view(view)
    {
        view->setResizeMode(QQuickWidget::SizeRootObjectToView);
        connect(view, &QQuickWidget::sceneGraphError, this,
                [this](QQuickWindow::SceneGraphError, const QString &message) { onSceneGraphError(message); });
        connect(view, &QQuickWidget::statusChanged, this,
                [this](QQuickWidget::Status status) { onStatus(QQmlComponent::Status(status)); });
        start();
    }

private:
    QObject *root() const override { return m_view->rootObject(); }
    QUrl source() const override { return m_view->source(); }
    QList<QQmlError> errors() const override { return m_view->errors(); }
    QQuickItem *contentItem() const override { return m_view->quickWindow()->contentItem(); }
    bool isWidget() const override { return true; }
    void aboutToLoad() override { startMeasuring(m_view); }
    void setContent(const QUrl &url, QQmlComponent *component, QObject *root) override
    {
        // As wide and high as the content wants to be, until somebody gives the widget a size.
        const auto *item = qobject_cast<QQuickItem *>(root);
        if (item && !m_view->testAttribute(Qt::WA_Resized)) {
            const QSizeF size =
                item->size().isEmpty() ? QSizeF(item->implicitWidth(), item->implicitHeight()) : item->size();
            if (!size.isEmpty())
                m_view->resize(size.toSize());
        }
        m_view->setContent(url, component, root);
    }
    void watchPerformance(const WQmlEngine *engine) override
    {
        m_view->setPerformanceWatcherEnabled(engine->isWatchingPerformance());
        if (engine->isWatchingPerformance())
            connect(m_view, &WQuickWidget::finishedRendering, engine, &WQmlEngine::finishedRendering);
    }
    void errorShown() override { m_view->update(); }
    void contentShown() override { }

    WQuickWidget *const m_view;
};

} // namespace

// --- the request

QString QmlRequest::name() const
{
    const int start = source.lastIndexOf(QLatin1Char('/')) + 1;
    const int dot = source.indexOf(QLatin1Char('.'), start);
    return source.mid(start, dot < 0 ? -1 : dot - start);
}

bool QmlRequest::isRefused(const char *emptyHint) const
{
    if (source.isEmpty()) {
        const char *const text = "Trying to create a Qml view for an empty source! This should never happen!";
        qWarning("%s%s", line(text).constData(), emptyHint);
        return true;
    }
    if (!QmlEngineHub::isInsideRoot(source)) {
        qWarning() << line("Refusing a Qml source that leads out of the QML root:").constData() << source;
        return true;
    }
    return false;
}

QVariantMap QmlRequest::initialProperties() const
{
    if (!controller)
        return {};
    return {{QStringLiteral("controller"), QVariant::fromValue(controller.data())}};
}

WQmlController *QmlRequest::findController(QObject *root)
{
    if (auto *controller = qobject_cast<WQmlController *>(root))
        return controller;
    return root ? root->findChild<WQmlController *>() : nullptr;
}

// --- the content of a view

void QmlContent::startMeasuring(WQuickView *view)
{
    view->startMeasuring();
}

void QmlContent::startMeasuring(WQuickWidget *view)
{
    view->startMeasuring();
}

void QmlContent::prepareSize(WQuickView *view, const QQuickItem *content)
{
    if (view->m_fixedSize)
        view->takeSize(content);
}

bool QmlContent::announce(WQmlEngine *engine, const QmlRequest &request)
{
    const QPointer<WQmlEngine> guard(engine);
    report(engine, WQmlEngine::Creating, request);
    return guard;
}

QPointer<WQuickView> QmlContent::makeWindow(WQmlEngine *engine, const QmlRequest &request, QWindow *parent)
{
    if (!announce(engine, request))
        return nullptr;
    const QPointer<WQuickView> view(new WQuickView(engine, parent));
    attach(view, engine, request);
    return view;
}

QPointer<WQuickView> QmlContent::makeDialog(WQmlEngine *engine, const QmlRequest &request, QWindow *parent,
                                            bool fixedSize)
{
    if (!announce(engine, request))
        return nullptr;
    const QPointer<WQuickView> view(new WQuickView(engine, parent));
    view->setFlag(Qt::Dialog);
    if (fixedSize) // before there is content, so that this has its own size from the start
        view->setupFixedSize();
    attach(view, engine, request);
    return view;
}

QPointer<WPopupQuickView> QmlContent::makePopup(WQmlEngine *engine, const QmlRequest &request, QWindow *parent,
                                                bool asDialog)
{
    if (!announce(engine, request))
        return nullptr;
    ViewOptions options;
    options.trackActivation = true;
    options.parentWindow = parent;
    const QPointer<WPopupQuickView> view(new WPopupQuickView(engine, parent, options));
    view->setFlag(Qt::FramelessWindowHint);
    if (asDialog)
        view->setFlag(Qt::Dialog);
    if (parent && parent->screen())
        view->setScreen(parent->screen());
    view->setupFixedSize();
    attach(view, engine, request);
    return view;
}

void QmlContent::attach(WQuickView *view, WQmlEngine *engine, const QmlRequest &request)
{
    new ViewContent(view, engine, request);
}

void QmlContent::attach(WQuickWidget *view, WQmlEngine *engine, const QmlRequest &request)
{
    new WidgetContent(view, engine, request);
}

QmlContent::QmlContent(QObject *view, WQmlEngine *engine, const QmlRequest &request)
    : QObject(view)
    , m_view(view)
    , m_engine(engine)
    , m_hub(QmlEngineHub::of(engine))
    , m_request(request)
    , m_name(request.name())
{
    m_hub->add(this);
}

QmlContent::~QmlContent()
{
    if (m_hub)
        m_hub->remove(this);
    qCInfo(category) << m_request.line("Qml view destroyed:").constData() << m_name;
    report(m_engine, WQmlEngine::DestroyedView, m_request);
}

void QmlContent::follow(WQuickView *view)
{
    view->m_content = this;
}

void QmlContent::start()
{
    QQuickWindow::setTextRenderType(QQuickWindow::QtTextRendering);
    m_view->setObjectName(m_name);
    if (m_name != devTools) {
        m_isReloadable = true;
        watchPerformance(m_engine);
    }
    if (m_request.controller)
        followController(m_request.controller);
    load(m_hub->url(m_request.source));
}

void QmlContent::onSceneGraphError(const QString &message)
{
    qWarning() << m_request.line("Critical Scene Graph Error creating:").constData() << m_name
               << " with message:" << message;
    if (m_engine)
        m_engine->onSceneGraphCriticalError();
}

void QmlContent::onStatus(QQmlComponent::Status status)
{
    const QPointer<QmlContent> self(this);
    switch (status) {
    case QQmlComponent::Loading: qCInfo(category) << m_request.line("Loading Qml view:").constData() << m_name; break;
    case QQmlComponent::Ready:
        qCInfo(category) << m_request.line("Qml view ready:").constData() << m_name;
        contentShown();
        if (self)
            report(m_engine, WQmlEngine::Ready, m_request);
        break;
    case QQmlComponent::Error: {
        const QList<QQmlError> all = m_creationErrors.isEmpty() ? errors() : m_creationErrors;
        qWarning() << m_request.line("Qml failed to load: ").constData() << m_name
                   << joined(all, &QQmlError::description);
        QString text;
        for (const QQmlError &error : all)
            text += error.toString() + QLatin1Char('\n');
        showError(text);
        report(m_engine, WQmlEngine::Error, m_request, joined(all, &QQmlError::toString));
        break;
    }
    case QQmlComponent::Null: break;
    }
}

void QmlContent::load(const QUrl &url)
{
    aboutToLoad();
    m_creationErrors.clear();
    delete m_errorItem;
    m_component = new QQmlComponent(m_engine, url, m_view);
    if (!m_component->isLoading()) {
        fill();
        return;
    }
    connect(m_component, &QQmlComponent::statusChanged, this, &QmlContent::fill);
    setContent(url, m_component, nullptr);
}

void QmlContent::fill()
{
    const QPointer<QmlContent> self(this);
    const QPointer<QQmlComponent> component(m_component);
    if (!component || !m_hub || component->isLoading())
        return;
    const QUrl url = component->url();
    QPointer<QObject> root;
    if (component->isReady()) {
        QVariantMap properties = m_request.initialProperties();
        root = m_hub->create(component, properties, &m_creationErrors);
        if (!self || !component || component != m_component) { // what it did while it was made ended the view
            delete root;
            return;
        }
        if (root && !qobject_cast<QQuickItem *>(root)) {
            QQmlError error;
            error.setUrl(url);
            error.setDescription(QStringLiteral("The root object is no Item: ")
                                 + QLatin1String(root->metaObject()->className()));
            m_creationErrors << error;
            delete root;
        }
    }
    if (root) {
        initialize(root);
        if (!self || !component || component != m_component) {
            delete root;
            return;
        }
    } else if (isWidget()) {
        qWarning().nospace().noquote() << m_request.line("Component creation failed (").constData() << m_name
                                       << ") , object: " << root.data() << " , errors:"
                                       << (m_creationErrors.isEmpty() ? component->errors() : m_creationErrors);
    }
    setContent(url, component, root);
}

void QmlContent::initialize(QObject *root)
{
    const QPointer<QmlContent> self(this);
    const QPointer<QObject> guard(root);
    report(m_engine, WQmlEngine::Initializing, m_request);
    if (self && guard && m_request.initialize) {
        WQmlController *const controller = QmlRequest::findController(root);
        if (controller)
            followController(controller);
        m_request.initialize(root, controller);
    }
    if (self && guard)
        restoreValues(root);
}

void QmlContent::followController(QObject *controller)
{
    if (m_controller)
        disconnect(m_controller, &QObject::destroyed, this, nullptr);
    m_controller = controller;
    connect(controller, &QObject::destroyed, this,
            [this] { report(m_engine, WQmlEngine::DestroyedController, m_request); });
}

// --- reloading

void QmlContent::unload(bool forGood)
{
    if (!forGood && (!m_isReloadable || !source().isValid() || source().scheme() == QLatin1String("qrc")))
        return;
    const QUrl url = source();
    keepValues(root());
    delete root(); // QQuickWidget::setContent() would leave it
    setContent(url, nullptr, nullptr);
    delete m_component;
    delete m_errorItem;
}

void QmlContent::reload()
{
    if (!m_isReloadable)
        return;
    const QUrl url = source();
    if (!url.isValid()) {
        qWarning("%s", m_request.line("Trying to reload an empty QML view").constData());
    } else if (url.scheme() == QLatin1String("qrc")) {
        qWarning("%s", m_request.line("Reloading views from QRC is not supported.").constData());
    } else {
        const QByteArray text = m_request.line("Reloading QML view:");
        if (m_request.isFromFactory())
            qCInfo(category) << text.constData() << url;
        else
            qWarning() << text.constData() << url;
        load(url);
    }
}

void QmlContent::keepValues(const QObject *root)
{
    // Values that wait for a broken file to be mended stay.
    if (!root)
        return;
    m_keptValues.clear();
    const QStringList names = plainValue(root->property("keptProperties")).toStringList();
    for (const QString &name : names) {
        const QVariant value = plainValue(root->property(name.toUtf8().constData()));
        if (value.isValid())
            m_keptValues.insert(name, value);
    }
}

void QmlContent::restoreValues(QObject *root)
{
    for (auto it = m_keptValues.cbegin(); it != m_keptValues.cend(); ++it) {
        const QByteArray name = it.key().toUtf8();
        if (root->metaObject()->indexOfProperty(name.constData()) >= 0)
            root->setProperty(name.constData(), it.value());
    }
    m_keptValues.clear();
}

void QmlContent::showError(const QString &text)
{
    delete m_errorItem;
    if (!m_engine)
        return;
    QQmlComponent component(m_engine);
    component.setData(R"(
import QtQuick 2.15
Rectangle {
    property string message
    property alias textColor: text.color
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message
    Flickable {
        anchors { fill: parent; margins: 12 }
        contentHeight: text.height
        clip: true
        TextEdit {
            id: text
            width: parent.width
            readOnly: true
            selectByMouse: true
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            text: message
        }
    }
}
)",
                      QUrl());
    if (!component.isReady())
        return; // QtQuick itself may be what is missing
    auto *item = qobject_cast<QQuickItem *>(component.create());
    if (!item)
        return;
    item->setProperty("message", text.trimmed());
    item->setParent(contentItem());
    item->setParentItem(contentItem());
    // Not the content item: in a widget that has no size as long as there is no root object.
    const QQuickWindow *window = contentItem()->window();
    const auto fit = [item, window] {
        item->setSize(window->size());
    };
    connect(window, &QWindow::widthChanged, item, fit);
    connect(window, &QWindow::heightChanged, item, fit);
    fit();
    m_errorItem = item;
    colorError();
    if (const auto *app = qobject_cast<IWApplication *>(QCoreApplication::instance()))
        connect(app, &IWApplication::colorSetsChanged, item, [this] { colorError(); });
    m_view->installEventFilter(this);
    errorShown();
}

void QmlContent::colorError()
{
    const QVariant told = m_controller ? m_controller->property("themeType") : QVariant();
    auto type = WThemeUtils::stringToThemeType(told.toString());
    if (type == WThemeUtils::AppThemeTypeGlobal)
        type = WThemeUtils::getThemeTypeOfWidget(qobject_cast<QWidget *>(m_view));
    const WColorSets &sets = WThemeUtils::getWColorSetsByThemeType(type);
    const auto color = [&sets](const char *name, QPalette::ColorRole role) {
        const auto it = sets.find(name);
        return it == sets.end() ? QGuiApplication::palette().color(role) : it->second.normal();
    };
    m_errorItem->setProperty("color", color("background-primary", QPalette::Window));
    m_errorItem->setProperty("textColor", color("text-primary", QPalette::WindowText));
}

bool QmlContent::eventFilter(QObject *watched, QEvent *event)
{
    const bool mayChangeTheme =
        event->type() == QEvent::StyleChange || event->type() == QEvent::ParentChange || event->type() == QEvent::Show;
    if (watched == m_view && mayChangeTheme && m_errorItem)
        colorError();
    return QObject::eventFilter(watched, event);
}

// --- objects without a view

namespace {

void finishObject(WQmlEngine *engine, QQmlComponent *component, const QmlRequest &request, bool hasParent,
                  const QPointer<QObject> &parent, const std::function<void(QObject *)> &onCreated)
{
    if (component->isError()) {
        qWarning().nospace().noquote() << request.line("Qml component error (").constData() << request.name()
                                       << ") :" << component->errorString();
        const QPointer<WQmlEngine> guard(engine);
        report(engine, WQmlEngine::Error, request, joined(component->errors(), &QQmlError::toString));
        report(guard, WQmlEngine::DestroyedView, request);
        return;
    }
    const QPointer<WQmlEngine> guard(engine);
    QList<QQmlError> errors;
    const QPointer<QObject> object(QmlEngineHub::of(engine)->create(component, request.initialProperties(), &errors));
    if (!object || (hasParent && !parent)) {
        delete object;
        report(guard, WQmlEngine::DestroyedView, request);
        return;
    }
    object->setParent(parent);
    const QString name = request.name();
    object->setObjectName(name);
    QObject::connect(object, &QObject::destroyed, [guard, prefix = request.prefix, source = request.source, name] {
        QmlRequest ended;
        ended.prefix = prefix;
        ended.source = source;
        qCInfo(category) << ended.line("Qml component destroyed:").constData() << name;
        report(guard, WQmlEngine::DestroyedView, ended);
    });
    report(guard, WQmlEngine::Initializing, request);
    if (object && request.initialize)
        request.initialize(object, QmlRequest::findController(object));
    if (object && onCreated)
        onCreated(object);
    qCInfo(category) << request.line("Qml component ready: ").constData() << name;
    report(guard, WQmlEngine::Ready, request);
}

} // namespace

void QmlContent::makeObject(WQmlEngine *engine, const QmlRequest &request, QObject *parent,
                            const std::function<void(QObject *)> &onCreated)
{
    if (!announce(engine, request))
        return;
    const QUrl url = QmlEngineHub::of(engine)->url(request.source);
    auto component = std::make_unique<QQmlComponent>(engine, url);
    // From the resources it may be ready, or in error, before anybody can connect to it.
    const bool hasParent = parent;
    if (!component->isLoading()) {
        finishObject(engine, component.get(), request, hasParent, parent, onCreated);
        return;
    }
    QQmlComponent *const loading = component.release();
    loading->setParent(engine);
    connect(loading, &QQmlComponent::statusChanged, engine,
            [engine, loading, request, guard = QPointer<QObject>(parent), hasParent, onCreated] {
                if (loading->isLoading())
                    return;
                loading->deleteLater();
                if (guard || !hasParent)
                    finishObject(engine, loading, request, hasParent, guard, onCreated);
            });
}
