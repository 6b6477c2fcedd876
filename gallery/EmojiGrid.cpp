#include "EmojiGrid.h"

#include "GalleryStyles.h"
#include "Label.h"

#include <UiElements/emoji/EmojiPickerModel.h>
#include <UiElements/emoji/EmojiResources.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using EmojiPicker::EmojiPickerModel;

namespace {

constexpr int ImageSide = 28;
constexpr int LeastCell = 44;
constexpr int ShownLines = 7;

class EmojiDelegate : public QStyledItemDelegate
{
public:
    explicit EmojiDelegate(EmojiGrid *grid)
        : QStyledItemDelegate(grid)
        , m_grid(grid)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override { return m_grid->gridSize(); }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto type = WThemeUtils::getThemeTypeOfWidget(m_grid);
        const auto color = [type](const char *set) {
            return WThemeUtils::getColorSet(set, type);
        };
        const QRect cell = option.rect.adjusted(2, 2, -2, -2);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (option.state & QStyle::State_MouseOver) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(color("list-item-background").hovered());
            painter->drawRoundedRect(cell, 6, 6);
        }
        if (option.state & QStyle::State_Selected) {
            const double pen = option.state & QStyle::State_HasFocus ? 2 : 1;
            painter->setPen(QPen(color("outline-focus").normal(), pen));
            painter->setBrush(Qt::NoBrush);
            painter->drawRoundedRect(QRectF(cell).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2), 6, 6);
        }
        // A line where the next category begins.
        const auto *model = static_cast<const EmojiPickerModel *>(index.model());
        if (index.row() > 0
            && model->firstRowOf(index.data(EmojiPickerModel::CategoryIdRole).toString()) == index.row()) {
            const QRect line(option.rect.left() - 1, option.rect.top() + 8, 2, option.rect.height() - 16);
            painter->fillRect(QStyle::visualRect(option.direction, option.rect, line),
                              color("outline-primary").normal());
        }
        QRect place(0, 0, ImageSide, ImageSide);
        place.moveCenter(cell.center());
        const QString text = index.data(EmojiPickerModel::TextRole).toString();
        const QImage image =
            EmojiPicker::EmojiResources::image(text, ImageSide, painter->device()->devicePixelRatioF());
        if (image.isNull()) {
            painter->setPen(color("list-item-text").normal());
            painter->drawText(cell, Qt::AlignCenter, text);
        } else {
            painter->drawImage(place, image);
        }
        // A corner that tells that there are tones.
        if (index.data(EmojiPickerModel::HasTonesRole).toBool()) {
            const QRect corner =
                QStyle::visualRect(option.direction, cell, QRect(cell.bottomRight() - QPoint(9, 9), QSize(6, 6)));
            const bool isMirrored = option.direction == Qt::RightToLeft;
            const QPoint inner = isMirrored ? corner.bottomLeft() : corner.bottomRight();
            painter->setPen(Qt::NoPen);
            painter->setBrush(color("text-secondary").normal());
            const QPoint points[] = {isMirrored ? corner.bottomRight() : corner.bottomLeft(), inner,
                                     isMirrored ? corner.topLeft() : corner.topRight()};
            painter->drawPolygon(points, 3);
        }
        painter->restore();
    }

private:
    const EmojiGrid *const m_grid;
};

} // namespace

EmojiGrid::EmojiGrid(EmojiPickerModel *model, QWidget *parent)
    : WListView(parent)
    , m_nothingFound(new Label(tr("No emoji found"), WFont::BodySecondary, Label::Secondary))
{
    setCSS(GalleryStyles::itemView());
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setItemDelegate(new EmojiDelegate(this));
    setModel(model);
    auto *column = new QVBoxLayout(viewport());
    column->addWidget(m_nothingFound, 0, Qt::AlignCenter);
    const auto showFirst = [this, model] {
        m_nothingFound->setVisible(model->rowCount() == 0);
        setCurrentIndex(model->index(0, 0));
    };
    connect(model, &QAbstractItemModel::modelReset, this, showFirst);
    connect(this, &QAbstractItemView::clicked, this, &EmojiGrid::picked);
    fitCells();
    showFirst();
}

void EmojiGrid::showFrom(int row)
{
    const QModelIndex index = model()->index(row, 0);
    setCurrentIndex(index);
    scrollTo(index, PositionAtTop);
}

void EmojiGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    WListView::currentChanged(current, previous);
    Q_EMIT currentRowChanged(current.row());
}

void EmojiGrid::focusInEvent(QFocusEvent *event)
{
    if (!currentIndex().isValid())
        setCurrentIndex(model()->index(0, 0));
    WListView::focusInEvent(event);
}

void EmojiGrid::focusOutEvent(QFocusEvent *event)
{
    WListView::focusOutEvent(event);
    Q_EMIT left();
}

void EmojiGrid::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool picks = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (picks && isPlain) {
        if (currentIndex().isValid())
            Q_EMIT picked(currentIndex());
        return;
    }
    const bool types = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        && !event->text().isEmpty() && event->text().at(0).isPrint();
    if (types)
        Q_EMIT typed(event->text());
    else
        WListView::keyPressEvent(event);
}

// Qt mirrors the rows of such a view and leaves the arrow keys as they are.
QModelIndex EmojiGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (isRightToLeft() && action == MoveLeft)
        action = MoveRight;
    else if (isRightToLeft() && action == MoveRight)
        action = MoveLeft;
    return WListView::moveCursor(action, modifiers);
}

void EmojiGrid::resizeEvent(QResizeEvent *event)
{
    WListView::resizeEvent(event);
    fitCells();
}

// As many columns as there is room for, and all of the room for them.
void EmojiGrid::fitCells()
{
    const int columns = qMax(1, viewport()->width() / LeastCell);
    const QSize cell(viewport()->width() / columns, LeastCell);
    if (cell != gridSize())
        setGridSize(cell);
    setFixedHeight(ShownLines * cell.height() + height() - viewport()->height());
}
