#include <UiElements/layouts/AutoGridLayout.h>

#include <cmath>

AutoGridLayout::AutoGridLayout(QWidget *parent)
    : ItemLayout(parent)
{
}

void AutoGridLayout::setMinimumCellWidth(int width)
{
    if (width < 0) {
        warn("setMinimumCellWidth", "The width is negative");
        return;
    }
    m_minimumCellWidth = width;
    invalidate();
}

void AutoGridLayout::setMaximumColumns(int columns)
{
    if (columns < 0) {
        warn("setMaximumColumns", "The number is negative");
        return;
    }
    m_maximumColumns = columns;
    invalidate();
}

int AutoGridLayout::horizontalSpacing() const
{
    return spacingOr(m_horizontalSpacing);
}

void AutoGridLayout::setHorizontalSpacing(int spacing)
{
    m_horizontalSpacing = spacing;
    invalidate();
}

int AutoGridLayout::verticalSpacing() const
{
    return spacingOr(m_verticalSpacing);
}

void AutoGridLayout::setVerticalSpacing(int spacing)
{
    m_verticalSpacing = spacing;
    invalidate();
}

void AutoGridLayout::setAspectRatio(double ratio)
{
    if (!std::isfinite(ratio) || ratio < 0) {
        warn("setAspectRatio", "The ratio is no width / height");
        return;
    }
    m_aspectRatio = ratio;
    invalidate();
}

void AutoGridLayout::setFillsLine(bool fills)
{
    m_fillsLine = fills;
    invalidate();
}

Qt::Orientations AutoGridLayout::expandingDirections() const
{
    return Qt::Horizontal;
}

int AutoGridLayout::wishedCellWidth(const QVector<Item> &items) const
{
    const int wish = m_minimumCellWidth ? m_minimumCellWidth : largestHint(items).width();
    return qBound(1, qMax(wish, largestMinimum(items).width()), QLAYOUTSIZE_MAX);
}

int AutoGridLayout::columnsIn(const QVector<Item> &items, int width) const
{
    int columns = qMax(1, (width + horizontalSpacing()) / (wishedCellWidth(items) + horizontalSpacing()));
    if (m_maximumColumns)
        columns = qMin(columns, m_maximumColumns);
    return m_fillsLine ? qBound(1, items.size(), columns) : columns;
}

int AutoGridLayout::columnCount(int width) const
{
    const QMargins margins = contentsMargins();
    return columnsIn(items(), qBound(0, width, QLAYOUTSIZE_MAX) - margins.left() - margins.right());
}

int AutoGridLayout::cellHeight(const QVector<Item> &items, int cellWidth) const
{
    if (m_aspectRatio > 0) {
        const double height = qMin(cellWidth / m_aspectRatio, double(QLAYOUTSIZE_MAX));
        return qMax(qRound(height), largestMinimum(items).height());
    }
    int height = 0;
    for (const Item &item : items)
        height = qMax(height, item.heightAt(cellWidth));
    return height;
}

AutoGridLayout::Arrangement AutoGridLayout::arrange(const QVector<Item> &items, const QSize &size) const
{
    Arrangement arrangement;
    if (items.isEmpty())
        return arrangement;
    const int columns = columnsIn(items, size.width());
    const int width =
        qMax((size.width() - (columns - 1) * horizontalSpacing()) / columns, largestMinimum(items).width());
    const int height = cellHeight(items, width);
    for (int i = 0; i < items.size(); ++i) {
        const int x = i % columns * (width + horizontalSpacing());
        const int y = i / columns * (height + verticalSpacing());
        arrangement.places.append({QRect(x, y, width, height)});
        arrangement.height = y + height;
    }
    return arrangement;
}

QSize AutoGridLayout::contentHint(const QVector<Item> &items) const
{
    int columns = int(std::ceil(std::sqrt(double(items.size()))));
    if (m_maximumColumns)
        columns = qMin(columns, m_maximumColumns);
    const int width = columns * wishedCellWidth(items) + qMax(0, columns - 1) * horizontalSpacing();
    return QSize(width, arrange(items, QSize(width, -1)).height);
}

QSize AutoGridLayout::contentMinimum(const QVector<Item> &items) const
{
    if (items.isEmpty())
        return QSize(0, 0);
    const QSize minimum = largestMinimum(items);
    const int width = qMax(qMin(m_minimumCellWidth, QLAYOUTSIZE_MAX), minimum.width());
    return QSize(width, m_aspectRatio > 0 ? cellHeight(items, width) : minimum.height());
}
