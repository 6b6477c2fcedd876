#pragma once

#include <UiElements/icons/WSvgRenderer.h>
#include <UiElements/theme/WColorSet.h>
#include <UiElements/uielements_export.h>

#include <QObject>
#include <QSize>
#include <QStyle>

#include <memory>

class QPainter;

/// An icon as an element holds it: an SVG file, a size, a color for each state, and optionally a second, inner icon
/// that is drawn in the middle of the first.
///
/// It is drawn in the pixels of the device it is painted on, whatever its ratio, and the last picture is kept. Nothing
/// is drawn, and no picture is made, before it is painted.
class UIELEMENTS_EXPORT WSvgIcon : public QObject
{
    Q_OBJECT

public:
    /// What happens to an icon that points somewhere, in a right-to-left layout.
    enum class Mirroring {
        BySet, ///< icons of the library's set that point along the line are mirrored, all others are not
        Always,
        Never
    };
    Q_ENUM(Mirroring)

    /// The icon is valid also where the file cannot be loaded, which is logged; then nothing is drawn.
    explicit WSvgIcon(const QString &filePath = QString());
    ~WSvgIcon() override;

    /// As the path was given, also where it could not be loaded.
    QString getFilePath() const;
    /// A path that cannot be loaded, which is logged, and an empty one leave the icon invalid.
    void setFilePath(const QString &filePath);
    /// QSize(-1, -1) while the icon is hidden: it takes no room.
    QSize getIconSize() const;
    void setIconSize(const QSize &size); ///< 16 x 16 at first
    WColorSet getColorSet() const;
    void setColorSet(const WColorSet &colorSet); ///< states without a color draw nothing

    bool isVisible() const;
    void setVisible(bool visible);
    /// The renderer is there. It says nothing of visibility.
    bool isValid() const;

    QString getInnerFilePath() const;
    void setInnerFilePath(const QString &filePath);
    QSize getInnerIconSize() const; ///< QSize(-1, -1) without an inner icon
    void setInnerIconSize(const QSize &size);
    WColorSet getInnerColorSet() const;
    void setInnerColorSet(const WColorSet &colorSet);

    Mirroring mirroring() const { return m_mirroring; }
    void setMirroring(Mirroring mirroring) { m_mirroring = mirroring; }
    /// True for an icon of the library's set that points along the line of text: "arrow-left", "send", "reply" ...
    static bool isMirroredBySet(const QString &filePath);

    /// Draws from the origin of the painter in the colors of the state (see DrawUtils::colorForState()), mirrored by
    /// DrawUtils::layoutDirection().
    void draw(QPainter *painter, QStyle::State state) const;

    /// For those who watch what icons cost: pictures made since the program started, and the bytes of those that are
    /// kept for all icons. The table is bounded; each icon keeps its last picture besides, which mostly is one of
    /// those.
    static int renderedPictures();
    static qint64 pictureBytes();
    /// Forgets them, for a host that is short of memory.
    static void dropPictures();

Q_SIGNALS:
    /// The next picture of an animated icon is due.
    void repaintNeeded();

private:
    struct IconData;
    IconData *ensureIconDataExists();
    IconData *ensureInnerIconDataExists();
    void assignPath(IconData *data, const QString &filePath);
    void paint(QPainter *painter, const IconData &data, const QColor &color) const;

    std::unique_ptr<IconData> m_data;
    std::unique_ptr<IconData> m_innerData;
    Mirroring m_mirroring = Mirroring::BySet;
};
