// A theme switch of a window of 1,000 themed widgets, from the new colors to the finished picture.
//
// Each variant has a process of its own, because a palette or an announcement reaches every widget of a process. They
// are started once, wait on their standard input and do one switch when told, so that they too take turns.

#include "Bench.h"
#include "HeapCounter.h"
#include "SampleThemes.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/controls/WEmojiLabel.h>
#include <UiElements/controls/WPushButton.h>
#include <UiElements/widgets/WFrame.h>
#include <UiElements/widgets/WRadioButton.h>

#include <QAbstractEventDispatcher>
#include <QGridLayout>
#include <QImage>
#include <QPalette>
#include <QProcess>
#include <QStackedWidget>
#include <QStyle>

#include <cmath>
#include <cstdio>
#include <memory>

#include <malloc.h>

namespace {

struct Shape
{
    int widgets = 1000; // of each tree
    int depth = 6; // levels of themed widgets
    int branches = 3;
    int trees = 1; // beside each other
    enum Kind { Beside, Pages, Client } kind = Beside; ///< pages lie on top of each other, one of them visible
};

const char Switch[] = "switch";
const char Again[] = "again";
const char Picture[] = "picture";
const char HeapCalls[] = "heap calls"; // of a switch, for each widget
const char Memory[] = "memory"; // that is in use, in KiB
const char ChildrenFirst[] = "children first"; // styles a new window

// ---- the window, in the process of a variant

struct Themed
{
    QWidget *widget;
    QString selector;
    samples::Look look; // with a template of the samples
    QString css;
};

class Window
{
public:
    enum Kind { Library, Plain };

    Window(Kind kind, const Shape &shape)
        : m_kind(kind)
        , m_shape(shape)
    {
        root.resize(1600, 1000);
        if (shape.kind == Shape::Client) {
            addClient();
            return;
        }
        int frames = 0;
        for (int level = 0, width = 1; level < shape.depth - 1; ++level, width *= shape.branches) {
            frames += width;
            m_innermost = width;
        }
        m_leaves = shape.widgets - frames;
        auto *layout = new QHBoxLayout(&root);
        layout->setContentsMargins(0, 0, 0, 0);
        auto *pages = shape.kind == Shape::Pages ? new QStackedWidget : nullptr;
        if (pages)
            layout->addWidget(pages);
        for (int tree = 0; tree < shape.trees; ++tree) {
            auto *page = new QWidget;
            if (pages)
                pages->addWidget(page);
            else
                layout->addWidget(page);
            auto *pageLayout = new QVBoxLayout(page);
            pageLayout->setContentsMargins(0, 0, 0, 0);
            m_filled = 0;
            addFrame(page, pageLayout, 0);
        }
        // A page is polished when it is shown for the first time.
        for (int i = 0; pages && i < shape.trees; ++i) {
            pages->setCurrentIndex(i);
            if (i == 0)
                root.show();
        }
        if (pages)
            pages->setCurrentIndex(0);
    }

    QWidget root;
    std::vector<Themed> themed; // parents before children

private:
    template <typename Ours, typename Qts, typename Base = Qts>
    Base *make(QWidget *parent, samples::Look look)
    {
        Base *widget = m_kind == Library ? static_cast<Base *>(new Ours(parent)) : new Qts(parent);
        // Half of the widgets are addressed by name, half by class.
        QString selector = QString::fromLatin1(widget->metaObject()->className());
        if (themed.size() % 2) {
            widget->setObjectName(QStringLiteral("item_%1").arg(themed.size()));
            selector = QLatin1Char('#') + widget->objectName();
        }
        themed.push_back({widget, selector, look, samples::widgetTemplate(look)});
        return widget;
    }

