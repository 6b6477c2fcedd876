// A theme switch of a window of 1,000 themed widgets, from the new colors to the finished picture.
//
// Each variant has a process of its own, because a palette or an announcement reaches every widget of a process. They
// are started once, wait on their standard input and do one switch when told, so that they too take turns.

#include "Bench.h"
#include "SampleThemes.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/widgets/WFrame.h>
#include <UiElements/widgets/WRadioButton.h>

#include <QAbstractEventDispatcher>
#include <QGridLayout>
#include <QImage>
#include <QPalette>
#include <QProcess>
#include <QStyle>

#include <cmath>
#include <cstdio>
#include <memory>

namespace {

constexpr int WidgetCount = 1000;
constexpr int Depth = 6; // levels of themed widgets
constexpr int Branches = 3;

const char Switch[] = "switch";
const char Again[] = "again";
const char Picture[] = "picture";

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

    explicit Window(Kind kind)
        : m_kind(kind)
    {
        int frames = 0;
        for (int level = 0, width = 1; level < Depth - 1; ++level, width *= Branches) {
            frames += width;
            m_innermost = width;
        }
        m_leaves = WidgetCount - frames;
        root.resize(1600, 1000);
        auto *layout = new QVBoxLayout(&root);
        layout->setContentsMargins(0, 0, 0, 0);
        addFrame(&root, layout, 0);
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
        if (level == Depth - 2) {
            addLeaves(frame);
            return;
        }
        auto *layout = new QBoxLayout(level % 2 ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, frame);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        for (int i = 0; i < Branches; ++i)
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

struct Way
{
    const char *name;
    Window::Kind kind;
    void (*begin)(Window &window);
    void (*apply)(Window &window, const WColorSets &sets);
};

const Way Ways[] = {
    {"library", Window::Library,
     [](Window &window) {
         for (const Themed &themed : window.themed)
             themed.widget->setProperty("styleSheet", samples::widgetTemplate(themed.look));
     },
     [](Window &, const WColorSets &sets) {
         static_cast<IWApplication *>(qApp)->setColorSets(sets);
     }},
    {"literal", Window::Plain, [](Window &) {},
     [](Window &window, const WColorSets &sets) {
         for (const Themed &themed : window.themed)
             themed.widget->setStyleSheet(
                 samples::expandLiterally(themed.selector, samples::widgetTemplate(themed.look), sets));
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
    explicit Peer(const char *way)
        : m_way(QString::fromLatin1(way))
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

} // namespace

int bench::runThemeSwitchProcess(int argc, char **argv)
{
    WApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const Way *way = nullptr;
    for (const Way &candidate : Ways) {
        if (qstrcmp(candidate.name, argv[2]) == 0)
            way = &candidate;
    }
    if (!way)
        return 1;

    const WColorSets themes[] = {samples::colorSets(false), samples::colorSets(true)};
    int shown = 0;
    Window window(way->kind);
    if (window.themed.size() != WidgetCount)
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
        shown ^= command == Switch ? 1 : 0;
        const double start = microseconds();
        way->apply(window, themes[shown]);
        settle();
        answer(microseconds() - start);
    }
    return 0;
}

bench::Subject bench::themeSwitch()
{
    const auto library = std::make_shared<Peer>("library");
    const auto literal = std::make_shared<Peer>("literal");
    const auto palette = std::make_shared<Peer>("palette");

    Subject subject;
    subject.name = QLatin1String("theme switch");
    subject.rounds = 15;
    subject.quickRounds = 5;
    // A switch that leaves something in the old colors would be fast.
    subject.prepare = [library, literal] {
        QList<double> pictures;
        for (int i = 0; i < 2; ++i) {
            const double ours = library->ask(Picture);
            if (std::isnan(ours) || ours != literal->ask(Picture))
                return QStringLiteral("the window of the library looks different from the literal one");
            if (pictures.contains(ours))
                return QStringLiteral("the two themes look the same");
            pictures << ours;
            library->ask(Switch);
            literal->ask(Switch);
        }
        return QString();
    };
    subject.variants = {
        {Library,
         [library] {
             return library->ask(Switch);
         }},
        {LibraryAgain,
         [library] {
             return library->ask(Again);
         }},
        {Literal,
         [literal] {
             return literal->ask(Switch);
         }},
        {Palette,
         [palette] {
             return palette->ask(Switch);
         }},
    };
    const QLatin1String measure("theme switch, 1,000 widgets, depth 6");
    subject.rows = {
        {measure, Library, Palette, 4.3},
        {measure, Library, Literal, 0.16},
        {QLatin1String("theme switch, announced again with equal sets"), LibraryAgain, Literal, 0.001},
    };
    return subject;
}
