#pragma once

#include <UiElements/controls/WPushButton.h>
#include <UiElements/uielements_export.h>

#include <QPointer>

class QLabel;
class WMovie;
class WMoviePlayback;

/// A button with a picture that moves while the button is hovered or focused, each time from the first frame.
///
/// While animations are disabled the first frame stands in for the animation, and a button that is disabled keeps its
/// still image. What the button does has to be set as accessible name or as tooltip.
class UIELEMENTS_EXPORT WGifButton : public WPushButton
{
    Q_OBJECT

public:
    /// Paths of files or resources (":/..." or "qrc:/..."), which may be empty. The pictures are fitted into the sizes.
    explicit WGifButton(QWidget *parent = nullptr, const QString &stillPath = QString(),
                        const QSize &stillSize = QSize(), const QString &animationPath = QString(),
                        const QSize &animationSize = QSize());
    ~WGifButton() override;

    /// Makes the movie where there is none. An animation that could not be played is not tried again.
    void setGif();
    void startGif();
    void stopGif();

    QSize sizeHint() const override;
    bool showsOnlyIcon() const override;

public Q_SLOTS:
    void setButtonIcon();

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintContents(QStylePainter *painter, const QStyleOptionButton &option) override;

private:
    class Picture;

    void showStill();
    void setPixmapForInnerLabel(const QPixmap &pixmap, const QSize &size);
    void placeInnerLabel();

    const QString m_stillPath;
    const QSize m_stillSize;
    const QString m_animationPath;
    const QSize m_animationSize;
    QPointer<WMovie> m_movie;
    WMoviePlayback *const m_playback;
    QLabel *const m_innerLabel;
    qreal m_ratio = 0; // that the picture was made for
    bool m_isUnreadable = false;
    bool m_isStillReported = false;
};
