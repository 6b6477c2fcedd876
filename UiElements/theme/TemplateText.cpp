#include "TemplateText_p.h"

namespace {

bool isNameChar(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('-') || c == QLatin1Char('_');
}

} // namespace

QString TemplateText::forMessage(const QString &text)
{
    constexpr int most = 1024;
    return text.size() <= most ? text : text.left(most) + QStringLiteral("...");
}

// "6", "6px"; anything else is no number. Lengths of no screen are taken as the largest that style sheets can hold.
bool TemplateText::readPixels(QString word, int *pixels)
{
    if (word.endsWith(QLatin1String("px")))
        word.chop(2);
    bool ok = false;
    const int number = word.toInt(&ok);
    if (!ok || number < 0)
        return false;
    *pixels = qMin(number, 0x7fff);
    return true;
}

// Where the value of a directive ends that no ";" ends: behind one name, or behind what can be sides, corners and
// numbers. The word after that may be the selector of a rule.
int TemplateText::endOfValue(const QString &css, int from, bool isList)
{
    static const QStringList listWords {
        QStringLiteral("left"),        QStringLiteral("top"),         QStringLiteral("right"),
        QStringLiteral("bottom"),      QStringLiteral("all"),         QStringLiteral("none"),
        QStringLiteral("focus"),       QStringLiteral("top-left"),    QStringLiteral("top-right"),
        QStringLiteral("bottom-left"), QStringLiteral("bottom-right")};
    int end = from;
    while (true) {
        int word = end;
        while (word < css.size() && (css.at(word).isSpace() || (isList && css.at(word) == QLatin1Char(','))))
            ++word;
        int wordEnd = word;
        while (wordEnd < css.size() && isNameChar(css.at(wordEnd)))
            ++wordEnd;
        if (!isList)
            return wordEnd;
        int pixels = 0;
        const QString text = css.mid(word, wordEnd - word).toLower();
        if (!listWords.contains(text) && !readPixels(text, &pixels))
            return end;
        end = wordEnd;
    }
}

// Removes every occurrence of the directive with its value, also one that the removal of another puts together.
// The text is walked once, whatever stands in it.
bool TemplateText::removeDirective(const QString &directive, QString &css)
{
    if (!css.contains(directive))
        return false;
    bool removed = false;
    QString out;
    out.reserve(css.size());
    for (int i = 0; i < css.size(); ++i) {
        out += css.at(i);
        if (css.at(i) != QLatin1Char(':') || !out.endsWith(directive))
            continue;
        const int end = css.indexOf(QLatin1Char(';'), i + 1);
        if (end < 0) {
            out += css.midRef(i + 1);
            break;
        }
        out.chop(directive.size());
        removed = true;
        i = end;
    }
    css = out;
    return removed;
}

TemplateText::Found TemplateText::takeFirst(const QString &directive, QString &css)
{
    const int start = css.indexOf(directive);
    const int end = start < 0 ? -1 : css.indexOf(QLatin1Char(';'), start);
    if (end < 1)
        return {};
    const int valueStart = start + directive.size();
    Found found {true, css.mid(valueStart, end - valueStart).trimmed()};
    css.remove(start, end + 1 - start);
    return found;
}

QStringList TemplateText::words(const QString &value)
{
    QString blanks = value.toLower();
    blanks.replace(QLatin1Char(','), QLatin1Char(' '));
    return blanks.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// The stretches of declarations that stand outside any rule. Qt's parser takes a text of rules or a text of bare
// declarations, never both.
std::vector<TemplateText::Run> TemplateText::bareDeclarations(const QString &css)
{
    std::vector<Run> runs;
    int depth = 0;
    int parentheses = 0;
    int segment = 0;
    bool blankSoFar = true; // since the segment began
    auto close = [&](int end) {
        int start = segment;
        while (start < end && css.at(start).isSpace())
            ++start;
        segment = end;
        blankSoFar = true;
        if (start == end || css.at(start) == QLatin1Char('@'))
            return;
        if (!runs.empty() && css.midRef(runs.back().end, start - runs.back().end).trimmed().isEmpty())
            runs.back().end = end;
        else
            runs.push_back({start, end});
    };
    for (int i = 0; i < css.size(); ++i) {
        const QChar c = css.at(i);
        if (c == QLatin1Char('/') && i + 1 < css.size() && css.at(i + 1) == QLatin1Char('*')) {
            const int end = css.indexOf(QLatin1String("*/"), i + 2);
            if (end < 0)
                break;
            i = end + 1;
            if (depth == 0 && blankSoFar)
                segment = i + 1;
            continue;
        }
        blankSoFar = blankSoFar && c.isSpace();
        if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            int end = i + 1;
            while (end < css.size() && css.at(end) != c)
                end += css.at(end) == QLatin1Char('\\') ? 2 : 1;
            if (end >= css.size())
                break;
            i = end;
        } else if (c == QLatin1Char('(')) {
            ++parentheses;
        } else if (c == QLatin1Char(')')) {
            parentheses = qMax(0, parentheses - 1);
        } else if (c == QLatin1Char('{')) {
            ++depth;
        } else if (c == QLatin1Char('}')) {
            depth = qMax(0, depth - 1);
            parentheses = 0;
            if (depth == 0) {
                segment = i + 1;
                blankSoFar = true;
            }
        } else if (c == QLatin1Char(';') && depth == 0 && parentheses == 0) {
            close(i + 1);
        }
    }
    if (depth == 0 && css.midRef(segment).contains(QLatin1Char(':')))
        close(css.size());
    return runs;
}