    // The same classes in both ways: a messaging client with all its conversations and messages in view.
    template <typename Widget>
    Widget *add(QWidget *parent, QGridLayout *into, int index, int columns, const char *css, const char *name = "")
    {
        auto *widget = new Widget(parent);
        widget->setObjectName(QString::fromLatin1(name));
        widget->setMinimumSize(1, 1);
        widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        if (into)
            into->addWidget(widget, index / columns, index % columns);
        const QString selector =
            *name ? QLatin1Char('#') + widget->objectName() : QString::fromLatin1(widget->metaObject()->className());
        themed.push_back({widget, selector, samples::Panel, QString::fromLatin1(css)});
        return widget;
    }
    static QGridLayout *gridIn(QWidget *widget)
    {
        auto *grid = new QGridLayout(widget);
        grid->setContentsMargins(2, 2, 2, 2);
        grid->setSpacing(1);
        return grid;
    }
    void addClient()
    {
        const char section[] = "$borders: right; $borderWidth: 1; $borderColors: outline-secondary; "
                               "WFrame { background: transparent; }";
        const char row[] = "$backgroundColors: background-secondary; $borderRadius: 6;";
        const char own[] = "$backgroundColors: button-primary-background; $borderRadius: 12; "
                           "#own:hover { background-color: $(button-primary-background.normal); }";
        const char others[] = "$backgroundColors: background-secondary; $borderColors: outline-secondary; "
                              "$borders: all; $borderWidth: 1; $borderRadius: 12;";
        const char text[] = "$textColors: text-primary; WLabel { background: transparent; }";
        const char lesser[] = "$textColors: text-secondary; WLabel { background: transparent; }";
        const char button[] = "$backgroundColors: button-secondary-background; $borderColors: button-secondary-border; "
                              "$textColors: button-secondary-text; $borders: all; $borderWidth: 1; $borderRadius: 6;";
        auto *shellLayout = gridIn(&root);
        auto *shell = add<WFrame>(&root, shellLayout, 0, 1, "$backgroundColors: background-primary;", "shell");
        auto *sections = gridIn(shell);
        sections->setColumnStretch(1, 8);
        sections->setColumnStretch(2, 12);

        auto *navigation = add<WFrame>(shell, sections, 0, 4, section, "section");
        auto *tabs = gridIn(navigation);
        for (int i = 0; i < 16; ++i)
            add<WPushButton>(navigation, tabs, i, 1, button)->setText(QStringLiteral("Tab"));
        auto *spaces = add<WFrame>(shell, sections, 1, 4, section, "section");
        auto *list = gridIn(spaces);
        for (int i = 0; i < 243; ++i) {
            auto *space = add<WFrame>(spaces, list, i, 9, row, "space");
            auto *cells = gridIn(space);
            add<WLabel>(space, cells, 0, 3, text)->setText(QStringLiteral("Ann Lee"));
            add<WLabel>(space, cells, 1, 3, lesser)->setText(QStringLiteral("10:24"));
            add<WPushButton>(space, cells, 2, 3, button)->setText(QStringLiteral("2"));
        }
        auto *messages = add<WFrame>(shell, sections, 2, 4, section, "section");
        auto *column = gridIn(messages);
        for (int i = 0; i < 248; ++i) {
            auto *all = new QWidget(messages);
            column->addWidget(all, i / 8, i % 8);
            auto *message = gridIn(all);
            add<WLabel>(all, message, 0, 1, lesser)->setText(QStringLiteral("You   10:24"));
            auto *bubble =
                i % 2 ? add<WFrame>(all, message, 1, 1, own, "own") : add<WFrame>(all, message, 1, 1, others, "others");
            add<WEmojiLabel>(bubble, gridIn(bubble), 0, 1, text)->setText(QStringLiteral("See you \U0001F600"));
            add<WLabel>(all, message, 2, 1, lesser)->setText(QStringLiteral("Read"));
        }
        auto *call = add<WFrame>(shell, sections, 3, 4, section, "section");
        auto *controls = gridIn(call);
        for (int i = 0; i < 15; ++i)
            add<WPushButton>(call, controls, i, 1, button)->setText(QStringLiteral("Mute"));
    }

    void addFrame(QWidget *parent, QBoxLayout *into, int level)
    {
        QFrame *frame = make<WFrame, QFrame>(parent, m_frames++ % 2 ? samples::Card : samples::Panel);
        into->addWidget(frame);
        if (level == m_shape.depth - 2) {
            addLeaves(frame);
            return;
        }
        auto *layout = new QBoxLayout(level % 2 ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, frame);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        for (int i = 0; i < m_shape.branches; ++i)
            addFrame(frame, layout, level + 1);
    }

