#include "EmojiPage.h"

#include "EmojiButton.h"
#include "EmojiGrid.h"
#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"
#include "SearchField.h"

#include <UiElements/emoji/EmojiParser.h>
#include <UiElements/emoji/EmojiPickerModel.h>
#include <UiElements/emoji/EmojiResources.h>
#include <UiElements/widgets/WTextBrowser.h>

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using EmojiPicker::EmojiPickerModel;

namespace {

constexpr int TextImageSide = 20;

QStringList toneNames()
{
    return {EmojiPage::tr("No skin tone"), EmojiPage::tr("Light skin"),       EmojiPage::tr("Medium-light skin"),
            EmojiPage::tr("Medium skin"),  EmojiPage::tr("Medium-dark skin"), EmojiPage::tr("Dark skin")};
}

QString toneName(const QString &emoji)
{
    const QVector<uint> codePoints = emoji.toUcs4();
    for (const uint codePoint : codePoints) {
        if (codePoint >= 0x1F3FB && codePoint <= 0x1F3FF)
            return toneNames().at(int(codePoint - 0x1F3FA));
    }
    return toneNames().at(0);
}

QPushButton *makeButton(const QString &text)
{
    auto *button = new QPushButton(text);
    followFontToken(button, WFont::BodySecondary);
    return button;
}

} // namespace

EmojiPage::EmojiPage()
    : Page(tr("Emoji"),
           tr("A picker over the whole catalogue. Tab goes from the search to the categories, the emoji and the skin "
              "tones; arrow keys move, Return picks."))
    , m_model(new EmojiPickerModel(this))
    , m_converter(TextImageSide)
{
    EmojiPicker::EmojiResources::ensureRegistered();
    m_model->setCatalogue(EmojiPicker::EmojiParser().parseFile(QStringLiteral(":/emoji-data/emoji.json")));
    addPicker();
    addText();
    auto *origin = new Label(tr("Drawings: Twemoji, Copyright (c) 2014-2021 Twitter, (c) 2022-present Jason Sofonia & "
                                "Justine De Caires, licensed under CC BY 4.0"),
                             WFont::BodyTertiary, Label::Secondary);
    addCard(origin->wrapped());
    showCurrent(0);
}

void EmojiPage::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    showText();
}

void EmojiPage::addPicker()
{
    WFrame *card = addCard(tr("Picker"),
                           tr("A corner marks an emoji with skin tones. What is picked is remembered as "
                              "recently used when the grid is left."));
    card->setCSS(GalleryStyles::card() + GalleryStyles::iconBars());
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    column->setSpacing(8);

    m_search = new SearchField(tr("Search emoji"));
    m_search->setMinimumWidth(160);
    auto *tone = new QComboBox;
    tone->setAccessibleName(tr("Skin tone of all emoji"));
    tone->setToolTip(tone->accessibleName());
    tone->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    followFontToken(tone, WFont::BodySecondary);
    tone->addItems(toneNames());
    auto *top = new QHBoxLayout;
    top->setSpacing(8);
    top->addWidget(m_search, 1);
    top->addWidget(tone);
    column->addLayout(top);
    column->addWidget(makeCategories());
    m_grid = new EmojiGrid(m_model);
    m_grid->setAccessibleName(tr("Emoji"));
    m_search->setResults(m_grid);
    column->addWidget(m_grid);
    column->addWidget(makeTones());

    connect(m_search, &QLineEdit::textChanged, m_model, &EmojiPickerModel::setFilter);
    connect(m_search, &QLineEdit::returnPressed, this, [this] {
        if (m_model->rowCount() > 0 && !m_model->filter().isEmpty())
            pick(m_grid->currentIndex());
    });
    connect(m_search, &QLineEdit::editingFinished, this, &EmojiPage::rememberPicks);
    connect(m_model, &EmojiPickerModel::filterChanged, this, &EmojiPage::showCategoriesUsable);
    connect(tone, QOverload<int>::of(&QComboBox::currentIndexChanged), m_model, &EmojiPickerModel::setDefaultTone);
    connect(m_model, &QAbstractItemModel::dataChanged, this, [this] { showCurrent(m_grid->currentIndex().row()); });
    connect(m_grid, &EmojiGrid::currentRowChanged, this, &EmojiPage::showCurrent);
    connect(m_grid, &EmojiGrid::picked, this, &EmojiPage::pick);
    connect(m_grid, &EmojiGrid::left, this, &EmojiPage::rememberPicks);
    connect(m_grid, &EmojiGrid::typed, this, [this](const QString &text) {
        m_search->setFocus(Qt::OtherFocusReason);
        m_search->setText(m_search->text() + text);
    });
    showCategoriesUsable();
}

QWidget *EmojiPage::makeCategories()
{
    auto *all = new QWidget;
    all->setAccessibleName(tr("Categories"));
    auto *row = new QHBoxLayout(all);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    m_categories = new QButtonGroup(this);
    const QStringList ids = m_model->categoryIds();
    for (int i = 0; i < ids.size(); ++i) {
        const QString id = ids.at(i);
        auto *button = new EmojiButton;
        const bool isRecents = id == EmojiPicker::RecentsId;
        const uint clock = 0x1F552;
        const QModelIndex first = m_model->index(m_model->firstRowOf(id));
        button->setEmoji(isRecents ? QString::fromUcs4(&clock, 1) : first.data().toString(), m_model->categoryName(id));
        m_categories->addButton(button, i);
        row->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, id] {
            const int begin = m_model->firstRowOf(id);
            if (begin >= 0)
                m_grid->showFrom(begin);
        });
    }
    row->addStretch();
    m_count = new Label(QString(), WFont::BodySecondary, Label::Secondary);
    row->addWidget(m_count);
    return all;
}

