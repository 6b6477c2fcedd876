#include "ClientStory.h"

#include <array>

namespace {

struct Line
{
    bool isOwn;
    const char *text; // or a movie
};

constexpr Line Icons[] = {
    {false, "Morning! Did you see the new icons? \xf0\x9f\x8e\xa8"},
    {true, "Yes. They look right in the dark themes, too \xf0\x9f\x8c\x99"},
    {false,
     "I only had to redraw three of them. The rest takes its colors from the theme, in every state, so there "
     "was nothing left to do but look at it \xf0\x9f\x98\x8c"},
    {true, "\xf0\x9f\x91\x8f\xf0\x9f\x91\x8f"},
    {false, ":/gallery/movies/heart.gif"}};
constexpr Line Review[] = {
    {true, "Are we still on for the review at ten?"},
    {false, "Yes! I bring the numbers \xf0\x9f\x93\x88 and the cake \xf0\x9f\x8d\xb0"},
    {true, "Then I bring coffee \xe2\x98\x95"},
    {false,
     "The most important item of the agenda. Last time there was none left after a quarter of an hour, and we "
     "went on about font scales for two more."},
    {false, ":/gallery/movies/ball.gif"}};
constexpr Line Trip[] = {
    {false, "The photos are in the folder \xf0\x9f\x93\xb8"},
    {true, "The one with the lighthouse is wonderful \xf0\x9f\x98\x8d"},
    {false,
     "That was at six in the morning. Nobody else wanted to get up, and then the fog went away \xf0\x9f\x8c\x85"},
    {true, "Next year I come along. Promise \xf0\x9f\xa4\x9d"}};

QVector<Line> scriptFor(const QString &name)
{
    uint sum = 0;
    for (const QChar letter : name)
        sum += letter.unicode();
    switch (sum % 3) {
    case 0: return QVector<Line>(std::begin(Icons), std::end(Icons));
    case 1: return QVector<Line>(std::begin(Review), std::end(Review));
    default: return QVector<Line>(std::begin(Trip), std::end(Trip));
    }
}

constexpr std::array<const char *, 5> Answers {"Good point \xf0\x9f\x91\x8d", "Let me look into it \xf0\x9f\x94\x8e",
                                               "Ha \xf0\x9f\x98\x84 I was about to write the same",
                                               "Can we talk about it in the call?", "\xf0\x9f\x8e\x89"};

} // namespace

QVector<ClientMessage> ClientStory::of(const QString &name, const QString &lastText, const QDateTime &lastTime)
{
    const QVector<Line> script = scriptFor(name);
    QVector<ClientMessage> messages;
    QDateTime time = lastTime.addSecs(-60 * (2 + 3 * script.size()));
    for (const Line &line : script) {
        ClientMessage message;
        message.isOwn = line.isOwn;
        message.time = time.time();
        const QString text = QString::fromUtf8(line.text);
        (text.startsWith(QLatin1Char(':')) ? message.movie : message.text) = text;
        messages << message;
        time = time.addSecs(180);
    }
    ClientMessage last;
    last.text = lastText;
    last.time = lastTime.time();
    return messages << last;
}

QString ClientStory::answer(int number)
{
    return QString::fromUtf8(Answers[std::size_t(number) % Answers.size()]);
}
