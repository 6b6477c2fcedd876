#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>

#include <cmath>

FixedItemRatioLayoutNotSupportScroll::FixedItemRatioLayoutNotSupportScroll(QWidget *parent)
    : ItemLayout(parent)
{
}

void FixedItemRatioLayoutNotSupportScroll::setItemRatio(double ratio)
{
    if (!std::isfinite(ratio) || ratio <= 0) {
        warn("setItemRatio", "The ratio is no width / height");
        return;
    }
    m_itemRatio = ratio;
    invalidate();
}

void FixedItemRatioLayoutNotSupportScroll::setMinimumItemWidth(int width)
{
    if (width < 0) {
        warn("setMinimumItemWidth", "The width is negative");
        return;
    }
    m_minimumItemWidth = width;
    invalidate();
}

Qt::Orientations FixedItemRatioLayoutNotSupportScroll::expandingDirections() const
{
    return Qt::Horizontal | Qt::Vertical;
}

/// The largest tile of the ratio; empty when the spacings leave nothing.
QSize FixedItemRatioLayoutNotSupportScroll::tileIn(const QSize &size, int columns, int rows, int spacing) const
{
    const int width = (size.width() - (columns - 1) * spacing) / columns;
    const int height = (size.height() - (rows - 1) * spacing) / rows;
    if (width <= 0 || height <= 0)
        return QSize(0, 0);
    if (width <= height * m_itemRatio)
        return QSize(width, qBound(1, qRound(width / m_itemRatio), height));
    return QSize(qBound(1, qRound(height * m_itemRatio), width), height);
}

FixedItemRatioLayoutNotSupportScroll::Arrangement FixedItemRatioLayoutNotSupportScroll::arrange(
    const QVector<Item> &items, const QSize &size) const
{
    Arrangement arrangement;
    const int count = items.size();
    QSize tile(0, 0);
    int columns = 1;
    int gap = 0;
    for (const int tried : {spacingOr(-1), 0}) {
        gap = tried;
        for (int n = 1; n <= count; ++n) {
            const int rows = (count + n - 1) / n;
            const QSize candidate = tileIn(size, n, rows, gap);
            const auto area = [](const QSize &each) {
                return qint64(each.width()) * each.height();
            };
            const bool isLarger = area(candidate) > area(tile);
            const bool isFuller =
                area(candidate) == area(tile) && n * rows < columns * ((count + columns - 1) / columns);
            if (isLarger || isFuller) {
                tile = candidate;
                columns = n;
            }
        }
        if (!tile.isEmpty())
            break;
    }
    if (tile.isEmpty()) {
        // Not even one pixel each.
        const Place middle {QRect(QPoint(size.width() / 2, size.height() / 2), QSize(0, 0))};
        arrangement.places.fill(middle, count);
        return arrangement;
    }
    const int rows = (count + columns - 1) / columns;
    const int top = (size.height() - rows * tile.height() - (rows - 1) * gap) / 2;
    for (int i = 0; i < count; ++i) {
        const int row = i / columns;
        const int inRow = row + 1 < rows ? columns : count - row * columns;
        const int left = (size.width() - inRow * tile.width() - (inRow - 1) * gap) / 2;
        const QPoint place(left + i % columns * (tile.width() + gap), top + row * (tile.height() + gap));
        arrangement.places.append({QRect(place, tile)});
    }
    arrangement.height = size.height();
    return arrangement;
}

/// The size of about as many columns as rows, of tiles that hold the content.
QSize FixedItemRatioLayoutNotSupportScroll::squareOf(int count, const QSize &content) const
{
    if (!count)
        return QSize(0, 0);
    const double width = qMax(double(qMax(content.width(), m_minimumItemWidth)), content.height() * m_itemRatio);
    const QSize tile(int(std::ceil(qMin(width, double(QLAYOUTSIZE_MAX)))),
                     int(std::ceil(qMin(width / m_itemRatio, double(QLAYOUTSIZE_MAX)))));
    const int columns = int(std::ceil(std::sqrt(double(count))));
    const int rows = (count + columns - 1) / columns;
    const int gap = spacingOr(-1);
    return QSize(columns * tile.width() + (columns - 1) * gap, rows * tile.height() + (rows - 1) * gap);
}

QSize FixedItemRatioLayoutNotSupportScroll::contentHint(const QVector<Item> &items) const
{
    return squareOf(items.size(), largestHint(items));
}

QSize FixedItemRatioLayoutNotSupportScroll::contentMinimum(const QVector<Item> &items) const
{
    return squareOf(items.size(), largestMinimum(items));
}
