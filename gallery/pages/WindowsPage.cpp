#include "WindowsPage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"
#include "StateCard.h"

#include <UiElements/widgets/WDialog.h>
#include <UiElements/widgets/WMainWindow.h>
#include <UiElements/widgets/WMenu.h>
#include <UiElements/widgets/WSplitter.h>
#include <UiElements/widgets/WStackedWidget.h>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

namespace {

// Windows are shown inside of the page: as elements they are the same, only without a frame by the desktop.
template <typename W>
W *embedded(W *window)
{
    window->setWindowFlags(Qt::Widget);
    return window;
}

template <typename W>
W *withText(W *widget, const QString &text)
{
    auto *column = new QVBoxLayout(widget);
    column->setContentsMargins(12, 12, 12, 12);
    column->addWidget(new Label(text, WFont::BodySecondary));
    return widget;
}

QWidget *makeWidget()
{
    auto *widget = new WWidget;
    widget->setCSS(GalleryStyles::widget());
    widget->setPixmapSrc(QStringLiteral(":/gallery/picture.png"));
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->setFixedHeight(88);
    return widget;
}

QWidget *makeFrame()
{
    auto *frame = new WFrame;
    frame->setCSS(GalleryStyles::frame());
    frame->setFocusPolicy(Qt::StrongFocus);
    return withText(frame, QStringLiteral("WFrame"));
}

QWidget *makeDialog()
{
    auto *dialog = embedded(new WDialog);
    dialog->setCSS(GalleryStyles::dialog());
    auto *column = new QVBoxLayout(dialog);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(8);
    column->addWidget((new Label(WindowsPage::tr("Leave the space?"), WFont::SubheaderSecondary))->wrapped());
    auto *button = new QPushButton(WindowsPage::tr("Leave"));
    followFontToken(button, WFont::BodySecondary);
    column->addWidget(button);
    return dialog;
}

QWidget *makeMainWindow()
{
    auto *window = embedded(new WMainWindow);
    window->setCSS(GalleryStyles::mainWindow());
    auto *content = new Label(WindowsPage::tr("Content"), WFont::BodySecondary);
    content->setContentsMargins(12, 8, 12, 8);
    window->setCentralWidget(content);
    auto *status = new Label(WindowsPage::tr("Status"), WFont::BodyTertiary, Label::Secondary);
    status->setContentsMargins(8, 2, 8, 2);
    window->statusBar()->setSizeGripEnabled(false);
    window->statusBar()->addWidget(status);
    window->setContentsMargins(1, 1, 1, 1); // for the border, which the content would cover
    window->setFixedHeight(88);
    return window;
}

QWidget *makeSplitter()
{
    auto *splitter = new WSplitter(Qt::Horizontal);
    splitter->setCSS(GalleryStyles::splitter());
    splitter->setChildrenCollapsible(false);
    splitter->setContentsMargins(1, 0, 1, 0); // mirrored, Qt places the last part one pixel further
    for (const char *side : {"A", "B"}) {
        auto *frame = new WFrame;
        frame->setCSS(GalleryStyles::frame());
        splitter->addWidget(withText(frame, QString::fromLatin1(side)));
    }
    splitter->setFixedHeight(64);
    return splitter;
}

QWidget *makeStack()
{
    auto *stack = new WStackedWidget;
    stack->setCSS(GalleryStyles::stackedWidget());
    stack->setFocusPolicy(Qt::StrongFocus);
    stack->addWidget(withText(new QWidget, WindowsPage::tr("Page 1 of 2")));
    stack->addWidget(withText(new QWidget, WindowsPage::tr("Page 2 of 2")));
    return stack;
}

WMenu *fillMenu(WMenu *menu)
{
    menu->setCSS(GalleryStyles::menu());
    menu->setFontToken(WFont::BodySecondary);
    menu->addAction(WindowsPage::tr("Reply"));
    QAction *notify = menu->addAction(WindowsPage::tr("Notify"));
    notify->setCheckable(true);
    menu->addSeparator();
    menu->addAction(WindowsPage::tr("Delete"));
    return menu;
}

QWidget *makeMenu()
{
    WMenu *menu = fillMenu(new WMenu);
    menu->setWindowFlags(Qt::Widget);
    menu->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return menu;
}

// A menu has states by its items: the mouse and the keyboard both choose one.
bool forceMenu(QWidget *widget, WColorSet::State state)
{
    auto *menu = qobject_cast<WMenu *>(widget);
    QAction *item = menu->actions().value(1);
    switch (state) {
    case WColorSet::Hovered:
    case WColorSet::Pressed:
    case WColorSet::Focused: menu->setActiveAction(item); return true;
    case WColorSet::Disabled: item->setEnabled(false); return true;
    case WColorSet::Checked: item->setChecked(true); return true;
    case WColorSet::Normal: return true;
    }
    return false;
}

void openDialog(QWidget *parent)
{
    auto *dialog = new WDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(QStringLiteral("dialog"));
    dialog->setThemeType(parent->window()->property("themeType").toString());
    dialog->setWindowTitle(WindowsPage::tr("A dialog"));
    dialog->setCSS(GalleryStyles::dialog());
    auto *column = new QVBoxLayout(dialog);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(16);
    column->addWidget(new Label(WindowsPage::tr("Leave the space?"), WFont::Title));
    column->addWidget(new Label(WindowsPage::tr("You can join again whenever you are invited."), WFont::BodyPrimary));
    auto *row = new QHBoxLayout;
    row->addStretch();
    for (const QString &text : {WindowsPage::tr("Stay"), WindowsPage::tr("Leave")}) {
        auto *button = new QPushButton(text);
        followFontToken(button, WFont::BodySecondary);
        QObject::connect(button, &QPushButton::clicked, dialog, &QDialog::close);
        row->addWidget(button);
    }
    column->addLayout(row);
    dialog->open();
}

} // namespace

