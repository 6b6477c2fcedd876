// A theme switch of a window of 1,000 themed widgets, from the new colors to the finished picture.
//
// Each variant has a process of its own, because a palette or an announcement reaches every widget of a process. They
// are started once, wait on their standard input and do one switch when told, so that they too take turns.

#include "Bench.h"
#include "HeapCounter.h"
#include "SampleThemes.h"

#include <UiElements/app/WApplication.h>
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
    bool isPages = false; // or on top of each other, one of them visible
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
    samples::Look look;
};

class Window
{
public:
    enum Kind { Library, Plain };

    Window(Kind kind, const Shape &shape)
        : m_kind(kind)
        , m_shape(shape)
    {
        int frames = 0;
        for (int level = 0, width = 1; level < shape.depth - 1; ++level, width *= shape.branches) {
            frames += width;
            m_innermost = width;
        }
        m_leaves = shape.widgets - frames;
        root.resize(1600, 1000);
        auto *layout = new QHBoxLayout(&root);
        layout->setContentsMargins(0, 0, 0, 0);
        auto *pages = shape.isPages ? new QStackedWidget : nullptr;
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
        themed.push_back({widget, selector, look});
        return widget;
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
    themed.widget->setProperty("styleSheet", samples::widgetTemplate(themed.look));
}

void styleLiterally(const Themed &themed, const WColorSets &sets)
{
    themed.widget->setStyleSheet(samples::expandLiterally(themed.selector, samples::widgetTemplate(themed.look), sets));
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
    {"literal", Window::Plain, [](Window &) {},
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
                    .arg(shape.isPages))
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
                       words.value(5).toInt() != 0};
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
    const auto pages = std::make_shared<Peer>("library", Shape {100, 6, 2, 10, true});
    const auto literalPages = std::make_shared<Peer>("literal", Shape {100, 6, 2, 10, true});
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
    subject.prepare = [library, literal, pages, literalPages] {
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
            for (Peer *peer : {library.get(), literal.get(), pages.get(), literalPages.get()})
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
        {QLatin1String("theme switch, first styling, children first"), First, LiteralFirst, 0.13},
        {QLatin1String("theme switch, heap calls for each widget"), Calls, AllowedCalls, 1},
        {QLatin1String("theme switch, memory for each widget, over a plain one"), KiB, AllowedKiB, 1},
    };
    return subject;
}
