// Painting icons: sixty at once, in the two sizes and the two ratios that are seen most.

#include "Bench.h"

#include <UiElements/icons/WSvgIcon.h>

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <cmath>
#include <malloc.h>
#include <memory>

namespace {

constexpr int Icons = 60;
const QStyle::State Enabled = QStyle::State_Enabled;

/// The files of the icons, copied out of the library for those who read files.
QStringList iconFiles(const QString &folder, int size)
{
    const QDir resources(QStringLiteral(":/Resources"));
    QStringList files;
    const QStringList names = resources.entryList({QStringLiteral("*_%1.svg").arg(size)});
    for (const QString &name : names) {
        if (files.size() == Icons)
            break;
        const QString file = folder + QLatin1Char('/') + name;
        QFile::copy(resources.filePath(name), file);
        files << file;
    }
    return files;
}

WColorSet oneColor(int number)
{
    WColorSet set;
    set.fill(QColor::fromHsv(number * 7 % 360, 200, 60 + number / 52 % 190));
    return set;
}

struct State
{
    State(int side, int pixels)
        : canvas(side * pixels, side * pixels, QImage::Format_ARGB32_Premultiplied)
        , files(iconFiles(folder.path(), side))
        , size(side, side)
        , ratio(pixels)
    {
        canvas.setDevicePixelRatio(pixels);
        canvas.fill(Qt::white);
        for (const QString &file : files) {
            icons.push_back(std::make_unique<WSvgIcon>(file));
            icons.back()->setIconSize(size);
            icons.back()->setColorSet(oneColor(1));
            renderers.push_back(std::make_unique<QSvgRenderer>(file));
            qtIcons.push_back(QIcon(file));
        }
    }

    /// Microseconds for one icon of a painter that is painting already.
    template <typename Function>
    double each(Function function)
    {
        QPainter painter(&canvas);
        const double start = bench::microseconds();
        for (int i = 0; i < Icons; ++i)
            function(&painter, size_t(i));
        return (bench::microseconds() - start) / Icons;
    }

    QPixmap tinted(size_t i, const QColor &color)
    {
        QPixmap pixmap(size * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderers[i]->render(&painter, QRectF(QPointF(), size));
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(), size), color);
        return pixmap;
    }

    QTemporaryDir folder;
    QImage canvas;
    QStringList files;
    QSize size;
    int ratio;
    int turn = 0;
    std::vector<std::unique_ptr<WSvgIcon>> icons;
    std::vector<std::unique_ptr<QSvgRenderer>> renderers;
    std::vector<QIcon> qtIcons;
    std::vector<QPixmap> ready;
};

/// KiB that one kept picture takes.
double sizeOfAPicture(State &s)
{
    const auto used = [] {
        const struct mallinfo2 info = mallinfo2();
        return double(info.uordblks) + double(info.hblkhd);
    };
    std::vector<std::unique_ptr<WSvgIcon>> icons;
    for (const QString &file : qAsConst(s.files)) {
        icons.push_back(std::make_unique<WSvgIcon>(file));
        icons.back()->setIconSize(s.size);
        icons.back()->setColorSet(oneColor(++s.turn + 100));
    }
    WSvgIcon::dropPictures(); // a full table would give up as many as it takes
    const double before = used();
    {
        QPainter painter(&s.canvas);
        for (const auto &icon : icons)
            icon->draw(&painter, Enabled);
    }
    return (used() - before) / Icons / 1024;
}

bench::Subject iconSubject(int side, int ratio, const char *suffix)
{
    using namespace bench;
    const auto s = std::make_shared<std::unique_ptr<State>>();
    Subject subject;
    subject.name = QLatin1String("icons");
    subject.rounds = 101;
    subject.quickRounds = 31;
    subject.prepare = [s, side, ratio] {
        *s = std::make_unique<State>(side, ratio);
        State &state = **s;
        if (state.files.size() != Icons)
            return QStringLiteral("too few icons");
        for (size_t i = 0; i < Icons; ++i)
            state.ready.push_back(state.tinted(i, oneColor(1).normal()));
        const int before = WSvgIcon::renderedPictures();
        QPainter painter(&state.canvas);
        for (int time = 0; time < 2; ++time) {
            for (const auto &icon : state.icons)
                icon->draw(&painter, Enabled);
        }
        if (WSvgIcon::renderedPictures() - before != Icons)
            return QStringLiteral("icons are rendered more than once");
        return QString();
    };
    const QLatin1String kept("painted again"), ready("its ready pixmap"), qicon("QIcon of its file"),
        keptInTurn("sixty painted again"), readyInTurn("sixty ready pixmaps"), first("new color"),
        tint("loaded renderer and tint"), memory("a kept picture"), allowed("bits and 0.4 KiB");
    subject.variants = {
        // One icon sixty times and its one pixmap sixty times: what is in it decides much of what blending costs.
        {kept,
         [s] {
             return (*s)->each([&](QPainter *p, size_t) { (*s)->icons[0]->draw(p, Enabled); });
         }},
        {ready,
         [s] {
             return (*s)->each([&](QPainter *p, size_t) { p->drawPixmap(QPointF(), (*s)->ready[0]); });
         }},
        {qicon,
         [s] {
             const QRect rect(QPoint(), (*s)->size);
             return (*s)->each([&](QPainter *p, size_t) { (*s)->qtIcons[0].paint(p, rect); });
         }},
        {keptInTurn,
         [s] {
             return (*s)->each([&](QPainter *p, size_t i) { (*s)->icons[i]->draw(p, Enabled); });
         }},
        {readyInTurn,
         [s] {
             return (*s)->each([&](QPainter *p, size_t i) { p->drawPixmap(QPointF(), (*s)->ready[i]); });
         }},
        {first,
         [s] {
             const WColorSet set = oneColor(++(*s)->turn + 100);
             for (const auto &icon : (*s)->icons)
                 icon->setColorSet(set);
             const double time = (*s)->each([&](QPainter *p, size_t i) { (*s)->icons[i]->draw(p, Enabled); });
             for (const auto &icon : (*s)->icons)
                 icon->setColorSet(oneColor(1));
             (*s)->each([&](QPainter *p, size_t i) { (*s)->icons[i]->draw(p, Enabled); });
             return time;
         }},
        {tint,
         [s] {
             const QColor color = oneColor(++(*s)->turn).normal();
             return (*s)->each([&](QPainter *p, size_t i) { p->drawPixmap(QPointF(), (*s)->tinted(i, color)); });
         }},
        {memory, [s] { return sizeOfAPicture(**s); }, Variant::Count},
        {allowed, [side, ratio] { return side * ratio * side * ratio * 4 / 1024.0 + 0.4; }, Variant::Count},
    };
    const auto row = [&](const char *measure, QLatin1String ours, QLatin1String against, std::optional<double> goal) {
        static QVector<QByteArray> names; // rows only point to their names
        names.append(QByteArray("icons: ") + measure + ", " + suffix);
        subject.rows.push_back({QLatin1String(names.last().constData()), ours, against, goal});
    };
    row("paint", kept, ready, 2.2);
    row("paint", kept, qicon, 0.25);
    row("paint of sixty", keptInTurn, readyInTurn, {});
    row("paint in a new color", first, tint, 1.0);
    row("KiB of a kept picture", memory, allowed, 1.0);
    return subject;
}

} // namespace

std::vector<bench::Subject> bench::icons()
{
    return {iconSubject(16, 1, "16 px"), iconSubject(24, 1, "24 px"), iconSubject(16, 2, "16 px at 2"),
            iconSubject(24, 2, "24 px at 2")};
}
