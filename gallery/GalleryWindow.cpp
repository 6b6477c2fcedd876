#include "GalleryWindow.h"

#include "BusMonitor.h"
#include "GalleryBar.h"
#include "GalleryStyles.h"
#include "Label.h"
#include "Page.h"
#include "PageRegistry.h"

#include <UiElements/app/WAppSignals.h>
#include <UiElements/app/WApplication.h>
#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/widgets/WFrame.h>
#include <UiElements/widgets/WListWidget.h>
#include <UiElements/widgets/WStackedWidget.h>
#include <UiElements/widgets/WWidget.h>

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QStatusBar>
#include <QVBoxLayout>

GalleryWindow::GalleryWindow(GalleryThemes *themes, QWidget *parent)
    : WMainWindow(parent)
    , m_themes(themes)
    , m_bar(new GalleryBar(*themes))
    , m_stack(new WStackedWidget)
    , m_status(new Label(QString(), WFont::BodySecondary, Label::Secondary))
    , m_pages(allPages().size())
{
    setObjectName(QStringLiteral("gallery_window"));
    setWindowTitle(tr("UiElements gallery"));
    setCSS(GalleryStyles::window());
    registerShortcuts();

    auto *main = new WWidget;
    auto *column = new QVBoxLayout(main);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_bar);
    column->addWidget(m_stack, 1);
    auto *central = new WWidget;
    auto *row = new QHBoxLayout(central);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(makeSide());
    row->addWidget(main, 1);
    setCentralWidget(central);
    for (int i = 0; i < m_pages.size(); ++i)
        m_stack->addWidget(new QWidget); // until the page is asked for

    m_status->setContentsMargins(24, 4, 24, 4);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(m_status, 1);

    connect(m_bar, &GalleryBar::themeRequested, this, &GalleryWindow::setTheme);
    connect(themes->loader(), &WThemeLoader::lastErrorChanged, this, [this] { showStatus(QString()); });
    connect(m_bar, &GalleryBar::themeTypeRequested, this, &GalleryWindow::setWindowThemeType);
    connect(m_bar, &GalleryBar::directionRequested, this, &GalleryWindow::setDirection);
    connect(m_bar, &GalleryBar::fontScaleRequested, this, &GalleryWindow::setFontScale);
    m_bar->show(m_themes->current());
    m_bar->showDirection(QApplication::layoutDirection());
    resize(1280, 832);
    m_navigation->setCurrentRow(0);
    showStatus(QString());
}

// The keys belong to one main window of a program: here, to the first.
void GalleryWindow::registerShortcuts()
{
    const auto all = WShortcut::General | WShortcut::Messaging | WShortcut::CallingAndMeeting | WShortcut::Tool;
    WAppSignals *bus = WAppSignals::get();
    BusMonitor::get(); // sees all that is emitted from here on
    if (!bus->getGroupShortcuts(all).isEmpty())
        return;
    bus->registerShortcuts(this, all);
    connect(bus, &WAppSignals::showKeyboardShortcutsDialog, this, [this] {
        showPage(QStringLiteral("shortcuts"));
        currentPage()->setFocus(Qt::ShortcutFocusReason);
    });
}

QWidget *GalleryWindow::makeSide()
{
    auto *side = new WFrame;
    side->setObjectName(QStringLiteral("side"));
    side->setCSS(GalleryStyles::side());
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 20, 0, 8);
    column->setSpacing(12);
    auto *title = new Label(QStringLiteral("UiElements"), WFont::Title);
    title->setContentsMargins(23, 0, 23, 0);
    column->addWidget(title);
    m_navigation = new WListWidget;
    m_navigation->setCSS(GalleryStyles::navigation());
    m_navigation->setFontToken(WFont::BodySecondary);
    m_navigation->setAccessibleName(tr("Pages"));
    m_navigation->setElementUniqueId(QStringLiteral("gallery.pages"));
    m_navigation->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const PageEntry &entry : allPages())
        m_navigation->addItem(entry.title);
    column->addWidget(m_navigation, 1);
    const auto fit = [this, side] {
        const int around = m_navigation->width() - m_navigation->viewport()->width();
        side->setFixedWidth(qMax(232, m_navigation->sizeHintForColumn(0) + around));
    };
    connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, side, fit,
            Qt::QueuedConnection);
    QMetaObject::invokeMethod(side, fit, Qt::QueuedConnection);
    connect(m_navigation, &WListWidget::currentRowChanged, this, &GalleryWindow::showPageAt);
    return side;
}

void GalleryWindow::showPageAt(int row)
{
    if (row < 0 || row >= m_pages.size())
        return;
    if (!m_pages.at(row)) {
        Page *page = allPages().at(row).make();
        m_pages[row] = page;
        connect(page, &Page::pageRequested, this, &GalleryWindow::showPage);
        QWidget *placeholder = m_stack->widget(row);
        m_stack->removeWidget(placeholder);
        delete placeholder;
        m_stack->insertWidget(row, page);
    }
    m_stack->setCurrentIndex(row);
}

bool GalleryWindow::showPage(const QString &name)
{
    for (int row = 0; row < m_pages.size(); ++row) {
        if (allPages().at(row).name == name) {
            m_navigation->setCurrentRow(row);
            return true;
        }
    }
    return false;
}

Page *GalleryWindow::currentPage() const
{
    return m_pages.value(m_navigation->currentRow());
}

void GalleryWindow::fitToPage()
{
    const Page *page = currentPage();
    if (!page)
        return;
    QCoreApplication::sendPostedEvents();
    const int around = height() - page->height();
    resize(width(), qMax(720, around + page->heightWithoutScrolling(page->width())));
    QCoreApplication::sendPostedEvents();
}

void GalleryWindow::setTheme(const GalleryThemes::Choice &choice)
{
    timed([this, &choice] { m_themes->apply(choice); });
    m_bar->show(m_themes->current());
}

void GalleryWindow::setWindowThemeType(const QString &themeType)
{
    timed([this, &themeType] { setThemeType(themeType); });
    m_bar->showThemeType(themeType);
}

void GalleryWindow::setDirection(Qt::LayoutDirection direction)
{
    timed([direction] { QApplication::setLayoutDirection(direction); });
    m_bar->showDirection(direction);
}

void GalleryWindow::setFontScale(float factor)
{
    timed([factor] { WApplication::find()->setFontScaleFactor(factor); });
}

void GalleryWindow::setTimesShown(bool shown)
{
    m_timesShown = shown;
    BusMonitor::get()->setTimesShown(shown);
}

void GalleryWindow::timed(const std::function<void()> &change)
{
    QElapsedTimer timer;
    timer.start();
    change();
    if (!m_timesShown) {
        showStatus(QString());
        return;
    }
    if (isVisible())
        repaint();
    showStatus(tr("Switched in %1 ms").arg(timer.elapsed()));
}

void GalleryWindow::showStatus(const QString &text)
{
    QStringList parts {m_themes->titleOf(m_themes->current())};
    if (themeType() != QLatin1String("global"))
        parts << tr("this window %1").arg(themeType());
    if (!text.isEmpty())
        parts << text;
    if (!m_themes->fault().isEmpty())
        parts << m_themes->fault();
    m_status->setText(parts.join(QStringLiteral("   ·   ")));
}
