// QML: from the request of a small popup (two files) to its root object, and an embedded list of 10,000 rows.

#include "Bench.h"

#include <UiElements/qml/WPopupQuickView.h>
#include <UiElements/qml/WQmlEngine.h>
#include <UiElements/qml/WQmlEngineLoader.h>
#include <UiElements/qml/WQmlViewFactory.h>
#include <UiElements/qml/WQuickWidget.h>

#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQuickItem>
#include <QStringListModel>

#include <cmath>
#include <memory>
#include <vector>

namespace {

constexpr int Popups = 50;
constexpr int RowCount = 10000;

class ListController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *model READ model CONSTANT)

public:
    ListController()
    {
        QStringList rows;
        for (int i = 0; i < RowCount; ++i)
            rows << QStringLiteral("Participant number %1").arg(i);
        m_model.setStringList(rows);
    }
    QAbstractItemModel *model() { return &m_model; }

private:
    QStringListModel m_model;
};

struct State
{
    State()
        : factory(loader)
        , engine(loader.getQmlEngine())
        , kept(engine, url)
        , keptList(engine, QUrl(QStringLiteral("qrc:/Qml/bench/List.qml")))
    {
    }
    ~State() { delete engine; }

    QVariantMap properties() { return {{QStringLiteral("controller"), QVariant::fromValue<QObject *>(&controller)}}; }

    /// Until the widget has drawn its content.
    double firstFrame(const std::function<QQuickWidget *(QWidget *)> &make)
    {
        QWidget window;
        window.resize(400, 500);
        window.show();
        QCoreApplication::processEvents();
        const double start = bench::microseconds();
        QQuickWidget *const widget = make(&window);
        bool drawn = false;
        QObject::connect(widget->quickWindow(), &QQuickWindow::afterRendering, widget, [&drawn] { drawn = true; });
        widget->show();
        while (!drawn && bench::microseconds() - start < 5e6)
            QCoreApplication::processEvents();
        return drawn ? bench::microseconds() - start : std::nan("");
    }

    const QUrl url {QStringLiteral("qrc:/Qml/bench/Popup.qml")};
    const QString source = QStringLiteral("bench/Popup.qml");
    WQmlEngineLoader loader;
    WQmlViewFactory factory;
    WQmlEngine *const engine;
    QQmlComponent kept;
    QQmlComponent keptList;
    ListController controller;
};

/// Microseconds for `times` objects that all stay until the last one is there.
template <typename Make>
bench::Sample each(const std::shared_ptr<std::unique_ptr<State>> &s, int times, Make make)
{
    return [s, times, make] {
        // Many leave garbage that takes as long to collect as ten of them to make: not at the cost of the next sample.
        if (times > 1)
            (*s)->engine->collectGarbage();
        std::vector<std::unique_ptr<QObject>> made;
        made.reserve(std::size_t(times));
        const double start = bench::microseconds();
        for (int i = 0; i < times; ++i)
            made.emplace_back(make());
        return (bench::microseconds() - start) / times;
    };
}

} // namespace

namespace {

/// The variants of a subject run in the caches that the one before left: each subject has only what it compares.
bench::Subject subjectOf(const char *name, const std::shared_ptr<std::unique_ptr<State>> &s)
{
    bench::Subject subject;
    subject.name = QLatin1String(name);
    subject.rounds = 301;
    subject.quickRounds = 61;
    subject.prepare = [s] {
        // As in a host that does not read the progress of every view.
        QLoggingCategory::setFilterRules(QStringLiteral("default.info=false\ndefault.debug=false"));
        *s = std::make_unique<State>();
        const std::unique_ptr<WQuickView> view(
            (*s)->factory.createQmlPopup((*s)->source, nullptr, &(*s)->controller, false));
        if (!view || view->status() != QQuickView::Ready || !(*s)->kept.isReady() || !(*s)->keptList.isReady())
            return QStringLiteral("the sources do not load");
        return QString();
    };
    return subject;
}

} // namespace

