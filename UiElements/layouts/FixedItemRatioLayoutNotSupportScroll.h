#pragma once

#include <UiElements/layouts/ItemLayout.h>

/// Items of one width / height ratio, as large as they can all be in the rectangle: the video tiles of a call.
///
/// Of all numbers of columns the one with the largest tiles is taken; of equal ones the one with the fewest free
/// places, then the one with the fewest columns. The tiles stand in the middle of the rectangle, and those of the last
/// row in the middle of their row. Nothing ever lies outside: the layout fits into what it is given, and must not be
/// put into something that scrolls and would let it grow. When the spacings alone do not fit, they give way.
///
/// All tiles have the same size, whatever an item says; an item whose maximum is smaller is in the middle of its
/// tile. A spacer leaves a tile free.
///
/// The minimum size is that of about as many columns as rows of tiles that hold the largest minimum of the items and
/// the minimumItemWidth(). Where the host gives less nevertheless, tiles become smaller than that rather than lie
/// outside. The size hint is the same of the largest size hint. There is no height for a width.
class UIELEMENTS_EXPORT FixedItemRatioLayoutNotSupportScroll : public ItemLayout
{
    Q_OBJECT
    Q_PROPERTY(double itemRatio READ itemRatio WRITE setItemRatio)
    Q_PROPERTY(int minimumItemWidth READ minimumItemWidth WRITE setMinimumItemWidth)

public:
    explicit FixedItemRatioLayoutNotSupportScroll(QWidget *parent = nullptr);

    double itemRatio() const { return m_itemRatio; } ///< width / height
    void setItemRatio(double ratio);
    int minimumItemWidth() const { return m_minimumItemWidth; }
    void setMinimumItemWidth(int width);

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override { return false; }

protected:
    Arrangement arrange(const QVector<Item> &items, const QSize &size) const override;
    QSize contentHint(const QVector<Item> &items) const override;
    QSize contentMinimum(const QVector<Item> &items) const override;
    bool usesHeight() const override { return true; }

private:
    QSize tileIn(const QSize &size, int columns, int rows, int spacing) const;
    QSize squareOf(int count, const QSize &content) const;

    double m_itemRatio = 16.0 / 9.0;
    int m_minimumItemWidth = 0;
};
