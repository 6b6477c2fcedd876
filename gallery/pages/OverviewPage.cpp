#include "OverviewPage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "PageRegistry.h"
#include "PlainParts.h"

#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WListWidget.h>
#include <UiElements/widgets/WProgressBar.h>
#include <UiElements/widgets/WTextEdit.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// A message that leaves room on the side of the other speaker.
QLayout *makeBubble(const QString &text, bool own)
{
    auto *bubble = new WFrame;
    bubble->setObjectName(own ? QStringLiteral("own_bubble") : QStringLiteral("bubble"));
    followDirection(bubble, [bubble, own](Qt::LayoutDirection direction) {
        bubble->setCSS(GalleryStyles::bubble(own, direction));
    });
    auto *column = new QVBoxLayout(bubble);
    column->setContentsMargins(14, 8, 14, 10);
    column->addWidget((new Label(text, WFont::BodySecondary, own ? Label::OnAccent : Label::Primary)));
    auto *row = new QHBoxLayout;
    if (own)
        row->addStretch();
    row->addWidget(bubble);
    if (!own)
        row->addStretch();
    return row;
}

QLayout *makeNumber(const QString &number, const QString &what)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(new Label(number, WFont::BannerPrimary));
    column->addWidget(new Label(what, WFont::BodySecondary, Label::Secondary));
    return column;
}

} // namespace

OverviewPage::OverviewPage()
    : Page(tr("Overview"), tr("User-interface elements that take their look from color and theme files."))
{
    addHero();
    addConversation();
    addLinks();
}

void OverviewPage::addHero()
{
    auto *hero = new WFrame;
    hero->setObjectName(QStringLiteral("hero"));
    hero->setCSS(GalleryStyles::hero());
    auto *column = new QVBoxLayout(hero);
    column->setContentsMargins(32, 24, 32, 24);
    column->setSpacing(16);
    column->addWidget(new Label(tr("One look, everywhere, live"), WFont::Display));
    column->addWidget(
        (new Label(tr("Change the theme, its appearance, the contrast, the direction or the font scale in "
                      "the bar above: every element on every page follows at once."),
                   WFont::BodyPrimary, Label::Secondary))
            ->wrapped());
    auto *row = new QHBoxLayout;
    row->setSpacing(48);
    row->addLayout(makeNumber(QStringLiteral("17"), tr("themed elements")));
    row->addLayout(makeNumber(QString::number(WThemeUtils::getAppWColorSets().size()), tr("color sets")));
    row->addLayout(makeNumber(QStringLiteral("6"), tr("states in each")));
    row->addLayout(makeNumber(QStringLiteral("21"), tr("font tokens")));
    row->addStretch();
    column->addLayout(row);
    addCard(hero);
}

void OverviewPage::addConversation()
{
    WFrame *card = addCard(tr("Put together"), tr("A conversation, as a messaging client would show it."));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    auto *people = new WListWidget;
    people->setCSS(GalleryStyles::itemView());
    people->setFontToken(WFont::BodySecondary);
    people->setAccessibleName(tr("Conversations"));
    people->addItems({tr("Ada"), tr("Boris"), tr("Chen"), tr("Design"), tr("Engineering"), tr("Travel")});
    people->setCurrentRow(3);
    people->setFixedWidth(216);
    row->addWidget(people);

    auto *talk = new QVBoxLayout;
    talk->setSpacing(8);
    talk->addWidget(new Label(tr("Design"), WFont::Header));
    talk->addSpacing(4);
    talk->addLayout(makeBubble(tr("Are the new colors readable in the dark?"), false));
    talk->addLayout(makeBubble(tr("Yes. Text keeps 4.5 to 1 on what it stands on."), true));
    talk->addLayout(makeBubble(tr("And with high contrast 7 to 1. Try it."), false));
    talk->addStretch();
    auto *upload = new WProgressBar;
    upload->setCSS(GalleryStyles::progressBar());
    upload->setTextVisible(false);
    upload->setBarHeight(4);
    upload->setValue(70);
    upload->setAccessibleName(tr("Upload"));
    auto *uploadRow = new QHBoxLayout;
    uploadRow->setSpacing(12);
    uploadRow->addWidget(new Label(tr("Sending palette.pdf"), WFont::BodyTertiary, Label::Secondary));
    uploadRow->addWidget(upload, 1);
    talk->addLayout(uploadRow);
    auto *writeRow = new QHBoxLayout;
    writeRow->setSpacing(8);
    auto *write = new WTextEdit;
    write->setCSS(GalleryStyles::textField());
    write->setFontToken(WFont::BodySecondary);
    followPlaceholderColor(write);
    write->setPlaceholderText(tr("Write a message"));
    write->setAccessibleName(tr("Message"));
    write->setTabChangesFocus(true);
    write->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    write->setFixedHeight(44);
    auto *send = new QPushButton(tr("Send"));
    send->setProperty("kind", QStringLiteral("primary"));
    followFontToken(send, WFont::BodySecondary);
    writeRow->addWidget(write, 1);
    writeRow->addWidget(send);
    talk->addLayout(writeRow);
    row->addLayout(talk, 1);
    static_cast<QVBoxLayout *>(card->layout())->addLayout(row);
}

void OverviewPage::addLinks()
{
    WFrame *card = addCard(tr("Look around"), tr("Each page shows one family of elements in its six states."));
    auto *links = new QWidget;
    auto *flow = new FlowLayout(8, 8, links);
    flow->setContentsMargins(0, 0, 0, 0);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    links->setSizePolicy(policy);
    const QVector<PageEntry> others = allPages().mid(1);
    for (const PageEntry &entry : others) {
        auto *button = new QPushButton(entry.title);
        followFontToken(button, WFont::BodySecondary);
        const QString name = entry.name;
        connect(button, &QPushButton::clicked, this, [this, name] { Q_EMIT pageRequested(name); });
        flow->addWidget(button);
    }
    card->layout()->addWidget(links);
}
