#include "TemplatesPage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WRadioButton.h>
#include <UiElements/widgets/WTextEdit.h>

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

struct Example
{
    QString title;
    QString text;
    QString explanation;
};

QVector<Example> examples()
{
    return {
        {TemplatesPage::tr("Directives"),
         QStringLiteral("$backgroundColors: button-secondary-background;\n"
                        "$borderColors: button-secondary-border;\n"
                        "$textColors: button-secondary-text;\n"
                        "$borders: all; $borderRadius: 6; padding: 8px;"),
         TemplatesPage::tr("A directive names a color set and stands for one rule per state. Move the mouse over the "
                           "sample, press it, check it.")},
        {TemplatesPage::tr("Tokens"),
         QStringLiteral("background-color: $(banner-info-background.normal);\n"
                        "color: $(banner-text.normal); padding: 8px;"),
         TemplatesPage::tr("A token is one color of one set, anywhere in a style sheet.")},
        {TemplatesPage::tr("Some sides, some corners"),
         QStringLiteral("$backgroundColors: background-selection;\n"
                        "$borderColors: outline-focus; $textColors: text-primary;\n"
                        "$borders: left, bottom; $borderWidth: 3;\n"
                        "$borderRadius: 12 top-right; padding: 8px;"),
         TemplatesPage::tr("Borders and radii name the sides and corners that they apply to.")},
        {TemplatesPage::tr("A gradient"),
         QStringLiteral("$backgroundColors: gradient-background-primary; $borders: all;\n"
                        "$borderColors: outline-secondary;\n"
                        "$textColors: text-primary;\n"
                        "$borderRadius: 12; padding: 8px;"),
         TemplatesPage::tr("Three names stand for gradients between two sets of the theme.")},
        {TemplatesPage::tr("Rules for parts"),
         QStringLiteral("$backgroundColors: call-accept-background;\n"
                        "$textColors: call-text;\n"
                        "$borderRadius: 16; padding: 8px 16px; spacing: 8px;\n"
                        "QRadioButton::indicator { width: 10px; height: 10px;\n"
                        "    border-radius: 5px; background: $(call-text.normal); }"),
         TemplatesPage::tr("What is no directive is an ordinary style sheet, and may have rules for the parts of the "
                           "element.")},
    };
}

WTextEdit *makeCode(const QString &name, int height)
{
    auto *edit = new WTextEdit;
    edit->setFontToken(WFont::CodeBlocks);
    edit->setCSS(GalleryStyles::codeField());
    edit->setAccessibleName(name);
    edit->setTabChangesFocus(true);
    edit->setAcceptRichText(false);
    edit->setFixedHeight(height);
    return edit;
}

// An element that has a text and can be in every state.
WRadioButton *makeSample(const QString &css)
{
    auto *sample = new WRadioButton(TemplatesPage::tr("Sample"));
    sample->setObjectName(QStringLiteral("sample"));
    sample->setAutoExclusive(false);
    sample->setFixedHeight(56);
    sample->setCSS(css);
    return sample;
}

} // namespace

TemplatesPage::TemplatesPage()
    : Page(
        tr("Templates"),
        tr("A template is a Qt style sheet with color sets in the place of colors. It is expanded again whenever the "
           "theme changes."))
{
    addPlayground();
    addExamples();
}

void TemplatesPage::addPlayground()
{
    WFrame *card = addCard(tr("Try it"), tr("Write a template; its expansion and the sample follow as you type."));
    card->setCSS(GalleryStyles::sampleCard());
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    auto *choice = new QComboBox;
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const QVector<Example> starts = examples();
    for (const Example &example : starts)
        choice->addItem(example.title, example.text);
    choice->setAccessibleName(tr("Start from"));
    followFontToken(choice, WFont::BodySecondary);
    row->addWidget(new Label(tr("Start from"), WFont::BodySecondary));
    row->addWidget(choice);
    row->addStretch();
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    column->addLayout(row);
    column->addSpacing(12);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    WTextEdit *source = makeCode(tr("Template"), 152);
    WTextEdit *expansion = makeCode(tr("Expansion"), 216);
    expansion->setReadOnly(true);
    WRadioButton *sample = makeSample(QString());
    const auto caption = [](const QString &text) {
        return new Label(text, WFont::BodyTertiary, Label::Secondary);
    };
    grid->addWidget(caption(tr("Template")), 0, 0);
    grid->addWidget(caption(tr("Expansion")), 0, 1);
    grid->addWidget(source, 1, 0);
    grid->addWidget(expansion, 1, 1, 2, 1);
    grid->addWidget(sample, 2, 0);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    column->addLayout(grid);

    const auto expand = [source, expansion, sample] {
        const WCSSData expanded = WThemeUtils::parseCSS(sample, source->toPlainText(), WThemeUtils::getAppWColorSets());
        expansion->setPlainText(QString(expanded.styleSheet).replace(QLatin1String("} "), QLatin1String("}\n")));
    };
    connect(source, &WTextEdit::textChanged, sample, [source, sample, expand] {
        // An empty expansion would leave the previous look.
        const QString css = source->toPlainText();
        sample->setCSS(css.trimmed().isEmpty() ? QStringLiteral("border: none;") : css);
        expand();
    });
    connect(sample, &WRadioButton::cssChanged, expansion, expand);
    connect(choice, QOverload<int>::of(&QComboBox::currentIndexChanged), source,
            [choice, source] { source->setPlainText(choice->currentData().toString()); });
    source->setPlainText(choice->currentData().toString());
}

void TemplatesPage::addExamples()
{
    WFrame *card =
        addCard(tr("What a template can say"), tr("The text at the side is the whole template of the sample."));
    card->setCSS(GalleryStyles::sampleCard());
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(24);
    grid->setColumnStretch(0, 5);
    grid->setColumnStretch(1, 3);
    int line = 0;
    const QVector<Example> all = examples();
    for (const Example &example : all) {
        auto *column = new QVBoxLayout;
        column->setSpacing(4);
        column->addWidget(new Label(example.title, WFont::SubheaderSecondary));
        column->addWidget((new Label(example.explanation, WFont::BodySecondary, Label::Secondary))->wrapped());
        // Code runs from left to right everywhere.
        auto *code = new Label(example.text, WFont::CodeBlocks);
        code->setLayoutDirection(Qt::LeftToRight);
        column->addWidget(code, 0, Qt::AlignLeading);
        grid->addLayout(column, line, 0);
        grid->addWidget(makeSample(example.text), line++, 1, Qt::AlignVCenter);
    }
    static_cast<QVBoxLayout *>(card->layout())->addLayout(grid);
}
