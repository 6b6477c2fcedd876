#include "Page.h"

#include "GalleryStyles.h"
#include "Label.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

Page::Page(const QString &title, const QString &introduction, QWidget *parent)
    : WWidget(parent)
    , m_area(new QScrollArea(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    m_area->setObjectName(QStringLiteral("page_area"));
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setAccessibleName(title);
    column->addWidget(m_area);

    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("page_content"));
    m_body = new QVBoxLayout(content);
    m_body->setContentsMargins(32, 24, 32, 32);
    m_body->setSpacing(16);
    auto *head = new QVBoxLayout;
    head->setSpacing(4);
    head->addWidget(new Label(title, WFont::BannerPrimary));
    head->addWidget((new Label(introduction, WFont::BodyPrimary, Label::Secondary))->wrapped());
    m_body->addLayout(head);
    m_body->addStretch(1);
    m_area->setWidget(content);
}

int Page::heightWithoutScrolling(int width) const
{
    const QWidget *content = m_area->widget();
    return content->hasHeightForWidth() ? content->heightForWidth(width) : content->sizeHint().height();
}

void Page::addSection(const QString &title)
{
    auto *label = new Label(title, WFont::Title);
    label->setContentsMargins(0, 8, 0, 0);
    m_body->insertWidget(m_body->count() - 1, label);
}

void Page::addCard(QWidget *card)
{
    m_body->insertWidget(m_body->count() - 1, card);
}

WFrame *Page::addCard(const QString &title, const QString &description)
{
    WFrame *card = makeCard(title, description);
    addCard(card);
    return card;
}

WFrame *makeCard(const QString &title, const QString &description, QWidget *parent)
{
    auto *card = new WFrame(parent);
    card->setObjectName(QStringLiteral("card"));
    card->setCSS(GalleryStyles::card());
    fillCard(card, title, description);
    return card;
}

QVBoxLayout *fillCard(QWidget *card, const QString &title, const QString &description)
{
    auto *column = new QVBoxLayout(card);
    column->setContentsMargins(24, 16, 24, 24);
    column->setSpacing(4);
    if (!title.isEmpty())
        column->addWidget(new Label(title, WFont::SubheaderPrimary));
    if (!description.isEmpty())
        column->addWidget((new Label(description, WFont::BodySecondary, Label::Secondary))->wrapped());
    if (column->count())
        column->addSpacing(12);
    return column;
}
