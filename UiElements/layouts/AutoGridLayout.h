#pragma once

#include <UiElements/layouts/ItemLayout.h>

/// A grid of equal cells with as many columns as the width allows: participants, picker cells, thumbnails.
///
/// There are as many columns as cells of the minimum width fit side by side, at least one and at most the maximum; the
/// cells share the width. Items fill line after line in their cells and the last line begins at the start. By default
/// the number of columns does not depend on the number of items, so cells keep their size when an item comes or goes;
/// with fillsLine() a few items share a whole line. Fewer pixels than there are columns may be left at the end.
///
/// A cell is as high as the aspect ratio says, at least as the highest minimum; without a ratio as the highest item is
/// at the width of a cell. No cell is narrower than the widest minimum. A spacer leaves a cell free.
///
/// The height follows from the width: heightForWidth() is exactly where the last line ends, and what there is below
/// stays empty. The size hint is as many columns as lines, at most the maximum. The minimum width is one column, the
/// minimum height one line: see FlowLayout about lines that must always be seen.
class UIELEMENTS_EXPORT AutoGridLayout : public ItemLayout
{
    Q_OBJECT
    Q_PROPERTY(int minimumCellWidth READ minimumCellWidth WRITE setMinimumCellWidth)
    Q_PROPERTY(int maximumColumns READ maximumColumns WRITE setMaximumColumns)
    Q_PROPERTY(int horizontalSpacing READ horizontalSpacing WRITE setHorizontalSpacing)
    Q_PROPERTY(int verticalSpacing READ verticalSpacing WRITE setVerticalSpacing)
    Q_PROPERTY(double aspectRatio READ aspectRatio WRITE setAspectRatio)
    Q_PROPERTY(bool fillsLine READ fillsLine WRITE setFillsLine)

public:
    explicit AutoGridLayout(QWidget *parent = nullptr);

    int minimumCellWidth() const { return m_minimumCellWidth; } ///< 0: the widest size hint
    void setMinimumCellWidth(int width);
    int maximumColumns() const { return m_maximumColumns; } ///< 0: no limit
    void setMaximumColumns(int columns);
    int horizontalSpacing() const; ///< in pixels; that of QLayout::spacing() until it is set
    void setHorizontalSpacing(int spacing); ///< -1 for that of QLayout::spacing()
    int verticalSpacing() const; ///< in pixels; that of QLayout::spacing() until it is set
    void setVerticalSpacing(int spacing); ///< -1 for that of QLayout::spacing()
    double aspectRatio() const { return m_aspectRatio; } ///< width / height; 0: none
    void setAspectRatio(double ratio);
    bool fillsLine() const { return m_fillsLine; }
    void setFillsLine(bool fills);

    /// The number of columns in that width, margins included.
    int columnCount(int width) const;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override { return true; }

protected:
    Arrangement arrange(const QVector<Item> &items, const QSize &size) const override;
    QSize contentHint(const QVector<Item> &items) const override;
    QSize contentMinimum(const QVector<Item> &items) const override;
    bool usesHeight() const override { return false; }

private:
    int wishedCellWidth(const QVector<Item> &items) const;
    int columnsIn(const QVector<Item> &items, int width) const;
    int cellHeight(const QVector<Item> &items, int cellWidth) const;

    int m_minimumCellWidth = 0;
    int m_maximumColumns = 0;
    int m_horizontalSpacing = -1;
    int m_verticalSpacing = -1;
    double m_aspectRatio = 0;
    bool m_fillsLine = false;
};
