#pragma once

#include <QHash>
#include <QPointer>
#include <QQmlError>
#include <QSet>
#include <QUrl>
#include <QVariant>
#include <QVector>

class QQmlComponent;
class QmlContent;
class WQmlEngine;

/// What an engine has for its views: where their sources are, the components that make their root objects, one kept for
/// each source, and word to all views at once.
class QmlEngineHub : public QObject
{
    Q_OBJECT

public:
    explicit QmlEngineHub(WQmlEngine *engine);
    ~QmlEngineHub() override;

    static QmlEngineHub *of(const WQmlEngine *engine);

    /// Whether a source stays below the QML root, however it is spelled.
    static bool isInsideRoot(const QString &source);
    QUrl url(const QString &source);

    /// Makes an object, or null and the reasons. `spare` is a component of the same URL for when the kept one is at
    /// work: a component makes one object at a time.
    QObject *create(QQmlComponent *spare, const QVariantMap &properties, QList<QQmlError> *errors);

    /// The contents of the views, which are told to unload and to reload.
    void add(QmlContent *content) { m_contents.append(content); }
    void remove(QmlContent *content) { m_contents.remove(m_contents.lastIndexOf(content)); }

    /// Forgets all components and empties the views.
    void unload(bool forGood);
    /// The objects made from disk that still live.
    QStringList alive() const;

private:
    struct Made
    {
        QPointer<QObject> object;
        QUrl url;
    };

    template <typename Tell>
    void tellContents(Tell tell) const;

    WQmlEngine *const m_engine;
    QHash<QString, QUrl> m_resourceUrls;
    QHash<QUrl, QQmlComponent *> m_components;
    QSet<QQmlComponent *> m_busy;
    QVector<QmlContent *> m_contents;
    QVector<Made> m_made;
    int m_pruneAt = 64;
};
