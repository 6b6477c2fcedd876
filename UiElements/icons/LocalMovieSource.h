#pragma once

#include <UiElements/icons/IWMovieProviderSource.h>

#include <QSet>

/// The movie source of an application that sets none: it reads what is at hand and never the network.
///
/// A source is the path of a file, "file:///...", a resource (":/..." or "qrc:/...") or a "data:" URL. It is answered
/// once, from the event loop, for all who asked meanwhile. The movie holds what was read: what happens to the file
/// later does not matter to it.
///
/// Failure is the answer, after one warning with the reason, to any other scheme, to what is no ordinary file, to more
/// than MaximumBytes, to frames of more than MaximumPixels, which are not decoded, and to what is no picture: neither
/// an animation that QMovie plays nor a PNG or JPEG file.
class UIELEMENTS_EXPORT LocalMovieSource : public IWMovieProviderSource
{
    Q_OBJECT

public:
    static constexpr int MaximumBytes = 16 * 1024 * 1024;
    static constexpr int MaximumPixels = 4096 * 4096;

    explicit LocalMovieSource(QObject *parent = nullptr);
    ~LocalMovieSource() override;

    /// What is told with a failure: a still image to show instead. Empty at first.
    QString fallbackSource() const { return m_fallbackSource; }
    void setFallbackSource(const QString &source) { m_fallbackSource = source; }

    void fetch(const QString &source) override;

private:
    void answer(const QString &source);

    QSet<QString> m_waiting;
    QString m_fallbackSource;
};
