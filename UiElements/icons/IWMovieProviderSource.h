#pragma once

#include <UiElements/uielements_export.h>

#include <QObject>
#include <QSize>
#include <QString>

class WMovie;

/// Where animated images come from. A host that has a cache or a network of its own implements this and hands it to
/// WApplication::setMovieProviderSource().
///
/// All who wait hear every answer and compare the source with what they asked for. An answer may come at any time on
/// the GUI thread: late, more than once, from within fetch(), or never.
class UIELEMENTS_EXPORT IWMovieProviderSource : public QObject
{
    Q_OBJECT

public:
    explicit IWMovieProviderSource(QObject *parent = nullptr);
    ~IWMovieProviderSource() override;

    virtual void fetch(const QString &source) = 0;

Q_SIGNALS:
    /// One movie for all who wait for the source. The first receiver takes it by making itself the parent, the others
    /// make a WMovie::clone(), all of them while the signal is emitted. A movie that nobody took is the source's to
    /// delete. An empty size is one that is not known.
    void movieFetched(WMovie *movie, QSize size, QString source);
    /// The fallback is a still image to show instead, or empty.
    void movieFetchFailed(QString source, QString fallbackSource);
};