std::vector<bench::Subject> bench::qml()
{
    const auto s = std::make_shared<std::unique_ptr<State>>();
    const auto popup = [s]() -> QObject * {
        return (*s)->factory.createQmlPopup((*s)->source, nullptr, &(*s)->controller, false);
    };
    const auto window = [s]() -> QObject * {
        return (*s)->factory.createQmlWindow((*s)->source, nullptr, &(*s)->controller);
    };
    const auto bare = [s] {
        return (*s)->kept.createWithInitialProperties((*s)->properties());
    };
    const auto setSource = [s]() -> QObject * {
        auto *view = new QQuickView((*s)->engine, nullptr);
        view->setInitialProperties((*s)->properties());
        view->setSource((*s)->url);
        return view;
    };
    const auto bareView = [s]() -> QObject * {
        auto *view = new QQuickView((*s)->engine, nullptr);
        auto *component = new QQmlComponent((*s)->engine, (*s)->url, view); // without one it would never be ready
        view->setContent((*s)->url, component, (*s)->kept.createWithInitialProperties((*s)->properties()));
        return view;
    };
    const QLatin1String popupName("popup of the factory"), windowName("window of the factory"),
        bareName("object of a kept component"), bareViewName("the object in a QQuickView"),
        setSourceName("QQuickView::setSource"), listName("list in a factory widget"),
        bareListName("list in a bare QQuickWidget"), enginesName("engines before the first request");

    Subject one = subjectOf("qml", s);
    one.variants = {{popupName, each(s, 1, popup)},
                    {windowName, each(s, 1, window)},
                    {bareName, each(s, 1, bare)},
                    {bareViewName, each(s, 1, bareView)},
                    {setSourceName, each(s, 1, setSource)}};
    one.rows = {{QLatin1String("qml: popup, request to ready"), popupName, bareName, 1.15},
                {QLatin1String("qml: window, request to ready"), windowName, bareName, 1.15},
                {QLatin1String("qml: popup, request to ready"), popupName, setSourceName, 0.7},
                {QLatin1String("qml: popup, request to ready"), popupName, bareViewName, std::nullopt}};

    Subject fifty = subjectOf("qml, many", s);
    fifty.variants = {{popupName, each(s, Popups, popup)},
                      {bareName, each(s, Popups, bare)},
                      {bareViewName, each(s, Popups, bareView)}};
    fifty.rows = {{QLatin1String("qml: fifty popups, each"), popupName, bareName, 1.05},
                  {QLatin1String("qml: fifty popups, each"), popupName, bareViewName, std::nullopt}};

    Subject list = subjectOf("qml, list", s);
    list.variants = {
        {listName,
         [s] {
             return (*s)->firstFrame([&](QWidget *parent) {
                 return (*s)->factory.createQmlWidget(QStringLiteral("bench/List.qml"), parent, &(*s)->controller);
             });
         }},
        {bareListName,
         [s] {
             return (*s)->firstFrame([&](QWidget *parent) {
                 auto *widget = new QQuickWidget((*s)->engine, parent);
                 QObject *root = (*s)->keptList.createWithInitialProperties((*s)->properties());
                 widget->resize(300, 400);
                 widget->setContent((*s)->keptList.url(), &(*s)->keptList, root);
                 return widget;
             });
         }},
        {enginesName,
         [] {
             const WQmlEngineLoader loader;
             int engines = 0;
             QObject::connect(&loader, &WQmlEngineLoader::engineInitialized, [&engines] { ++engines; });
             const WQmlViewFactory factory(loader);
             return engines;
         },
         Variant::Count},
    };
    list.rows = {{QLatin1String("qml: first frame of a list of 10,000"), listName, bareListName, 1.1},
                 {QLatin1String("qml: engines that nobody asked for"), enginesName, QLatin1String(), 0.0}};
    return {one, fifty, list};
}

#include "bench_qml.moc"