WindowsPage::WindowsPage()
    : Page(tr("Windows and frames"),
           tr("What stands under everything else, and what opens above it. States that an element does not have "
              "show it as it is."))
{
    addCard(new StateCard(QStringLiteral("WWidget"), tr("A plain area, optionally with a picture in the middle."),
                          makeWidget));
    addCard(new StateCard(QStringLiteral("WFrame"), tr("The frame that cards, panels and bubbles are made of."),
                          makeFrame));
    addCard(new StateCard(QStringLiteral("WDialog"), tr("Shown inside of the page; below it is opened as a window."),
                          makeDialog));
    addCard(new StateCard(QStringLiteral("WMainWindow"), tr("With content and a status bar, inside of the page."),
                          makeMainWindow));
    addCard(
        new StateCard(QStringLiteral("WSplitter"), tr("The handle between two frames has the states."), makeSplitter));
    addCard(new StateCard(QStringLiteral("WStackedWidget"), tr("One page of several at a time."), makeStack));
    auto *menus = new StateCard(QStringLiteral("WMenu"), tr("The second item has the states."), makeMenu, forceMenu);
    menus->setInert();
    addCard(menus);

    WFrame *card = addCard(tr("Opened above the page"), tr("A dialog and a menu as windows of their own."));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    auto *dialog = new QPushButton(tr("Open the dialog"));
    followFontToken(dialog, WFont::BodySecondary);
    connect(dialog, &QPushButton::clicked, this, [this] { openDialog(this); });
    auto *menuButton = new QPushButton(tr("Open the menu"));
    followFontToken(menuButton, WFont::BodySecondary);
    connect(menuButton, &QPushButton::clicked, menuButton, [menuButton] {
        auto *menu = new WMenu(menuButton);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->setThemeType(menuButton->window()->property("themeType").toString());
        fillMenu(menu)->popup(menuButton->mapToGlobal(QPoint(0, menuButton->height() + 4)));
    });
    row->addWidget(dialog);
    row->addWidget(menuButton);
    row->addStretch();
    static_cast<QVBoxLayout *>(card->layout())->addLayout(row);
}
