#include <UiElements/keyboard/EventFilter.h>

#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <QPointer>

using VisualUtils::EventFilter;

class tst_EventFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesOrStops();
    void severalObjects();
    void handlerChangesTheFilters();
    void handlerDeletes_data();
    void handlerDeletes();
    void handlerSendsAgain();
    void refusals();
};

namespace {

const auto First = QEvent::Type(QEvent::User + 1);
const auto Second = QEvent::Type(QEvent::User + 2);

/// Writes down what reaches it.
class Target : public QObject
{
public:
    explicit Target(QString *log)
        : m_log(log)
    {
    }
    bool event(QEvent *event) override
    {
        if (event->type() == First || event->type() == Second)
            *m_log += event->type() == First ? QStringLiteral("1") : QStringLiteral("2");
        return QObject::event(event);
    }

private:
    QString *const m_log;
};

void send(QObject *target, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(target, &event);
}

/// Adds a letter to the log.
EventFilter::Handler writes(QString *log, const char *letter, bool stops = false)
{
    return [log, letter, stops](QObject *, QEvent *) {
        *log += QLatin1String(letter);
        return stops;
    };
}

} // namespace

void tst_EventFilter::passesOrStops()
{
    QString log;
    Target target(&log);
    EventFilter::install(&target, {First, Second}, writes(&log, "a"));
    EventFilter *stopping = EventFilter::install(&target, {Second}, writes(&log, "b", true));
    QCOMPARE(stopping->parent(), &target);
    send(&target, First);
    send(&target, Second);
    QCOMPARE(log, QStringLiteral("a1b"));
    delete stopping;
    send(&target, Second);
    QCOMPARE(log, QStringLiteral("a1ba2"));
}

void tst_EventFilter::severalObjects()
{
    QString log;
    Target other(&log);
    auto *target = new Target(&log);
    EventFilter *filter = EventFilter::install(target, {First}, [&](QObject *watched, QEvent *) {
        log += watched == target ? QLatin1Char('t') : QLatin1Char('o');
        return false;
    });
    filter->watch(&other);
    filter->watch(&other);
    send(&other, First);
    send(target, First);
    delete target;
    send(&other, First);
    QCOMPARE(log, QStringLiteral("o1t11"));
}

void tst_EventFilter::handlerChangesTheFilters()
{
    QString log;
    Target target(&log);
    QPointer<EventFilter> oldest = EventFilter::install(&target, {First}, writes(&log, "o"));
    // Qt would ask this one again for the same event each time that it installs another.
    EventFilter::install(&target, {First}, [&](QObject *watched, QEvent *) {
        log += QLatin1Char('i');
        if (log.size() < 20)
            EventFilter::install(watched, {First}, writes(&log, "n"));
        delete oldest;
        return false;
    });
    send(&target, First);
    QCOMPARE(log, QStringLiteral("i1"));
    send(&target, First);
    QCOMPARE(log, QStringLiteral("i1ni1"));
}

void tst_EventFilter::handlerDeletes_data()
{
    QTest::addColumn<bool>("theObject");
    QTest::addColumn<bool>("stops");
    QTest::addColumn<QString>("expected");
    QTest::newRow("itself, stops") << false << true << "d";
    QTest::newRow("itself, passes") << false << false << "do1";
    QTest::newRow("the object, stops") << true << true << "d";
    QTest::newRow("the object, forgets to stop") << true << false << "d";
}

void tst_EventFilter::handlerDeletes()
{
    QFETCH(bool, theObject);
    QFETCH(bool, stops);
    QFETCH(QString, expected);
    QString log;
    QPointer<Target> target = new Target(&log);
    EventFilter::install(target, {First}, writes(&log, "o"));
    QPointer<EventFilter> filter;
    // What the handler has captured is its own, and must live until it returns.
    const auto captured = std::make_shared<QString>(QStringLiteral("d"));
    filter = EventFilter::install(target, {First}, [&, captured](QObject *, QEvent *) {
        if (theObject)
            delete target;
        else
            delete filter;
        log += *captured;
        return stops;
    });
    send(target, First);
    QCOMPARE(log, expected);
    QVERIFY(!filter);
    QCOMPARE(captured.use_count(), 1L);
    delete target;
}

void tst_EventFilter::handlerSendsAgain()
{
    QString log;
    Target target(&log);
    int depth = 0;
    EventFilter::install(&target, {First}, [&](QObject *watched, QEvent *) {
        if (++depth < 3)
            send(watched, First);
        log += QString::number(depth--);
        return false;
    });
    send(&target, First);
    QCOMPARE(log, QStringLiteral("312111"));
}

void tst_EventFilter::refusals()
{
    WarningLog log;
    const EventFilter::Handler handler = [](QObject *, QEvent *) {
        return true;
    };
    QVERIFY(!EventFilter::install(nullptr, {First}, handler));
    QVERIFY(!EventFilter::install(this, {}, handler));
    QVERIFY(!EventFilter::install(this, {First}, nullptr));
    const QString refused = QStringLiteral("EventFilter::install - An object, event types and a handler are needed");
    QCOMPARE(log.take(), QStringList({refused, refused, refused}));
    QVERIFY(children().isEmpty());
    EventFilter::install(this, {First}, handler)->watch(nullptr);
    QCOMPARE(log.take(), QStringList(QStringLiteral("EventFilter::watch - The object must not be null")));
}

W_TEST_MAIN(tst_EventFilter)
#include "tst_event_filter.moc"