    void addLeaves(QFrame *frame)
    {
        auto *layout = new QGridLayout(frame);
        layout->setContentsMargins(1, 1, 1, 1);
        layout->setSpacing(1);
        const int count = m_leaves / m_innermost + (m_filled < m_leaves % m_innermost ? 1 : 0);
        ++m_filled;
        for (int i = 0; i < count; ++i) {
            QWidget *leaf = nullptr;
            if (i % 5 < 3) {
                auto *button =
                    make<WRadioButton, QRadioButton>(frame, i % 2 ? samples::SecondaryButton : samples::PrimaryButton);
                button->setText(QStringLiteral("Button"));
                leaf = button;
            } else {
                leaf = make<WFrame, QFrame>(frame, i % 2 ? samples::SecondaryLabel : samples::Label);
            }
            leaf->setMinimumSize(1, 1);
            leaf->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
            layout->addWidget(leaf, i / 4, i % 4);
        }
    }

    const Kind m_kind;
    const Shape m_shape;
    int m_innermost = 0;
    int m_leaves = 0;
    int m_frames = 0;
    int m_filled = 0;
};

QPalette paletteOf(const WColorSets &sets)
{
    QPalette palette;
    const auto set = [&](QPalette::ColorRole role, const char *name) {
        palette.setColor(role, sets.at(name).normal());
    };
    set(QPalette::Window, "background-primary");
    set(QPalette::Base, "background-secondary");
    set(QPalette::Button, "button-primary-background");
    set(QPalette::ButtonText, "button-primary-text");
    set(QPalette::WindowText, "text-primary");
    set(QPalette::Text, "text-primary");
    return palette;
}

void styleWithTemplate(const Themed &themed, const WColorSets &)
{
    themed.widget->setProperty("styleSheet", themed.css);
}

void styleLiterally(const Themed &themed, const WColorSets &sets)
{
    themed.widget->setStyleSheet(samples::expandLiterally(themed.selector, themed.css, sets));
}

// The rules of all templates; the look is a property of the widget.
QString applicationSheet(const WColorSets &sets)
{
    QString sheet;
    for (const samples::Look look : {samples::PrimaryButton, samples::SecondaryButton, samples::Label,
                                     samples::SecondaryLabel, samples::Panel, samples::Card}) {
        const QString name = QLatin1String(look <= samples::SecondaryButton ? "QRadioButton" : "QFrame");
        QString rules = samples::expandLiterally(name, samples::widgetTemplate(look), sets);
        sheet += rules.replace(name, QStringLiteral("%1[look=\"%2\"]").arg(name).arg(look)) + QLatin1Char(' ');
    }
    return sheet;
}

struct Way
{
    const char *name;
    Window::Kind kind;
    void (*begin)(Window &window);
    void (*apply)(Window &window, const WColorSets &sets);
    void (*style)(const Themed &themed, const WColorSets &sets) = nullptr; ///< one widget
};

const Way Ways[] = {
    {"library", Window::Library,
     [](Window &window) {
         for (const Themed &themed : window.themed)
             styleWithTemplate(themed, {});
     },
     [](Window &, const WColorSets &sets) { static_cast<IWApplication *>(qApp)->setColorSets(sets); },
     styleWithTemplate},
    {"literal", Window::Plain,
     [](Window &window) {
         // As our classes do; here they have no template.
         for (const Themed &themed : window.themed) {
             if (ThemeSupport::of(themed.widget))
                 themed.widget->setAttribute(Qt::WA_StyledBackground);
         }
     },
     [](Window &window, const WColorSets &sets) {
         for (const Themed &themed : window.themed)
             styleLiterally(themed, sets);
     },
     styleLiterally},
    {"application", Window::Plain,
     [](Window &window) {
         for (const Themed &themed : window.themed)
             themed.widget->setProperty("look", int(themed.look));
     },
     [](Window &, const WColorSets &sets) {
         qApp->setStyleSheet(applicationSheet(sets));
     }},
    {"plain", Window::Plain, [](Window &) {},
     [](Window &, const WColorSets &sets) {
         static_cast<IWApplication *>(qApp)->setColorSets(sets);
     }},
    {"palette", Window::Plain, [](Window &) {},
     [](Window &, const WColorSets &sets) {
         QApplication::setPalette(paletteOf(sets));
     }},
};

// Until there is nothing left to do: the paint events are posted and come after the layouts.
void settle()
{
    QAbstractEventDispatcher *events = QAbstractEventDispatcher::instance();
    do {
        QCoreApplication::sendPostedEvents();
    } while (events->processEvents(QEventLoop::AllEvents));
}

void answer(double value)
{
    std::printf("%.3f\n", value);
    std::fflush(stdout);
}

// ---- the other side: the process that measures

class Peer
{
public:
    explicit Peer(const char *way, const Shape &shape = {})
        : m_way(QStringLiteral("%1/%2/%3/%4/%5/%6")
                    .arg(QLatin1String(way))
                    .arg(shape.widgets)
                    .arg(shape.depth)
                    .arg(shape.branches)
                    .arg(shape.trees)
                    .arg(int(shape.kind)))
    {
    }
    ~Peer()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    double ask(const char *command)
    {
        if (m_process.state() == QProcess::NotRunning) {
            m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            m_process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--theme-switch"), m_way});
        }
        m_process.write(command);
        m_process.write("\n");
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(60000))
                return std::nan("");
        }
        bool ok = false;
        const double value = m_process.readLine().trimmed().toDouble(&ok);
        return ok ? value : std::nan("");
    }

