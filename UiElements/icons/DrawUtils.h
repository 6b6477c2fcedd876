#pragma once

#include <UiElements/icons/WEnum.h>
#include <UiElements/theme/WColorSet.h>
#include <UiElements/uielements_export.h>

#include <QMargins>
#include <QPixmap>
#include <QRect>
#include <QStyle>

class QPainter;
class QTextDocument;
class WSvgIcon;
class WSvgNode;

/// What the elements share in drawing. Sizes are in device-independent pixels.
class UIELEMENTS_EXPORT DrawUtils
{
public:
    DrawUtils() = delete;

    /// The largest rectangle of that width / height within the rectangle, about the same centre. An aspect that is no
    /// positive number gives an empty one.
    static QRectF fitRectangle(const QRectF &rect, double aspect);

    /// Fits the drawing of WSvgRenderer::getSvgNode() into the rectangle and draws it in one color, antialiased.
    /// Nothing is drawn without painter, drawing or color.
    static void drawSVG(QPainter *painter, const WSvgNode *node, const QRectF &rect, const QColor &color,
                        double opacity);
    static QPixmap renderPixmap(const WSvgNode *node, const QRectF &iconRect, const QSize &pixmapSize,
                                double devicePixelRatio, const QColor &color, const QColor &background);
    /// A picture of the size at the ratio, rounded up to whole pixels; null for an empty size, a ratio that is not
    /// positive, or one that no memory holds.
    static QPixmap emptyPixmap(const QSize &size, double devicePixelRatio, const QColor &background);

    /// The color that stands for a state of an element, the first that holds: disabled (without State_Enabled); pressed
    /// (State_Sunken); hovered (State_MouseOver); focused (State_HasFocus), where that differs from normal; checked
    /// (State_Selected or State_On); normal.
    static QColor colorForState(const WColorSet &colors, QStyle::State state);

    /// The direction that a painter draws for. A painter on a widget starts with that of the application; until it is
    /// given another, the widget's counts.
    static Qt::LayoutDirection layoutDirection(const QPainter *painter);

    /// Where an icon and a text go that are shown together.
    struct IconTextLayout
    {
        QRect icon;
        QRect text;
    };
    struct IconTextMetrics
    {
        QSize iconSize; ///< empty without an icon
        QSize textSize; ///< empty without a text
        QMargins iconMargins;
        int textLeftPadding = 0;
        int textRightPadding = 0;
        WEnum::Alignment iconAlignment = WEnum::Alignment::Left;
        WEnum::HorAlign textAlignment = WEnum::HorAlign::Center;
    };
    /// Icon and text with their margins are one block, set into the rectangle by the text alignment and centred
    /// vertically. A text that is too wide is given what the icon leaves. Right and left are exchanged in a
    /// right-to-left layout, margins and paddings too.
    static IconTextLayout calculateIconTextOffset(const QRect &rect, const IconTextMetrics &metrics,
                                                  Qt::LayoutDirection direction);

    struct IconText
    {
        const WSvgIcon *icon = nullptr;
        QString text;
        QTextDocument *document = nullptr; ///< rich text, shown in place of the text
        WColorSet textColors;
        Qt::TextElideMode elideMode = Qt::ElideRight;
        IconTextMetrics metrics; ///< iconSize and textSize are filled in
    };
    /// Draws both in the state's colors with the font and the layoutDirection() of the painter. A text that does not
    /// fit is elided, rich text is cut.
    static void drawSvgIconText(QPainter *painter, const QRect &rect, const IconText &content, QStyle::State state);

    /// A frame within the rectangle, as wide as is said, with rounded corners.
    static void drawFocusRect(QPainter *painter, const QRectF &rect, const QColor &color, double radius,
                              double width = 2);
};
