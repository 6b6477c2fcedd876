#include "QmlEngineHub_p.h"

#include "QmlContent_p.h"

#include <UiElements/qml/WQmlEngine.h>

#include <QDir>
#include <QQmlComponent>
#include <QQmlContext>

#include <algorithm>
#include <functional>

namespace {

/// A path of names that mean nothing else to anybody, as nearly all sources are.
bool isPlain(const QString &source)
{
    QChar before = QLatin1Char('/');
    for (const QChar c : source) {
        const bool isName = (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
            || (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
        const bool separates = c == QLatin1Char('/') || c == QLatin1Char('.');
        if (!isName && (!separates || before == QLatin1Char('/')))
            return false;
        before = c;
    }
    return before != QLatin1Char('/');
}

} // namespace

QmlEngineHub::QmlEngineHub(WQmlEngine *engine)
    : m_engine(engine)
{
    connect(engine, &WQmlEngine::reloadAllQmlViews, this, [this] { tellContents(&QmlContent::reload); });
}

QmlEngineHub::~QmlEngineHub()
{
    qDeleteAll(m_components);
}

QmlEngineHub *QmlEngineHub::of(const WQmlEngine *engine)
{
    return engine->m_hub.get();
}

bool QmlEngineHub::isInsideRoot(const QString &source)
{
    if (isPlain(source))
        return true;
    QString path = source;
    // Until nothing is left to decode: "%252e" is "%2e" to whoever decodes once.
    for (QString decoded;; path = decoded) {
        decoded = QString::fromUtf8(QByteArray::fromPercentEncoding(path.toUtf8()));
        if (decoded.size() >= path.size())
            break;
    }
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const int colon = path.indexOf(QLatin1Char(':'));
    const int slash = path.indexOf(QLatin1Char('/'));
    const bool hasScheme = colon >= 0 && (slash < 0 || colon < slash);
    const QString clean = QDir::cleanPath(path);
    return !hasScheme && slash != 0 && clean != QLatin1String(".") && clean != QLatin1String("..")
        && !clean.startsWith(QLatin1String("../")) && !path.contains(QChar::Null);
}

QUrl QmlEngineHub::url(const QString &source)
{
    if (m_engine->isReadingQmlFromDisk())
        return QUrl::fromLocalFile(QDir::cleanPath(m_engine->qmlDirectory() + QLatin1Char('/') + source));
    QUrl &url = m_resourceUrls[source];
    if (url.isEmpty()) {
        url.setScheme(QStringLiteral("qrc"));
        url.setPath(QLatin1String("/Qml/") + source);
    }
    return url;
}

QObject *QmlEngineHub::create(QQmlComponent *spare, const QVariantMap &properties, QList<QQmlError> *errors)
{
    const QUrl url = spare->url();
    QQmlComponent *&kept = m_components[url];
    if (!kept)
        kept = new QQmlComponent(m_engine, url);
    const QPointer<QQmlComponent> component(m_busy.contains(kept) ? spare : kept);
    if (!component->isReady()) { // creating would crash
        *errors = component->errors();
        if (component != spare) {
            m_components.remove(url);
            delete component;
        }
        return nullptr;
    }
    QQmlComponent *const busy = component;
    m_busy.insert(busy);
    const QPointer<QmlEngineHub> self(this);
    // As createWithInitialProperties() does, which forgets an object that lacks a required property.
    QPointer<QObject> object(component->beginCreate(m_engine->rootContext()));
    if (object && !properties.isEmpty())
        component->setInitialProperties(object, properties);
    if (object && component)
        component->completeCreate();
    if (!self)
        return object;
    m_busy.remove(busy);
    if (component && component->isError()) {
        *errors = component->errors();
        delete object;
        if (component != spare && m_components.value(url) == component) {
            m_components.remove(url);
            component->deleteLater();
        }
    }
    if (!object)
        return nullptr;
    if (url.isLocalFile()) {
        if (m_made.size() >= m_pruneAt) {
            m_made.erase(std::remove_if(m_made.begin(), m_made.end(), [](const Made &made) { return !made.object; }),
                         m_made.end());
            m_pruneAt = qMax(64, 2 * m_made.size());
        }
        m_made.append({object, url});
    }
    return object;
}

template <typename Tell>
void QmlEngineHub::tellContents(Tell tell) const
{
    QVector<QPointer<QmlContent>> contents;
    for (QmlContent *content : m_contents)
        contents << content;
    for (const QPointer<QmlContent> &content : qAsConst(contents)) {
        if (content) // the one before may have ended it
            std::invoke(tell, content.data());
    }
}

void QmlEngineHub::unload(bool forGood)
{
    const QPointer<QmlEngineHub> self(this);
    tellContents([forGood](QmlContent *content) { content->unload(forGood); });
    if (!self)
        return;
    for (QQmlComponent *component : qAsConst(m_components)) {
        // One that is at work right now makes its object first.
        if (m_busy.contains(component) && !forGood)
            component->deleteLater();
        else
            delete component;
    }
    m_components.clear();
}

QStringList QmlEngineHub::alive() const
{
    QStringList names;
    for (const Made &made : m_made) {
        if (made.object)
            names << made.url.fileName();
    }
    return names;
}
