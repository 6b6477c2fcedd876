#include "EmojiPopup.h"

#include "EmojiGrid.h"
#include "GalleryStyles.h"
#include "SearchField.h"

#include <UiElements/emoji/EmojiParser.h>
#include <UiElements/emoji/EmojiPickerModel.h>
#include <UiElements/emoji/EmojiResources.h>

#include <QScreen>
#include <QVBoxLayout>

using EmojiPicker::EmojiPickerModel;

namespace {

constexpr int Width = 380;

} // namespace

EmojiPopup::EmojiPopup(QWidget *parent)
    : WFrame(parent)
    , m_model(new EmojiPickerModel(this))
{
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setObjectName(QStringLiteral("panel"));
    setCSS(GalleryStyles::panel());
    setAccessibleName(tr("Emoji"));
    EmojiPicker::EmojiResources::ensureRegistered();
    m_model->setCatalogue(EmojiPicker::EmojiParser().parseFile(QStringLiteral(":/emoji-data/emoji.json")));

    m_search = new SearchField(tr("Search emoji"));
    m_grid = new EmojiGrid(m_model);
    m_grid->setAccessibleName(tr("Emoji"));
    m_search->setResults(m_grid);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(8);
    column->addWidget(m_search);
    column->addWidget(m_grid);
    setFixedWidth(Width);

    connect(m_search, &QLineEdit::textChanged, m_model, &EmojiPickerModel::setFilter);
    connect(m_search, &QLineEdit::returnPressed, this, [this] {
        if (m_model->rowCount() > 0)
            pick(m_grid->currentIndex());
    });
    connect(m_grid, &EmojiGrid::picked, this, &EmojiPopup::pick);
    connect(m_grid, &EmojiGrid::typed, this, [this](const QString &text) {
        m_search->setFocus(Qt::OtherFocusReason);
        m_search->setText(m_search->text() + text);
    });
}

void EmojiPopup::openAbove(QWidget *button)
{
    // It is a window of its own and would take the theme of the application.
    setThemeType(button->window()->property("themeType").toString());
    m_search->clear();
    adjustSize();
    const QRect screen = button->screen()->availableGeometry();
    const int x = isRightToLeft() ? button->width() - width() : 0;
    QPoint at = button->mapToGlobal(QPoint(x, -height() - 4));
    at.setX(qBound(screen.left(), at.x(), qMax(screen.left(), screen.right() - width())));
    if (at.y() < screen.top())
        at.setY(button->mapToGlobal(QPoint(0, button->height() + 4)).y());
    move(at);
    show();
    m_grid->showFrom(0);
    m_search->setFocus(Qt::PopupFocusReason);
}

void EmojiPopup::pick(const QModelIndex &index)
{
    const QString emoji = index.data(EmojiPickerModel::TextRole).toString();
    m_model->addRecent(index.data(EmojiPickerModel::NameRole).toString());
    close();
    if (!emoji.isEmpty())
        Q_EMIT picked(emoji);
}
