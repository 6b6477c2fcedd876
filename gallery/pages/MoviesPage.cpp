#include "MoviesPage.h"

#include "BusMonitor.h"
#include "Controls.h"
#include "GalleryStyles.h"
#include "Label.h"
#include "MovieView.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/controls/WGifButton.h>
#include <UiElements/controls/WGifLabel.h>
#include <UiElements/controls/WToggleButton.h>
#include <UiElements/icons/WMovieProvider.h>
#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/widgets/WStackedWidget.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMovie>
#include <QVBoxLayout>

namespace {

constexpr int PictureFrame = 4;
constexpr int Side = 96;

struct Movie
{
    const char *file;
    const char *name;
};
constexpr Movie Movies[] = {{":/gallery/movies/ball.gif", QT_TRANSLATE_NOOP("MoviesPage", "A ball that bounces")},
                            {":/gallery/movies/heart.gif", QT_TRANSLATE_NOOP("MoviesPage", "A heart that beats")},
                            {":/gallery/movies/typing.gif", QT_TRANSLATE_NOOP("MoviesPage", "Somebody is typing")}};

QVBoxLayout *columnOf(QWidget *card)
{
    return static_cast<QVBoxLayout *>(card->layout());
}

Label *caption(const QString &text)
{
    return new Label(text, WFont::BodyTertiary, Label::Secondary);
}

WGifLabel *makeGifLabel(const Movie &movie, const QSize &size)
{
    auto *label = new WGifLabel;
    label->setCSS(QStringLiteral("background: transparent;"));
    label->setFixedSize(size);
    label->setGifPath(QString::fromLatin1(movie.file));
    label->setAccessibleName(MoviesPage::tr(movie.name));
    if (BusMonitor::get()->timesShown())
        label->startPlaying();
    else
        standStill(label->findChild<QMovie *>(), PictureFrame);
    return label;
}

} // namespace

MoviesPage::MoviesPage()
    : Page(tr("Animated images"), tr("They move where they can be seen, and only there."))
{
    addLabels();
    addButtons();
    addProvider();
    addPause();
}

void MoviesPage::addLabels()
{
    WFrame *card =
        addCard(QStringLiteral("WGifLabel"), tr("The image is fitted into the label, less 5 pixels around."));
    FlowLayout *row = nullptr;
    columnOf(card)->addWidget(makeFlow(&row));
    row->setSpacing(24);
    for (const Movie &movie : Movies)
        row->addWidget(makeGifLabel(movie, QSize(Side, Side)));
    row->addWidget(makeGifLabel(Movies[1], QSize(48, 48)));
    row->addWidget(makeGifLabel(Movies[0], QSize(160, 96)));
    WGifLabel *counted = makeGifLabel(Movies[2], QSize(64, 64));
    row->addWidget(counted);
    auto *rounds = caption(tr("Rounds of the last one: %1").arg(0));
    connect(counted, &WGifLabel::finishedPlaying, rounds,
            [rounds, count = 0]() mutable { rounds->setText(tr("Rounds of the last one: %1").arg(++count)); });
    columnOf(card)->addWidget(rounds);
}

void MoviesPage::addButtons()
{
    WFrame *card = addCard(QStringLiteral("WGifButton"),
                           tr("A still image until the mouse or the keyboard comes; then from the first frame."));
    FlowLayout *row = nullptr;
    columnOf(card)->addWidget(makeFlow(&row));
    for (const Movie &movie : Movies) {
        const QString file = QString::fromLatin1(movie.file);
        auto *button = new WGifButton(nullptr, file, QSize(56, 56), file, QSize(64, 64));
        button->setCSS(GalleryStyles::iconButton(QStringLiteral("secondary")));
        button->setToolTip(tr(movie.name));
        button->setAccessibleName(tr(movie.name));
        button->setFixedSize(84, 84);
        row->addWidget(button);
    }
}

void MoviesPage::addProvider()
{
    WFrame *card = addCard(QStringLiteral("WMovieProvider"),
                           tr("It asks for an image by its source and tells which of three views to show."));
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    columnOf(card)->addLayout(row);
    const QString still = QStringLiteral(":/gallery/picture.png");
    QVector<WMovieProvider *> providers;
    for (const QString &title : {tr("0: nothing known"), tr("1: the movie"), tr("2: the fallback")}) {
        auto *provider = new WMovieProvider(this);
        providers << provider;
        auto *column = new QVBoxLayout;
        column->setSpacing(8);
        row->addLayout(column);
        auto *stack = new WStackedWidget;
        stack->setObjectName(QStringLiteral("views"));
        stack->setCSS(GalleryStyles::stackedWidget());
        stack->setFixedSize(160, 120);
        auto *nothing = new QLabel;
        auto *about = new QVBoxLayout(nothing);
        about->addWidget(caption(tr("Nothing yet")), 0, Qt::AlignCenter);
        auto *view = new MovieView(QSize(Side, Side));
        auto *middle = new QWidget;
        auto *around = new QVBoxLayout(middle);
        around->addWidget(view, 0, Qt::AlignCenter);
        auto *fallback = new WLabel;
        fallback->setCSS(QStringLiteral("background: transparent;"));
        fallback->setAlignment(Qt::AlignCenter);
        stack->addWidget(nothing);
        stack->addWidget(middle);
        stack->addWidget(fallback);
        column->addWidget(stack);
        column->addWidget(caption(title));
        connect(provider, &WMovieProvider::movieChanged, view, [provider, view] { view->setMovie(provider->movie()); });
        connect(provider, &WMovieProvider::fallbackSourceChanged, fallback,
                [provider, fallback] { fallback->setPixmap(QPixmap(provider->fallbackSource())); });
        connect(provider, &WMovieProvider::stackIndexChanged, stack,
                [provider, stack] { stack->setCurrentIndex(provider->stackIndex()); });
    }
    row->addStretch();
    providers.at(1)->fetch(QStringLiteral("qrc") + QLatin1String(Movies[1].file));
    // What the source would answer to an image that is not there; it would say so in the log, too.
    providers.at(2)->onMovieFetchFailed(QString(), still);

    columnOf(card)->addSpacing(12);
    FlowLayout *buttons = nullptr;
    columnOf(card)->addWidget(makeFlow(&buttons));
    for (const Movie &movie : Movies) {
        WPushButton *button = makePushButton(tr(movie.name));
        const QString source = QLatin1String("qrc") + QLatin1String(movie.file);
        button->setAccessibleDescription(tr("Fetched into the second view"));
        connect(button, &QPushButton::clicked, this, [providers, source] { providers.at(1)->fetch(source); });
        buttons->addWidget(button);
    }
}

void MoviesPage::addPause()
{
    WFrame *card = addCard(tr("Reduced motion"),
                           tr("Where the system or the host asks for less motion, every image stands at its first "
                              "frame: on this page and on all others."));
    FlowLayout *row = nullptr;
    columnOf(card)->addWidget(makeFlow(&row));
    auto *app = static_cast<IWApplication *>(qApp);
    auto *toggle = new WToggleButton(tr("Animations disabled"));
    toggle->setFontToken(WFont::BodySecondary);
    toggle->setCSS(GalleryStyles::pushButton(QStringLiteral("secondary")));
    toggle->setToolTip(tr("Stop all of them"), tr("Let them move again"));
    toggle->setChecked(app->animationsDisabled());
    connect(toggle, &QPushButton::toggled, app, &IWApplication::setAnimationsDisabled);
    connect(app, &IWApplication::animationsDisabledChanged, toggle, &WToggleButton::setChecked);
    row->addWidget(toggle);
}
