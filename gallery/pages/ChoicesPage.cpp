#include "ChoicesPage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "StateCard.h"

#include <UiElements/widgets/WProgressBar.h>
#include <UiElements/widgets/WRadioButton.h>
#include <UiElements/widgets/WSlider.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

QWidget *makeRadioButton(bool checked)
{
    auto *button = new WRadioButton(ChoicesPage::tr("Available"));
    button->setFontToken(WFont::BodySecondary);
    button->setCSS(GalleryStyles::radioButton());
    button->setAutoExclusive(false);
    button->setChecked(checked);
    return button;
}

QWidget *makeSlider()
{
    auto *slider = new WSlider(Qt::Horizontal);
    slider->setCSS(GalleryStyles::slider());
    slider->setValue(40);
    return slider;
}

WProgressBar *makeProgress(int value)
{
    auto *bar = new WProgressBar;
    bar->setCSS(GalleryStyles::progressBar());
    bar->setTextVisible(false);
    bar->setBarHeight(6);
    bar->setValue(value);
    return bar;
}

} // namespace

ChoicesPage::ChoicesPage()
    : Page(tr("Choices and values"), tr("One of several, a value in a range, and how far something has come."))
{
    addCard(new StateCard(QStringLiteral("WRadioButton"), tr("Not checked, but for the last."),
                          [] { return makeRadioButton(false); }));
    addCard(new StateCard(tr("WRadioButton, checked"), tr("The states of a button that is checked."),
                          [] { return makeRadioButton(true); }));
    addCard(new StateCard(QStringLiteral("WSlider"), tr("The handle has the states."), makeSlider));
    addCard(new StateCard(QStringLiteral("WProgressBar"), tr("Shows a value and takes none."),
                          [] { return makeProgress(60); }));

    WFrame *card =
        addCard(tr("Progress bars of pinned sizes"),
                tr("The bar is drawn at the height for the moment; the element keeps the higher of the two."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(12);
    int line = 0;
    const auto add = [&](const QString &text, WProgressBar *bar) {
        bar->setAccessibleName(text);
        grid->addWidget(new Label(text, WFont::BodySecondary), line, 0);
        grid->addWidget(bar, line++, 1, Qt::AlignVCenter);
    };
    add(tr("Height 6, as wide as there is room"), makeProgress(35));
    WProgressBar *wide = makeProgress(70);
    wide->setBarWidth(240);
    add(tr("Height 6, width 240"), wide);
    WProgressBar *idle = makeProgress(0);
    idle->setIdleBarHeight(2);
    add(tr("Height 6, idle at height 2"), idle);
    WProgressBar *labelled = makeProgress(42);
    labelled->setTextVisible(true);
    labelled->setFontToken(WFont::BodyTertiary);
    labelled->setBarHeight(20);
    labelled->setFixedHeight(20);
    add(tr("Height 20, with its text"), labelled);
    WProgressBar *endless = makeProgress(0);
    endless->setRange(0, 0);
    add(tr("Endless"), endless);
    grid->setColumnStretch(1, 1);
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    column->addLayout(grid);

    card = addCard(tr("Sliders and a group of choices"), tr("Upright, lying, and buttons of which one is checked."));
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    for (int value : {20, 55, 80}) {
        auto *slider = new WSlider(Qt::Vertical);
        slider->setCSS(GalleryStyles::slider());
        slider->setValue(value);
        slider->setFixedHeight(120);
        slider->setAccessibleName(tr("Upright slider"));
        row->addWidget(slider);
    }
    auto *choices = new QWidget;
    auto *choiceColumn = new QVBoxLayout(choices);
    choiceColumn->setContentsMargins(0, 0, 0, 0);
    choiceColumn->setSpacing(12);
    const QStringList texts {tr("All messages"), tr("Only mentions"), tr("Nothing")};
    for (const QString &text : texts) {
        auto *button = new WRadioButton(text);
        button->setCSS(GalleryStyles::radioButton());
        button->setFontToken(WFont::BodyPrimary);
        button->setChecked(text == texts.first());
        choiceColumn->addWidget(button);
    }
    row->addWidget(choices);
    row->addStretch();
    static_cast<QVBoxLayout *>(card->layout())->addLayout(row);
}
