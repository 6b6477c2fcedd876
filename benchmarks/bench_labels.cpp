// What a new text costs in a label: set, measured and painted, as a list of messages does it.

#include "Bench.h"

#include <UiElements/controls/WEmojiLabel.h>
#include <UiElements/emoji/EmojiResources.h>

#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr int Texts = 20;

const QString Emoji[] = {QStringLiteral("\U0001F600"), QStringLiteral("\U0001F44D")};

struct State
{
    State()
        : canvas(600, 40, QImage::Format_ARGB32_Premultiplied)
    {
        for (QLabel *label :
             {static_cast<QLabel *>(&qtPlain), &qtRich, static_cast<QLabel *>(&plain), static_cast<QLabel *>(&emoji)}) {
            label->setFont(emoji.font());
            label->resize(canvas.size());
        }
        qtPlain.setTextFormat(Qt::PlainText);
        qtRich.setTextFormat(Qt::RichText);
        const int edge = qRound(QFontMetricsF(emoji.font()).height());
        QStringList files;
        for (const QString &one : Emoji) {
            // The smallest and fastest that an image of this size can be.
            files << folder.filePath(QStringLiteral("%1.png").arg(files.size()));
            EmojiPicker::EmojiResources::image(one, edge, 1).save(files.constLast());
        }
        for (int i = 0; i < Texts; ++i) {
            const QString words = QStringLiteral("Meeting %1 starts at ten, see you there").arg(i);
            texts << words;
            emojiTexts << words + QLatin1Char(' ') + Emoji[0] + QStringLiteral(" until then ") + Emoji[1];
            richTexts << QStringLiteral("%1 <img src='%2' width='%4' height='%4'> until then "
                                        "<img src='%3' width='%4' height='%4'>")
                             .arg(words, files.at(0), files.at(1), QString::number(edge));
        }
    }

    /// Microseconds for one text.
    template <typename Label>
    double each(Label &label, const QStringList &list)
    {
        const double start = bench::microseconds();
        for (const QString &text : list) {
            label.setText(text);
            bench::keep(label.sizeHint());
            QPainter painter(&canvas);
            label.render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
        }
        return (bench::microseconds() - start) / list.size();
    }

    QTemporaryDir folder;
    QImage canvas;
    QStringList texts, emojiTexts, richTexts;
    QLabel qtPlain, qtRich;
    WEmojiLabel plain, emoji;
};

} // namespace

bench::Subject bench::labels()
{
    const auto s = std::make_shared<std::unique_ptr<State>>();
    Subject subject;
    subject.name = QLatin1String("labels");
    subject.rounds = 101;
    subject.quickRounds = 31;
    subject.prepare = [s] {
        *s = std::make_unique<State>();
        State &state = **s;
        state.emoji.setText(state.emojiTexts.at(0));
        const int beside = state.emoji.fontMetrics().height();
        state.plain.setText(state.texts.at(0));
        state.qtRich.setText(state.richTexts.at(0));
        if (state.emoji.sizeHint().width() < state.plain.sizeHint().width() + 2 * beside
            || qAbs(state.emoji.sizeHint().width() - state.qtRich.sizeHint().width()) > 4)
            return QStringLiteral("the labels do not show the same");
        return QString();
    };
    const QLatin1String emoji("WEmojiLabel, 2 emoji"), rich("QLabel, 2 images"), plain("WEmojiLabel, no emoji"),
        qtPlain("QLabel, plain");
    subject.variants = {
        {emoji,
         [s] {
             return (*s)->each((*s)->emoji, (*s)->emojiTexts);
         }},
        {rich,
         [s] {
             return (*s)->each((*s)->qtRich, (*s)->richTexts);
         }},
        {plain,
         [s] {
             return (*s)->each((*s)->plain, (*s)->texts);
         }},
        {qtPlain,
         [s] {
             return (*s)->each((*s)->qtPlain, (*s)->texts);
         }},
    };
    subject.rows = {
        {QLatin1String("labels: a text with 2 emoji"), emoji, rich, 1.0},
        {QLatin1String("labels: a text without emoji"), plain, qtPlain, 1.5},
    };
    return subject;
}
