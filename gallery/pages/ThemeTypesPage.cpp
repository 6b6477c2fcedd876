#include "ThemeTypesPage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"
#include "RowCount.h"

#include <UiElements/widgets/WDialog.h>
#include <UiElements/widgets/WListWidget.h>
#include <UiElements/widgets/WProgressBar.h>
#include <UiElements/widgets/WRadioButton.h>
#include <UiElements/widgets/WSlider.h>
#include <UiElements/widgets/WTextEdit.h>

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// An element asks itself and then its window; a panel in between is not asked. So what stands in the panel is told.
void setThemeTypeOfAll(QWidget *root, const QString &themeType)
{
    root->setProperty("themeType", themeType);
    const QList<QWidget *> parts = root->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        if (part->metaObject()->indexOfProperty("themeType") >= 0)
            part->setProperty("themeType", themeType);
    }
}

WFrame *makePanel(const QString &title, const QString &sentence)
{
    auto *panel = new WFrame;
    panel->setObjectName(QStringLiteral("panel"));
    panel->setCSS(GalleryStyles::panel());
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(12);
    auto *head = new QVBoxLayout;
    head->setSpacing(2);
    head->addWidget(new Label(title, WFont::SubheaderPrimary));
    head->addWidget((new Label(sentence, WFont::BodySecondary, Label::Secondary))->wrapped());
    column->addLayout(head);
    column->addStretch();

    auto *field = new WTextEdit;
    field->setFontToken(WFont::BodySecondary);
    field->setCSS(GalleryStyles::textField());
    field->setPlainText(ThemeTypesPage::tr("Write a message"));
    field->setTabChangesFocus(true);
    field->setFixedHeight(56);
    column->addWidget(field);
    auto *list = new WListWidget;
    list->setFontToken(WFont::BodySecondary);
    list->setCSS(GalleryStyles::itemView());
    list->addItems({ThemeTypesPage::tr("Design"), ThemeTypesPage::tr("Engineering")});
    list->setCurrentRow(0);
    keepRowsShown(list, 2);
    column->addWidget(list);
    for (const bool checked : {true, false}) {
        auto *button =
            new WRadioButton(checked ? ThemeTypesPage::tr("All messages") : ThemeTypesPage::tr("Only mentions"));
        button->setFontToken(WFont::BodySecondary);
        button->setCSS(GalleryStyles::radioButton());
        button->setChecked(checked);
        column->addWidget(button);
    }
    auto *slider = new WSlider(Qt::Horizontal);
    slider->setCSS(GalleryStyles::slider());
    slider->setValue(60);
    column->addWidget(slider);
    auto *bar = new WProgressBar;
    bar->setCSS(GalleryStyles::progressBar());
    bar->setTextVisible(false);
    bar->setBarHeight(6);
    bar->setValue(60);
    column->addWidget(bar);
    auto *button = new QPushButton(ThemeTypesPage::tr("Send"));
    followFontToken(button, WFont::BodySecondary);
    column->addWidget(button);
    const QList<QWidget *> parts = panel->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        if (part->focusPolicy() != Qt::NoFocus)
            part->setAccessibleName(title);
    }
    return panel;
}

} // namespace

ThemeTypesPage::ThemeTypesPage()
    : Page(
        tr("Theme types"),
        tr("Every element can ask for a theme of its own. Switch the theme above: light and dark stay what they are, "
           "inverted is always the opposite. In high contrast all follow the application."))
{
    auto *panels = new QWidget;
    auto *row = new QHBoxLayout(panels);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(16);
    const struct
    {
        const char *type;
        QString title;
        QString sentence;
    } types[] = {{"global", tr("Global"), tr("Follows its window and the application.")},
                 {"light", tr("Light"), tr("Light in every theme.")},
                 {"dark", tr("Dark"), tr("Dark in every theme.")},
                 {"inverted", tr("Inverted"), tr("The opposite of the application.")}};
    for (const auto &type : types) {
        WFrame *panel = makePanel(type.title, type.sentence);
        setThemeTypeOfAll(panel, QString::fromLatin1(type.type));
        row->addWidget(panel, 1);
    }
    addCard(panels);
    addReparenting();
}

void ThemeTypesPage::addReparenting()
{
    WFrame *card =
        addCard(tr("Moved to another window"),
                tr("The frame is global. In a window of the inverted type it takes the colors of that window, "
                   "and back here those of this one."));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    auto *button = new QPushButton(tr("Move the frame to an inverted window"));
    followFontToken(button, WFont::BodySecondary);
    auto *home = new QWidget;
    auto *homeRow = new QHBoxLayout(home);
    homeRow->setContentsMargins(0, 0, 0, 0);
    auto *traveller = new WFrame;
    traveller->setObjectName(QStringLiteral("panel"));
    traveller->setCSS(GalleryStyles::panel());
    auto *column = new QVBoxLayout(traveller);
    column->setContentsMargins(16, 12, 16, 12);
    column->addWidget(new Label(tr("I look like my window."), WFont::BodyPrimary));
    homeRow->addWidget(traveller);
    row->addWidget(home, 1);
    row->addWidget(button);
    static_cast<QVBoxLayout *>(card->layout())->addLayout(row);

    connect(button, &QPushButton::clicked, this, [this, button, homeRow, traveller] {
        auto *window = new WDialog(this);
        window->setObjectName(QStringLiteral("dialog"));
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowTitle(tr("An inverted window"));
        window->setThemeType(QStringLiteral("inverted"));
        window->setCSS(GalleryStyles::dialog());
        auto *layout = new QVBoxLayout(window);
        layout->setContentsMargins(24, 24, 24, 24);
        layout->addWidget(traveller);
        button->setEnabled(false);
        connect(window, &QDialog::finished, this, [button, homeRow, traveller] {
            homeRow->addWidget(traveller);
            button->setEnabled(true);
        });
        window->open();
    });
}
