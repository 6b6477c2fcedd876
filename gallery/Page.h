#pragma once

#include <UiElements/widgets/WFrame.h>
#include <UiElements/widgets/WWidget.h>

class QScrollArea;
class QVBoxLayout;

/// A page of the gallery: a title, a sentence about it and cards below each other, scrolled when they need more room.
class Page : public WWidget
{
    Q_OBJECT

public:
    Page(const QString &title, const QString &introduction, QWidget *parent = nullptr);

    /// The height at which nothing is scrolled, if the page is that wide.
    int heightWithoutScrolling(int width) const;

Q_SIGNALS:
    /// The window is asked for another page.
    void pageRequested(const QString &name);

protected:
    void addSection(const QString &title);
    void addCard(QWidget *card);
    /// A card with a title and a sentence; the rest is added to its layout.
    WFrame *addCard(const QString &title, const QString &description);
    QVBoxLayout *body() const { return m_body; }

private:
    QScrollArea *m_area;
    QVBoxLayout *m_body;
};

/// A frame in the look of a card, with a column layout and, unless they are empty, a title and a sentence.
WFrame *makeCard(const QString &title, const QString &description, QWidget *parent = nullptr);
/// Gives a widget the layout, title and sentence of a card.
QVBoxLayout *fillCard(QWidget *card, const QString &title, const QString &description);