private:
    const QString m_way;
    QProcess m_process;
};

const QLatin1String Library("library");
const QLatin1String LibraryAgain("library, equal sets");
const QLatin1String Literal("literal setStyleSheet");
const QLatin1String Palette("Fusion, qApp->setPalette");
const QLatin1String ApplicationSheet("application sheet, same rules");
const QLatin1String Depth4("library, depth 4"), Depth8("library, depth 8");
const QLatin1String Fivefold("library, 5,000 widgets");
const QLatin1String Pages("library, ten pages"), LiteralPages("literal, ten pages");
const QLatin1String Client("library, messaging client"), LiteralClient("literal, messaging client");
const QLatin1String First("library, first styling"), LiteralFirst("literal, first styling");
const QLatin1String Calls("library, heap calls"), AllowedCalls("300 calls");
const QLatin1String KiB("library, KiB"), AllowedKiB("9 KiB");

} // namespace

int bench::runThemeSwitchProcess(int argc, char **argv)
{
    WApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QStringList words = QString::fromLocal8Bit(argv[2]).split(QLatin1Char('/'));
    const Shape shape {words.value(1).toInt(), words.value(2).toInt(), words.value(3).toInt(), words.value(4).toInt(),
                       Shape::Kind(words.value(5).toInt())};
    const Way *way = nullptr;
    for (const Way &candidate : Ways) {
        if (words.first() == QLatin1String(candidate.name))
            way = &candidate;
    }
    if (!way)
        return 1;

    const WColorSets themes[] = {samples::colorSets(false), samples::colorSets(true)};
    int shown = 0;
    Window window(way->kind, shape);
    const std::size_t count = window.themed.size();
    if (count != std::size_t(shape.widgets * shape.trees))
        return 1;
    way->apply(window, themes[shown]);
    way->begin(window);
    window.root.show();
    if (QWidget *focus = QApplication::focusWidget())
        focus->clearFocus();
    settle();

    char line[64];
    while (std::fgets(line, sizeof line, stdin)) {
        const QByteArray command = QByteArray(line).trimmed();
        if (command == Picture) {
            const QImage image = window.root.grab().toImage().convertToFormat(QImage::Format_RGB32);
            answer(qChecksum(reinterpret_cast<const char *>(image.constBits()), uint(image.sizeInBytes())));
            continue;
        }
        if (command == Memory) {
            const struct mallinfo2 info = mallinfo2();
            answer(double(info.uordblks + info.hblkhd) / 1024);
            continue;
        }
        if (command == ChildrenFirst) {
            Window other(way->kind, shape);
            const double start = microseconds();
            for (auto it = other.themed.rbegin(); it != other.themed.rend(); ++it)
                way->style(*it, themes[shown]);
            answer(microseconds() - start);
            continue;
        }
        shown ^= command == Again ? 0 : 1;
        const std::uint64_t calls = heapCalls();
        const double start = microseconds();
        way->apply(window, themes[shown]);
        settle();
        answer(command == HeapCalls ? double(heapCalls() - calls) / double(count) : microseconds() - start);
    }
    return 0;
}

