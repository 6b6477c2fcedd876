#pragma once

#include <UiElements/controls/WLabel.h>
#include <UiElements/uielements_export.h>

class QMovie;
class WMoviePlayback;

/// A label that plays an animated image of the host's own, fitted into the label less 5 pixels on each side.
///
/// It plays only where it can be seen: see WMoviePlayback. Where a window lays out much, give it a fixed size: a QLabel
/// asks for a new layout with every picture otherwise. To a screen reader it is an animation; what it shows has to
/// be set as accessible name.
class UIELEMENTS_EXPORT WGifLabel : public WLabel
{
    Q_OBJECT

public:
    explicit WGifLabel(QWidget *parent = nullptr);
    ~WGifLabel() override;

    QString getGifPath() const { return m_gifPath; }
    /// A file or a resource (":/..." or "qrc:/..."). Nothing is shown before it plays; one that was playing is replaced
    /// by the new one, which begins to play. A file that cannot be played is logged when it begins and shows nothing.
    void setGifPath(const QString &path);

    void startPlaying();
    /// The frame that was shown stays. The next startPlaying() begins with the first.
    void stopPlaying();
    /// False also while it is paused because nobody can see it.
    bool isGifPlaying() const;

    /// Room for the image in its own size.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The last frame is about to be shown: once in each round. It does not come while nobody can see the label nor
    /// while animations are disabled.
    void finishedPlaying();

public Q_SLOTS:
    void frameChanged(int frame);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showFrame();

    QMovie *const m_movie;
    WMoviePlayback *const m_playback;
    QString m_gifPath;
    QSize m_imageSize;
    bool m_isFrameDue = false;
};