QWidget *EmojiPage::makeTones()
{
    auto *all = new QWidget;
    auto *row = new QHBoxLayout(all);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    m_name = new Label(QString(), WFont::BodyPrimary);
    row->addWidget(m_name, 1);
    m_tones = new QButtonGroup(this);
    for (int i = 0; i < toneNames().size(); ++i) {
        auto *button = new EmojiButton;
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        button->setSizePolicy(policy);
        m_tones->addButton(button, i);
        m_toneButtons.append(button);
        row->addWidget(button);
        connect(button, &QToolButton::clicked, this,
                [this, i] { m_model->setTone(m_grid->currentIndex().data(EmojiPickerModel::NameRole).toString(), i); });
    }
    return all;
}

void EmojiPage::addText()
{
    WFrame *card = addCard(tr("Text"), tr("Emoji are images in the text, and emoji again in what is copied."));
    m_shown = new WTextBrowser;
    m_shown->setFontToken(WFont::BodyPrimary);
    m_shown->setCSS(GalleryStyles::textBrowser());
    m_shown->setOpenLinks(false);
    m_shown->setFixedHeight(72);
    card->layout()->addWidget(m_shown);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    m_copy = makeButton(tr("Copy"));
    m_clear = makeButton(tr("Clear"));
    connect(m_copy, &QPushButton::clicked, this, [this] { m_converter.copyPlainText(m_text); });
    connect(m_clear, &QPushButton::clicked, this, [this] {
        m_text.clear();
        showText();
    });
    row->addWidget(m_copy);
    row->addWidget(m_clear);
    row->addStretch();
    static_cast<QVBoxLayout *>(card->layout())->addSpacing(8);
    static_cast<QVBoxLayout *>(card->layout())->addLayout(row);
    // So that there is something to see before anything is picked.
    const QStringList recents = m_model->recents().mid(0, 3);
    m_text = tr("See you at 8 <here>");
    for (const QString &name : recents)
        m_text += QLatin1Char(' ') + m_model->index(m_model->rowOf(name)).data(EmojiPickerModel::TextRole).toString();
    showText();
}

void EmojiPage::showCurrent(int row)
{
    const QModelIndex index = m_model->index(row);
    const QString name = index.data(EmojiPickerModel::LocalisedNameRole).toString();
    m_name->setText(name);
    const QStringList tones = index.data(EmojiPickerModel::TonesRole).toStringList();
    const int shown = index.data(EmojiPickerModel::ToneRole).toInt();
    for (int i = 0; i < m_toneButtons.size(); ++i) {
        EmojiButton *button = m_toneButtons.at(i);
        button->setVisible(tones.size() > 1 && i < tones.size());
        button->setEmoji(tones.value(i), tr("%1: %2").arg(name, toneName(tones.value(i))));
        button->setChecked(i == shown);
    }
    if (m_model->filter().trimmed().isEmpty()) {
        const QString id = index.data(EmojiPickerModel::CategoryIdRole).toString();
        if (QAbstractButton *button = m_categories->button(m_model->categoryIds().indexOf(id)))
            button->setChecked(true);
    }
}

// What is found is in the order of the search.
void EmojiPage::showCategoriesUsable()
{
    const bool isFiltered = !m_model->filter().trimmed().isEmpty();
    const QStringList ids = m_model->categoryIds();
    for (int i = 0; i < ids.size(); ++i)
        m_categories->button(i)->setEnabled(m_model->firstRowOf(ids.at(i)) >= 0);
    const QString found = isFiltered ? tr("%n found", nullptr, m_model->rowCount()) : QString();
    m_count->setText(found);
    m_search->setAccessibleDescription(found);
}

void EmojiPage::pick(const QModelIndex &index)
{
    m_text += index.data(EmojiPickerModel::TextRole).toString();
    m_picks << index.data(EmojiPickerModel::NameRole).toString();
    showText();
}

// Not with each pick: nothing may move below a pointer or a cursor that is about to pick once more.
void EmojiPage::rememberPicks()
{
    const QStringList picks = std::exchange(m_picks, {});
    for (const QString &name : picks)
        m_model->addRecent(name);
    if (!picks.isEmpty())
        showCategoriesUsable();
}

void EmojiPage::showText()
{
    m_shown->setHtml(m_converter.toRichText(m_text));
    EmojiPicker::EmojiConverter::insertEmojiImages(m_shown->document(), TextImageSide, devicePixelRatioF());
    m_shown->setAccessibleName(
        m_text.isEmpty() ? tr("No text") : EmojiPicker::EmojiConverter::spokenText(m_text, m_model->catalogue()));
    m_shown->moveCursor(QTextCursor::End);
    m_copy->setEnabled(!m_text.isEmpty());
    m_clear->setEnabled(!m_text.isEmpty());
}
