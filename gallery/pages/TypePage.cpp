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

// The fonts of all tokens at a scale that need not be the application's.
QVector<QFont> fontsAt(float scale)
{
    QVector<QFont> fonts;
    WApplication *app = WApplication::find();
    const QSignalBlocker silent(app);
    const float present = app->getFontScaleFactor();
    app->setFontScaleFactor(scale);
    const QMetaEnum tokens = QMetaEnum::fromType<WFont::Token>();
    for (int i = 0; i < tokens.keyCount(); ++i)
        fonts << WFont(WFont::Token(tokens.value(i)));
    app->setFontScaleFactor(present);
    return fonts;
}

} // namespace

TypePage::TypePage()
    : Page(tr("Type"), tr("Fonts are asked for by token, and scaled by the application and by the view."))
{
    addTokens();
    addScaledSets();
}

void TypePage::addTokens()
{
    WFrame *card = addCard(tr("The 21 tokens"), tr("At the font scale of the application, and from 50 % to 150 %."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(0);
    const QMetaEnum tokens = QMetaEnum::fromType<WFont::Token>();
    for (int i = 0; i < tokens.keyCount(); ++i) {
        auto *numbers = new Label(QString(), WFont::RadioButtonLabelSecondary, Label::Secondary);
        const auto update = [numbers, token = WFont::Token(tokens.value(i))] {
            numbers->setText(describe(WFontManager::get()->getFont(FontManagerEnum::Default)->getFont(token)));
        };
        connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, numbers,
                update);
        update();
        const int line = 1 + 2 * i;
        grid->addWidget(new Label(QString::fromLatin1(tokens.key(i)), WFont::TagLabelSecondary), line, 0,
                        Qt::AlignBottom);
        grid->addWidget(numbers, line + 1, 0, Qt::AlignTop);
        numbers->setContentsMargins(0, 0, 0, 10);
    }
    int place = 0;
    for (const float scale : {0.5F, 0.75F, 1.0F, 1.25F, 1.5F}) {
        ++place;
        const QString title = tr("%1 %").arg(qRound(100 * scale));
        grid->addWidget(new Label(title, WFont::TagLabelSecondary, Label::Secondary), 0, place);
        const QVector<QFont> fonts = fontsAt(scale);
        for (int i = 0; i < fonts.size(); ++i) {
            auto *sample = new Label(tr("Ag %1").arg(fonts.at(i).pixelSize()));
            sample->setFont(fonts.at(i));
            sample->setAccessibleDescription(tr("%1 at %2").arg(QString::fromLatin1(tokens.key(i)), title));
            grid->addWidget(sample, 1 + 2 * i, place, 2, 1, Qt::AlignVCenter);
        }
        grid->setColumnStretch(place, 1);
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
        auto *sample = new Label(tr("At nine"));
        const int line = lines.size();
        grid->addWidget(new Label(QString::fromLatin1(meta.property(i).name()), WFont::TagLabelSecondary), line, 0);
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
