#include "IconGrid.h"

#include "GalleryStyles.h"
#include "IconModel.h"
#include "Label.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/icons/WSvgIcon.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <memory>
#include <unordered_map>

namespace {

constexpr int IconRoom = 24; // the largest icon of the set
constexpr int Padding = 10;
constexpr int ShownLines = 5;

QFont nameFont()
{
    return WFontManager::get()->getFont(FontManagerEnum::Default)->getFont(WFont::RadioButtonLabelSecondary);
}

class IconDelegate : public QStyledItemDelegate
{
public:
    explicit IconDelegate(IconGrid *grid)
        : QStyledItemDelegate(grid)
        , m_grid(grid)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override { return m_grid->gridSize(); }

    // The chosen icon has a frame and no background: its color need not be made for one.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto type = WThemeUtils::getThemeTypeOfWidget(m_grid);
        const QRect cell = option.rect.adjusted(2, 2, -2, -2);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setLayoutDirection(option.direction);
        if (option.state & QStyle::State_MouseOver) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(WThemeUtils::getColorSet("list-item-background", type).hovered());
            painter->drawRoundedRect(cell, 6, 6);
        }
        if (option.state & QStyle::State_Selected) {
            const double pen = option.state & QStyle::State_HasFocus ? 2 : 1;
            painter->setPen(QPen(WThemeUtils::getColorSet("outline-focus", type).normal(), pen));
            painter->setBrush(Qt::NoBrush);
            painter->drawRoundedRect(QRectF(cell).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2), 6, 6);
        }

        WSvgIcon &icon = this->icon(index.data(IconModel::PathRole).toString());
        const int side = icon.getIconSize().width();
        icon.setColorSet(WThemeUtils::getColorSet(m_grid->colorSet(), type));
        const QRect inside = cell.adjusted(Padding / 2, Padding, -Padding / 2, -Padding / 2);
        const QRect room(inside.left() + (inside.width() - IconRoom) / 2, inside.top(), IconRoom, IconRoom);
        const QPoint iconPlace = room.topLeft() + QPoint(IconRoom - side, IconRoom - side) / 2;
        painter->translate(iconPlace);
        icon.draw(painter, option.state & (QStyle::State_Enabled | QStyle::State_MouseOver));
        painter->translate(-iconPlace);

        const QFont font = nameFont();
        const QRect nameRect = inside.adjusted(0, IconRoom, 0, 0);
        painter->setFont(font);
        painter->setPen(WThemeUtils::getColorSet("list-item-text", type).normal());
        painter->drawText(nameRect, Qt::AlignCenter | Qt::TextSingleLine,
                          QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, nameRect.width()));
        if (index.data(IconModel::IsMirroredRole).toBool()) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(WThemeUtils::getColorSet("text-accent", type).normal());
            const QRect dot(room.right() + 7, room.top(), 6, 6);
            painter->drawEllipse(QStyle::visualRect(option.direction, cell, dot));
        }
        painter->restore();
    }

private:
    // Kept: an icon that was in view once comes back without being read again.
    WSvgIcon &icon(const QString &path) const
    {
        std::unique_ptr<WSvgIcon> &icon = m_icons[path];
        if (!icon) {
            icon = std::make_unique<WSvgIcon>(path);
            const int side = static_cast<const IconModel *>(m_grid->model())->size();
            icon->setIconSize(QSize(side, side));
        }
        return *icon;
    }

    struct Hash
    {
        std::size_t operator()(const QString &text) const { return qHash(text); }
    };

    const IconGrid *const m_grid;
    mutable std::unordered_map<QString, std::unique_ptr<WSvgIcon>, Hash> m_icons;
};

} // namespace

IconGrid::IconGrid(IconModel *model, QWidget *parent)
    : WListView(parent)
    , m_model(model)
    , m_nothingFound(new QWidget)
{
    setFontToken(WFont::RadioButtonLabelSecondary);
    setCSS(GalleryStyles::itemView());
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setItemDelegate(new IconDelegate(this));
    setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &IconGrid::restoreChoice);

    auto *lines = new QVBoxLayout(m_nothingFound);
    lines->setSpacing(4);
    lines->addWidget(new Label(tr("No icon found"), WFont::SubheaderPrimary), 0, Qt::AlignHCenter);
    lines->addWidget(
        new Label(tr("Try fewer or shorter words, another size or style."), WFont::BodySecondary, Label::Secondary), 0,
        Qt::AlignHCenter);
    auto *column = new QVBoxLayout(viewport());
    column->addWidget(m_nothingFound, 0, Qt::AlignCenter);
    m_nothingFound->setVisible(model->rowCount() == 0);

    connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, this,
            &IconGrid::fitCells);
    fitCells();
}

void IconGrid::chooseIcon(const QString &name)
{
    setCurrentIndex(m_model->indexOf(name));
}

void IconGrid::setColorSet(const std::string &name)
{
    m_colorSet = name;
    viewport()->update();
}

void IconGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    WListView::currentChanged(current, previous);
    const QString name = current.data().toString();
    if (name.isEmpty() || name == m_chosen)
        return;
    m_chosen = name;
    Q_EMIT chosenIconChanged(m_chosen);
}

void IconGrid::restoreChoice()
{
    m_nothingFound->setVisible(m_model->rowCount() == 0);
    setCurrentIndex(m_model->indexOf(m_chosen));
}

// Qt mirrors the rows of such a view and leaves the arrow keys as they are.
QModelIndex IconGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (isRightToLeft() && action == MoveLeft)
        action = MoveRight;
    else if (isRightToLeft() && action == MoveRight)
        action = MoveLeft;
    return WListView::moveCursor(action, modifiers);
}

void IconGrid::resizeEvent(QResizeEvent *event)
{
    WListView::resizeEvent(event);
    fitCells();
}

// As many columns as there is room for, and all of the room for them.
void IconGrid::fitCells()
{
    const QFontMetrics metrics(nameFont());
    const int least = metrics.horizontalAdvance(QStringLiteral("share-screen")) + 2 * Padding;
    const int columns = qMax(1, viewport()->width() / least);
    const QSize cell(viewport()->width() / columns, 2 * Padding + IconRoom + 4 + metrics.height());
    if (cell != gridSize())
        setGridSize(cell);
    setFixedHeight(ShownLines * cell.height() + height() - viewport()->height());
}
