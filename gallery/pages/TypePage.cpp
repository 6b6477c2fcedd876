#include "TypePage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QVBoxLayout>

namespace {

QString describe(const QFont &font)
{
    QString weight = TypePage::tr("regular");
    if (font.weight() >= QFont::Bold)
        weight = TypePage::tr("bold");
    else if (font.weight() >= QFont::DemiBold)
        weight = TypePage::tr("semibold");
    const QString text = TypePage::tr("%1 px, %2").arg(font.pixelSize()).arg(weight);
    return font.underline() ? TypePage::tr("%1, underlined").arg(text) : text;
}

} // namespace

TypePage::TypePage()
    : Page(tr("Type"), tr("Fonts are asked for by token. The font scale in the bar applies to all of them."))
{
    addTokens();
    addScaledSets();
}

void TypePage::addTokens()
{
    WFrame *card = addCard(tr("The 21 tokens"), tr("At the font scale of the application."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(6);
    grid->setColumnMinimumWidth(0, 184);
    grid->setColumnMinimumWidth(1, 144);
    grid->setColumnStretch(2, 1);
    const QMetaEnum tokens = QMetaEnum::fromType<WFont::Token>();
    WScaledFonts *fonts = WFontManager::get()->getFont(FontManagerEnum::Default);
    for (int i = 0; i < tokens.keyCount(); ++i) {
        const auto token = WFont::Token(tokens.value(i));
        auto *numbers = new Label(QString(), WFont::RadioButtonLabelSecondary, Label::Secondary);
        const auto update = [numbers, fonts, token] {
            numbers->setText(describe(fonts->getFont(token)));
        };
        connect(fonts, &WScaledFonts::fontTokenChanged, numbers, update);
        update();
        grid->addWidget(new Label(QString::fromLatin1(tokens.key(i)), WFont::BodySecondary), i, 0);
        grid->addWidget(numbers, i, 1);
        grid->addWidget(new Label(tr("See you at nine"), token), i, 2);
    }
    static_cast<QVBoxLayout *>(card->layout())->addLayout(grid);
}

void TypePage::addScaledSets()
{
    WFrame *card = addCard(tr("The scaled set of a view"),
                           tr("Each kind of view has a factor of its own on top of that of the application."));
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    const auto addChoice = [row](const QString &title, const QMetaEnum &values) {
        auto *box = new QComboBox;
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        for (int i = 0; i < values.keyCount(); ++i)
            box->addItem(QString::fromLatin1(values.key(i)), values.value(i));
        box->setAccessibleName(title);
        followFontToken(box, WFont::BodySecondary);
        row->addWidget(new Label(title, WFont::BodySecondary));
        row->addWidget(box);
        return box;
    };
    QComboBox *view = addChoice(tr("View"), QMetaEnum::fromType<FontManagerEnum::FontType>());
    row->addSpacing(12);
    QComboBox *factor = addChoice(tr("Size"), QMetaEnum::fromType<FontManagerEnum::FontScalingFactor>());
    view->setCurrentIndex(FontManagerEnum::MessagingView);
    row->addStretch();
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    column->addLayout(row);
    column->addSpacing(12);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(6);
    grid->setColumnMinimumWidth(0, 184);
    grid->setColumnMinimumWidth(1, 144);
    grid->setColumnStretch(2, 1);
    struct Line
    {
        int property;
        QLabel *numbers;
        QLabel *sample;
    };
    QVector<Line> lines;
    const QMetaObject &meta = WScaledFonts::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        auto *numbers = new Label(QString(), WFont::RadioButtonLabelSecondary, Label::Secondary);
        auto *sample = new Label(tr("See you at nine"));
        const int line = lines.size();
        grid->addWidget(new Label(QString::fromLatin1(meta.property(i).name()), WFont::BodySecondary), line, 0);
        grid->addWidget(numbers, line, 1);
        grid->addWidget(sample, line, 2);
        lines.append({i, numbers, sample});
    }
    column->addLayout(grid);

    const auto fontsOfView = [view] {
        return WFontManager::get()->getFont(FontManagerEnum::FontType(view->currentData().toInt()));
    };
    const auto update = [lines, fontsOfView] {
        for (const Line &line : lines) {
            const auto font = WScaledFonts::staticMetaObject.property(line.property).read(fontsOfView()).value<QFont>();
            line.sample->setFont(font);
            line.numbers->setText(describe(font));
        }
    };
    const auto showFactor = [factor, fontsOfView, update] {
        const QSignalBlocker silent(factor);
        factor->setCurrentIndex(factor->findData(int(fontsOfView()->scalingFactor())));
        update();
    };
    connect(view, QOverload<int>::of(&QComboBox::currentIndexChanged), this, showFactor);
    connect(factor, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [view, factor] {
        WFontManager::get()->setScalingFactor(FontManagerEnum::FontType(view->currentData().toInt()),
                                              FontManagerEnum::FontScalingFactor(factor->currentData().toInt()));
    });
    for (int type = 0; type <= FontManagerEnum::MeetingView; ++type) {
        connect(WFontManager::get()->getFont(FontManagerEnum::FontType(type)), &WScaledFonts::fontTokenChanged, this,
                update);
    }
    showFactor();
}
