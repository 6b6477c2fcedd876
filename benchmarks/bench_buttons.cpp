// Painting a thousand buttons of which nothing changed, against Qt's with the same sheet.

#include "Bench.h"
#include "SampleThemes.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/controls/WSvgPushButton.h>
#include <UiElements/icons/WSvgIcon.h>

#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

constexpr int Buttons = 1000;
constexpr int Columns = 20;
const QSize Size(110, 28);

QString textOf(int i)
{
    return QStringLiteral("Button %1").arg(i);
}

QString iconFile()
{
    return QStringLiteral(":/Resources/chat-filled_16.svg");
}

/// The icon in the color that the sheet gives the text.
QIcon readyIcon()
{
    WSvgIcon icon(iconFile());
    WColorSet colors;
    colors.fill(WApplication::find()->getColorSets().at("button-primary-text").normal());
    icon.setColorSet(colors);
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    icon.draw(&painter, QStyle::State_Enabled);
    return QIcon(pixmap);
}

/// A window of buttons, all of them made by the function.
template <typename Make>
std::unique_ptr<QWidget> windowOf(Make make)
{
    auto window = std::make_unique<QWidget>();
    for (int i = 0; i < Buttons; ++i)
        make(i, window.get())->setGeometry(QRect(QPoint(i % Columns * 120, i / Columns * 36), Size));
    window->resize(Columns * 120, Buttons / Columns * 36);
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->show();
    return window;
}

/// The sheet that one of our buttons has, for one of Qt's.
QString sheetForQt(const QWidget *ours)
{
    return ours->styleSheet().replace(QString::fromLatin1(ours->metaObject()->className()),
                                      QStringLiteral("QPushButton"));
}

struct State
{
    State()
        : canvas(Columns * 120, Buttons / Columns * 36, QImage::Format_ARGB32_Premultiplied)
    {
        auto *app = WApplication::find();
        app->setColorSets(samples::colorSets(false));
        const QString look = QStringLiteral(
            "$backgroundColors: button-primary-background; $borderColors: button-primary-border; $textColors: "
            "button-primary-text; $borders: all; $borderWidth: 1; $borderRadius: 6; padding: 1px 4px;");
        plain = windowOf([&](int i, QWidget *parent) {
            auto *button = new WPushButton(textOf(i), parent);
            button->setCSS(look);
            return button;
        });
        const QString sheet = sheetForQt(plain->findChild<WPushButton *>());
        qtPlain = windowOf([&](int i, QWidget *parent) {
            auto *button = new QPushButton(textOf(i), parent);
            button->setFont(plain->findChild<WPushButton *>()->font());
            button->setStyleSheet(sheet);
            return button;
        });
        withIcon = windowOf([&](int i, QWidget *parent) {
            auto *button = new WSvgPushButton(textOf(i), parent);
            button->setCSS(look);
            button->setSvgIcon(iconFile());
            return button;
        });
        const QIcon icon = readyIcon();
        qtWithIcon = windowOf([&](int i, QWidget *parent) {
            auto *button = new QPushButton(icon, textOf(i), parent);
            button->setIconSize(QSize(16, 16));
            button->setFont(plain->findChild<WPushButton *>()->font());
            button->setStyleSheet(sheet);
            return button;
        });
        qtWithSvgIcon = windowOf([&](int i, QWidget *parent) {
            auto *button = new QPushButton(QIcon(iconFile()), textOf(i), parent);
            button->setIconSize(QSize(16, 16));
            button->setFont(plain->findChild<WPushButton *>()->font());
            button->setStyleSheet(sheet);
            return button;
        });
        for (QWidget *window : {plain.get(), qtPlain.get(), withIcon.get(), qtWithIcon.get(), qtWithSvgIcon.get()})
            paint(window); // the first time is not what is measured
    }

    double paint(QWidget *window)
    {
        const double start = bench::microseconds();
        window->render(&canvas);
        return bench::microseconds() - start;
    }

    /// Colors that a window shows, as a rough picture of what is drawn in it.
    int inkOf(QWidget *window, const QColor &color)
    {
        canvas.fill(Qt::transparent);
        paint(window);
        int count = 0;
        for (int y = 0; y < canvas.height(); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(canvas.constScanLine(y));
            count += int(std::count(line, line + canvas.width(), color.rgb()));
        }
        return count;
    }

    QImage canvas;
    std::unique_ptr<QWidget> plain;
    std::unique_ptr<QWidget> qtPlain;
    std::unique_ptr<QWidget> withIcon;
    std::unique_ptr<QWidget> qtWithIcon;
    std::unique_ptr<QWidget> qtWithSvgIcon;
};

} // namespace

bench::Subject bench::buttons()
{
    const auto s = std::make_shared<std::unique_ptr<State>>();
    Subject subject;
    subject.name = QLatin1String("buttons");
    subject.rounds = 101;
    subject.quickRounds = 31;
    subject.prepare = [s] {
        *s = std::make_unique<State>();
        State &state = **s;
        const WColorSets sets = samples::colorSets(false);
        const QColor background = sets.at("button-primary-background").normal();
        const QColor text = sets.at("button-primary-text").normal();
        const auto differ = [](int one, int other) {
            return std::abs(one - other) > std::max(one, other) / 20;
        };
        if (state.inkOf(state.plain.get(), background) == 0
            || differ(state.inkOf(state.plain.get(), background), state.inkOf(state.qtPlain.get(), background))
            || differ(state.inkOf(state.withIcon.get(), background), state.inkOf(state.qtWithIcon.get(), background)))
            return QStringLiteral("the buttons are not of equal size");
        // Icons besides the same texts.
        if (state.inkOf(state.withIcon.get(), text) <= state.inkOf(state.plain.get(), text) * 11 / 10
            || state.inkOf(state.qtWithIcon.get(), text) <= state.inkOf(state.qtPlain.get(), text) * 11 / 10)
            return QStringLiteral("the buttons do not show the same");
        return QString();
    };
    const QLatin1String plain("1,000 WPushButton"), qtPlain("1,000 QPushButton"), icon("1,000 WSvgPushButton"),
        qtIcon("1,000 with a ready QIcon"), qtSvgIcon("1,000 with QIcon of the file");
    subject.variants = {
        {plain,
         [s] {
             return (*s)->paint((*s)->plain.get());
         }},
        {qtPlain,
         [s] {
             return (*s)->paint((*s)->qtPlain.get());
         }},
        {icon,
         [s] {
             return (*s)->paint((*s)->withIcon.get());
         }},
        {qtIcon,
         [s] {
             return (*s)->paint((*s)->qtWithIcon.get());
         }},
        {qtSvgIcon,
         [s] {
             return (*s)->paint((*s)->qtWithSvgIcon.get());
         }},
    };
    subject.rows = {
        {QLatin1String("buttons: paint 1,000"), plain, qtPlain, 1.05},
        {QLatin1String("buttons: paint 1,000 with an icon"), icon, qtIcon, 1.0},
        {QLatin1String("buttons: against QIcon of a file"), icon, qtSvgIcon, {}},
    };
    return subject;
}