bench::Subject bench::themeSwitch()
{
    const auto library = std::make_shared<Peer>("library");
    const auto literal = std::make_shared<Peer>("literal");
    const auto palette = std::make_shared<Peer>("palette");
    const auto plain = std::make_shared<Peer>("plain");
    const auto application = std::make_shared<Peer>("application");
    // As many frames as the others have.
    const auto depth4 = std::make_shared<Peer>("library", Shape {1000, 4, 10});
    const auto depth8 = std::make_shared<Peer>("library", Shape {1000, 8, 2});
    const auto fivefold = std::make_shared<Peer>("library", Shape {1000, 6, 3, 5});
    const auto pages = std::make_shared<Peer>("library", Shape {100, 6, 2, 10, Shape::Pages});
    const auto literalPages = std::make_shared<Peer>("literal", Shape {100, 6, 2, 10, Shape::Pages});
    const auto client = std::make_shared<Peer>("library", Shape {2000, 6, 3, 1, Shape::Client});
    const auto literalClient = std::make_shared<Peer>("literal", Shape {2000, 6, 3, 1, Shape::Client});
    const auto asked = [](const std::shared_ptr<Peer> &peer, const char *command) {
        return [peer, command] {
            return peer->ask(command);
        };
    };

    Subject subject;
    subject.name = QLatin1String("theme switch");
    subject.rounds = 15;
    subject.quickRounds = 5;
    // A switch that leaves something in the old colors would be fast.
    subject.prepare = [library, literal, pages, literalPages, client, literalClient] {
        QList<double> pictures;
        for (int i = 0; i < 2; ++i) {
            const double ours = library->ask(Picture);
            if (std::isnan(ours) || ours != literal->ask(Picture))
                return QStringLiteral("the window of the library looks different from the literal one");
            if (pictures.contains(ours))
                return QStringLiteral("the two themes look the same");
            pictures << ours;
            if (pages->ask(Picture) != literalPages->ask(Picture))
                return QStringLiteral("the pages of the library look different from the literal ones");
            if (client->ask(Picture) != literalClient->ask(Picture))
                return QStringLiteral("the client of the library looks different from the literal one");
            for (Peer *peer :
                 {library.get(), literal.get(), pages.get(), literalPages.get(), client.get(), literalClient.get()})
                peer->ask(Switch);
        }
        return QString();
    };
    subject.variants = {
        {Library, asked(library, Switch)},
        {LibraryAgain, asked(library, Again)},
        {Literal, asked(literal, Switch)},
        {Palette, asked(palette, Switch)},
        {ApplicationSheet, asked(application, Switch)},
        {Depth4, asked(depth4, Switch)},
        {Depth8, asked(depth8, Switch)},
        {Fivefold, asked(fivefold, Switch)},
        {Pages, asked(pages, Switch)},
        {LiteralPages, asked(literalPages, Switch)},
        {Client, asked(client, Switch)},
        {LiteralClient, asked(literalClient, Switch)},
        {First, asked(library, ChildrenFirst)},
        {LiteralFirst, asked(literal, ChildrenFirst)},
        {Calls, asked(library, HeapCalls), Variant::Count},
        {AllowedCalls, [] { return 300.0; }, Variant::Count},
        {KiB, [library, plain] { return (library->ask(Memory) - plain->ask(Memory)) / Shape().widgets; },
         Variant::Count},
        {AllowedKiB, [] { return 9.0; }, Variant::Count},
    };
    const QLatin1String measure("theme switch, 1,000 widgets, depth 6");
    subject.rows = {
        {measure, Library, Palette, 4.3},
        {measure, Library, Literal, 0.16},
        {QLatin1String("theme switch, announced again with equal sets"), LibraryAgain, Literal, 0.001},
        {measure, Library, ApplicationSheet, 0.28},
        {QLatin1String("theme switch, depth 8 against 4"), Depth8, Depth4, 1.1},
        {QLatin1String("theme switch, 5,000 widgets against 1,000"), Fivefold, Library, 5.3},
        {QLatin1String("theme switch, ten pages, one visible"), Pages, LiteralPages, 0.025},
        {QLatin1String("theme switch, ten pages against all visible"), Pages, Literal, 0.025},
        {QLatin1String("theme switch, messaging client, 2,000 elements"), Client, LiteralClient, 0.16},
        {QLatin1String("theme switch, first styling, children first"), First, LiteralFirst, 0.13},
        {QLatin1String("theme switch, heap calls for each widget"), Calls, AllowedCalls, 1},
        {QLatin1String("theme switch, memory for each widget, over a plain one"), KiB, AllowedKiB, 1},
    };
    return subject;
}
