#include "StyleTemplate_p.h"
#include "TemplateText_p.h"

#include <QDebug>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cstring>

namespace {

// Stands for a token while the directives are read; a character that no text can hold legitimately.
constexpr QChar TokenMark(0xFDD0);

const char *const PseudoStates[] = {"", ":hover", ":pressed", ":disabled", ":focus", ":checked"};
const char *const ColorProperties[] = {"background-color:", "border-color:", "color:"};

// Of several matching rules of equal weight Qt takes the last, and an icon beside the text picks disabled before
// pressed before hovered before focused before checked. So that both show the same state the rules run the other way.
// A focused color that equals the normal one does not count as a state of its own and must not hide the checked one.
constexpr WColorSet::State RuleOrder[] = {WColorSet::Normal,  WColorSet::Checked, WColorSet::Focused,
                                          WColorSet::Hovered, WColorSet::Pressed, WColorSet::Disabled};
constexpr WColorSet::State RuleOrderFocusHidden[] = {WColorSet::Normal,  WColorSet::Focused, WColorSet::Checked,
                                                     WColorSet::Hovered, WColorSet::Pressed, WColorSet::Disabled};

const char NotUnderstood[] = "WThemeUtils: directive is not understood as a whole:";

const QLatin1String GradientMarker("gradient-background-");

QString withSelectors(const QString &text, const std::vector<int> &cuts, const QString &selector)
{
    QString result(text.size() + int(cuts.size()) * selector.size(), Qt::Uninitialized);
    QChar *out = result.data();
    const auto copy = [&out](const QChar *from, int size) {
        std::memcpy(out, from, std::size_t(size) * sizeof(QChar));
        out += size;
    };
    int from = 0;
    for (const int cut : cuts) {
        copy(text.constData() + from, cut - from);
        copy(selector.constData(), selector.size());
        from = cut;
    }
    copy(text.constData() + from, text.size() - from);
    return result;
}

// Makes one rule of two that follow each other and have nothing but the selector in front of the brace.
void joinRules(QString *text, std::vector<int> *cuts)
{
    static const QRegularExpression rule(QStringLiteral("\\A\\{[^{}\"'/]*;\\s*\\}\\s*\\z"));
    QString joined;
    std::vector<int> left;
    int from = 0;
    for (std::size_t i = 0; i < cuts->size(); ++i) {
        const int cut = (*cuts)[i];
        const bool isRule = text->midRef(cut, 1) == QLatin1String("{");
        const QString before = i > 0 ? text->mid((*cuts)[i - 1], cut - (*cuts)[i - 1]) : QString();
        joined += text->midRef(from, cut - from);
        from = cut;
        if (isRule && rule.match(before).hasMatch()) {
            joined.truncate(joined.lastIndexOf(QLatin1Char('}')));
            from = cut + 1;
        } else {
            left.push_back(joined.size());
        }
    }
    joined += text->midRef(from);
    *text = joined;
    *cuts = left;
}

} // namespace

using namespace TemplateText;

const QStringList &StyleTemplate::colorDirectives()
{
    static const QStringList directives {QStringLiteral("$backgroundColors:"), QStringLiteral("$borderColors:"),
                                         QStringLiteral("$textColors:")};
    return directives;
}

const QStringList &StyleTemplate::geometryDirectives()
{
    static const QStringList directives {QStringLiteral("$borders:"), QStringLiteral("$borderRadius:"),
                                         QStringLiteral("$borderWidth:")};
    return directives;
}

const QStringList &StyleTemplate::allDirectives()
{
    static const QStringList directives = colorDirectives() + geometryDirectives();
    return directives;
}

QString StyleTemplate::directiveValue(const QString &directive, const QString &css)
{
    const int start = css.indexOf(directive);
    const int end = start < 0 ? -1 : css.indexOf(QLatin1Char(';'), start);
    return end < 1 ? QString() : css.mid(start + directive.size(), end - start - directive.size()).trimmed();
}

QString StyleTemplate::withoutDirectives(const QString &css)
{
    if (!css.contains(QLatin1Char('$')))
        return css;
    QString rest = css;
    bool removed = false;
    for (const QString &directive : allDirectives())
        removed = removeDirective(directive, rest) || removed;
    return removed ? rest.trimmed() : css;
}

QString StyleTemplate::borderText(bool left, bool top, bool right, bool bottom, int width)
{
    const QString pixels = QString::number(width) + QLatin1String("px;");
    if (left && top && right && bottom)
        return QLatin1String("border-style:solid; border-width:") + pixels;
    if (!left && !top && !right && !bottom)
        return QStringLiteral("border:none;");
    QString text = QStringLiteral("border-style:solid;");
    const auto side = [&](bool wanted, QLatin1String property) {
        if (wanted)
            text += property + pixels;
    };
    side(left, QLatin1String("border-left-width:"));
    side(bottom, QLatin1String("border-bottom-width:"));
    side(right, QLatin1String("border-right-width:"));
    side(top, QLatin1String("border-top-width:"));
    return text;
}

std::shared_ptr<const StyleTemplate> StyleTemplate::shared(const QString &css)
{
    // A text that large is nobody's everyday template; keeping it as a key would only hold memory.
    if (css.size() > 0x10000)
        return std::make_shared<StyleTemplate>(css);
    static QHash<QString, std::weak_ptr<const StyleTemplate>> known;
    static int sweepAt = 64;
    // Callers that hold nothing come back with the same few texts.
    static std::array<std::shared_ptr<const StyleTemplate>, 64> recent;
    static std::size_t next = 0;
    std::weak_ptr<const StyleTemplate> &entry = known[css];
    std::shared_ptr<const StyleTemplate> result = entry.lock();
    if (!result) {
        result = std::make_shared<StyleTemplate>(css);
        entry = result;
        recent[next++ % recent.size()] = result;
        if (known.size() >= sweepAt) {
            for (auto it = known.begin(); it != known.end();)
                it = it->expired() ? known.erase(it) : std::next(it);
            sweepAt = qMax(64, 2 * known.size());
        }
    }
    return result;
}

StyleTemplate::StyleTemplate(const QString &css)
    : StyleTemplate(css, Tokens::Expand)
{
}

StyleTemplate::StyleTemplate(const QString &css, Tokens tokens)
    : m_source(css)
{
    // Our mark in the text itself: replace the tokens as text first, where nothing can be mistaken for one.
    if (tokens == Tokens::Keep) {
        readDirectives(css, 0);
    } else {
        const QString marked = readTokens(css);
        if (css.contains(TokenMark))
            m_twoPasses = true;
        else
            readDirectives(marked, marked.count(TokenMark));
    }
    m_slots.clear();
}

// Cuts the tokens out of the text and leaves a mark for each.
QString StyleTemplate::readTokens(const QString &css)
{
    QString out;
    int pos = 0;
    int from = 0;
    while (true) {
        const int start = css.indexOf(QLatin1String("$("), from);
        const int end = start < 0 ? -1 : css.indexOf(QLatin1Char(')'), start);
        if (end < 0)
            break;
        // A token stands on one line.
        const int newline = css.midRef(start, end - start).lastIndexOf(QLatin1Char('\n'));
        if (newline >= 0) {
            from = start + newline + 1;
            continue;
        }
        from = end + 1;
        const QString text = css.mid(start, end + 1 - start);
        const int dot = text.indexOf(QLatin1Char('.'));
        if (dot < 0) {
            m_tokens.push_back({-1, -1, text});
            m_troubled = true;
            continue;
        }
        const QStringView body(text);
        const int state = WColorSet::stateFromName(body.mid(dot + 1, text.size() - dot - 2));
        m_troubled = m_troubled || state < 0;
        m_tokens.push_back({slotOf(text.mid(2, dot - 2)), state, text});
        out += css.midRef(pos, start - pos);
        out += TokenMark;
        pos = from;
    }
    out += css.midRef(pos);
    return out;
}

void StyleTemplate::readDirectives(QString rest, int marks)
{
    const int before = rest.size();
    const QStringList &geometry = geometryDirectives();
    const Found width = takeFirst(geometry.at(2), rest);
    const Found borders = takeFirst(geometry.at(0), rest);
    const Found radius = takeFirst(geometry.at(1), rest);
    for (int i = 0; i < 3; ++i)
        m_directives.colorSetNames[i] = directiveValue(colorDirectives().at(i), rest);
    for (const QString &directive : allDirectives())
        removeDirective(directive, rest);
    const bool removed = rest.size() != before;
    if (removed)
        rest = rest.trimmed();
    // A directive inside the value of another takes the ";" of both, and the token stays.
    const bool isTokenInName = std::any_of(std::begin(m_directives.colorSetNames), std::end(m_directives.colorSetNames),
                                           [](const QString &name) { return name.contains(TokenMark); });
    if (marks > 0 && (isTokenInName || rest.count(TokenMark) != marks)) {
        m_twoPasses = true;
        return;
    }

    // What is left of a directive has no ";" and so no value. It is cut out, or Qt would refuse the whole sheet.
    for (const QString &directive : allDirectives()) {
        const bool hasList = geometryDirectives().contains(directive);
        int start = rest.indexOf(directive);
        if (start < 0)
            continue;
        QString kept = rest.left(start);
        while (start >= 0) {
            const int end = endOfValue(rest, start + directive.size(), hasList);
            if (kept.size() == start) // the first; a text of nothing else need not say it a million times
                addFault("WThemeUtils: directive without a closing ; is ignored:", rest.mid(start, end - start));
            start = rest.indexOf(directive, end);
            kept += rest.midRef(end, (start < 0 ? rest.size() : start) - end);
        }
        rest = kept;
    }

    readBorders(borders.value, borders.present, width.value);
    readRadius(radius.value);
    writeDirectives();
    writeRest(rest, removed);
    readScope(rest);

    QString trailing = rest.trimmed();
    if (marks > 0) {
        QString text;
        int token = 0;
        for (const QChar c : qAsConst(trailing)) {
            if (c != TokenMark) {
                text += c;
                continue;
            }
            while (m_tokens[std::size_t(token)].set < 0)
                ++token;
            text += m_tokens[std::size_t(token++)].text;
        }
        trailing = text;
    }
    m_directives.trailingText = trailing;
    if (!borders.present)
        readWrittenBorders();
}

void StyleTemplate::readScope(QString rest)
{
    static const QRegularExpression quoted(QStringLiteral("\"[^\"{};\\[\\]]*\"|'[^'{};\\[\\]]*'"));
    static const QRegularExpression attribute(QStringLiteral("\\[[^\\]{}]*\\]"));
    static const QRegularExpression unusual(QStringLiteral("[\"'\\\\@]|/\\*|qproperty-"),
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression ofClass(QStringLiteral("\\A[A-Za-z]\\w*(::?!?[a-z-]+)*\\z"));
    static const QRegularExpression ofSome(
        QStringLiteral("(?:\\A|[\\s>])(?<class>\\*|[A-Za-z]\\w*)?(?:#(?<name>[\\w-]+))?(?:\\[\\])*(::?!?[a-z-]+)*\\z"));

    m_scope.hasOwn = m_hasStateRules
        || std::any_of(m_ops.begin(), m_ops.end(), [](const Op &op) { return op.kind == Op::Selector; });
    rest.remove(quoted).replace(attribute, QStringLiteral("[]"));
    m_scope.isKnown = !unusual.match(rest).hasMatch();
    const QStringList parts = rest.split(QLatin1Char('{'));
    // Declarations without a selector are for all that is below, too.
    if (!m_scope.hasOwn && parts.size() == 1 && !rest.trimmed().isEmpty())
        m_scope.some.push_back({});
    for (int i = 0; m_scope.isKnown && i + 1 < parts.size(); ++i) {
        const QString &part = parts.at(i);
        m_scope.isKnown = i == 0 || part.contains(QLatin1Char('}'));
        const int end = std::max(part.lastIndexOf(QLatin1Char('}')), part.lastIndexOf(QLatin1Char(';')));
        const QStringList selectors = part.mid(end + 1).split(QLatin1Char(','));
        for (const QString &one : selectors) {
            const QString selector = one.trimmed();
            if (ofClass.match(selector).hasMatch()) {
                m_scope.classes.push_back(selector.section(QLatin1Char(':'), 0, 0).toLatin1());
                continue;
            }
            const QRegularExpressionMatch match = ofSome.match(selector);
            const QString className = match.captured(QStringLiteral("class"));
            // What stands before it, or an attribute, may tell apart even those of one name.
            const bool isByName = match.capturedStart() == 0 && !selector.contains(QLatin1Char('['));
            m_scope.some.push_back({className == QLatin1String("*") ? QByteArray() : className.toLatin1(),
                                    isByName ? match.captured(QStringLiteral("name")) : QString()});
        }
    }
}

// The style editor's border text stands in front as plain declarations; read back it is sides and a width again.
void StyleTemplate::readWrittenBorders()
{
    Directives &d = m_directives;
    const QString &text = d.trailingText;
    if (!text.startsWith(QLatin1String("border")))
        return;
    const int widthAt = text.indexOf(QLatin1String("-width:"));
    int digits = widthAt < 0 ? 0 : widthAt + 7;
    while (widthAt >= 0 && digits < text.size() && text.at(digits).isDigit())
        ++digits;
    int width = 0;
    if (widthAt >= 0)
        readPixels(text.mid(widthAt + 7, digits - widthAt - 7), &width);
    // Longest first: the text of one side is the beginning of the text of two.
    for (int sides = 15; sides >= 0; --sides) {
        static const int bySize[] = {0, 1, 2, 4, 8, 3, 5, 6, 9, 10, 12, 7, 11, 13, 14, 15};
        const int mask = bySize[sides];
        const bool left = mask & 1, top = mask & 2, right = mask & 4, bottom = mask & 8;
        const QString written = borderText(left, top, right, bottom, width);
        if (!text.startsWith(written))
            continue;
        d.left = left;
        d.top = top;
        d.right = right;
        d.bottom = bottom;
        d.hasBorders = true;
        d.borderWidth = mask ? width : d.borderWidth;
        d.borderText = written;
        d.trailingText = text.mid(written.size()).trimmed();
        return;
    }
}

void StyleTemplate::addFault(const char *message, const QString &directive)
{
    m_faults.emplace_back(message, directive.trimmed());
    m_troubled = true;
}

void StyleTemplate::readBorders(const QString &value, bool present, const QString &width)
{
    Directives &d = m_directives;
    if (present || !width.isEmpty())
        d.borderWidth = 1;
    const QStringList widths = words(width);
    const bool isWidth = widths.size() == 1 && readPixels(widths.first(), &d.borderWidth);
    if (!isWidth && !widths.isEmpty())
        addFault(NotUnderstood, geometryDirectives().at(2) + QLatin1Char(' ') + width);
    d.hasBorders = present;
    if (!present)
        return;
    const QStringList sides = words(value);
    static const QStringList known {QStringLiteral("left"),   QStringLiteral("top"), QStringLiteral("right"),
                                    QStringLiteral("bottom"), QStringLiteral("all"), QStringLiteral("none")};
    if (!std::all_of(sides.begin(), sides.end(), [](const QString &side) { return known.contains(side); }))
        addFault(NotUnderstood, geometryDirectives().at(0) + QLatin1Char(' ') + value);
    const bool all = sides.contains(QLatin1String("all"));
    d.left = all || sides.contains(QLatin1String("left"));
    d.top = all || sides.contains(QLatin1String("top"));
    d.right = all || sides.contains(QLatin1String("right"));
    d.bottom = all || sides.contains(QLatin1String("bottom"));
    d.borderText = borderText(d.left, d.top, d.right, d.bottom, d.borderWidth);
}

void StyleTemplate::readRadius(const QString &value)
{
    Directives &d = m_directives;
    bool understood = true;
    bool number = false;
    bool topEdge = false;
    quint8 named = 0;
    static const QLatin1String corners[] = {QLatin1String("top-left"), QLatin1String("top-right"),
                                            QLatin1String("bottom-left"), QLatin1String("bottom-right")};
    const QStringList parts = words(value);
    for (const QString &word : parts) {
        if (!number && readPixels(word, &d.borderRadius)) {
            number = true;
        } else if (word == QLatin1String("top")) {
            topEdge = true;
        } else if (word == QLatin1String("focus")) {
            d.focusRadius = true;
        } else {
            const auto corner = std::find(std::begin(corners), std::end(corners), word);
            if (corner == std::end(corners))
                understood = false;
            else
                named = quint8(named | 1 << (corner - std::begin(corners)));
        }
    }
    if (!understood || (!number && !parts.isEmpty()))
        addFault(NotUnderstood, geometryDirectives().at(1) + QLatin1Char(' ') + value);
    if (!number) {
        d.focusRadius = false;
        return;
    }
    const QString pixels = QString::number(d.borderRadius) + QLatin1String("px;");
    if (topEdge) {
        d.radiusText = QStringLiteral("border-top-left-radius:%1px; border-top-right-radius:%1px;").arg(d.borderRadius);
        named = named | 1 | 2;
        for (int i = 2; i < 4; ++i) {
            if (named & (1 << i))
                d.radiusText += QLatin1String(" border-") + corners[i] + QLatin1String("-radius:") + pixels;
        }
    } else if (named) {
        for (int i = 0; i < 4; ++i) {
            if (named & (1 << i))
                d.radiusText += QLatin1String("border-") + corners[i] + QLatin1String("-radius:") + pixels;
        }
    } else {
        d.radiusText = QLatin1String("border-radius:") + pixels;
        named = 15;
    }
    d.rectangularCorners = quint8(15 & ~named);
}

void StyleTemplate::writeDirectives()
{
    const QString geometry = m_directives.borderText + m_directives.radiusText;
    if (!geometry.isEmpty()) {
        addSelector();
        addLiteral(QLatin1Char('{') + geometry + QLatin1String("} "));
    }
    for (int i = 0; i < 3; ++i) {
        const QString &name = m_directives.colorSetNames[i];
        if (name.isEmpty())
            continue;
        m_directiveSet[i] = slotOf(name);
        const int marker = i == 0 ? name.indexOf(GradientMarker) : -1;
        if (marker >= 0) {
            QString pair = name.mid(marker + GradientMarker.size()) == QLatin1String("primary")
                ? QStringLiteral("primary")
                : QStringLiteral("secondary");
            if (name.endsWith(QLatin1String("-dialog")))
                pair = QStringLiteral("dialog-secondary");
            for (int stop = 0; stop < 2; ++stop)
                m_gradientSet[stop] = slotOf(QStringLiteral("theme-gradient-%1-%2-background").arg(pair).arg(stop));
            addSelector();
            addLiteral(QStringLiteral("{background: qlineargradient(x1:1 y1:1, x2:1 y2:0, stop:0 "));
            addColor(m_gradientSet[0], WColorSet::Normal);
            addLiteral(QStringLiteral(", stop:1 "));
            addColor(m_gradientSet[1], WColorSet::Normal);
            addLiteral(QStringLiteral("); } "));
        }
        m_ops.push_back({Op::StateRules, qint8(marker >= 0 ? 1 : 0), i, 0});
        m_hasStateRules = true;
        for (int state = marker >= 0 ? 1 : 0; state < WColorSet::StateCount; ++state) {
            ++m_colorCount;
            m_literalLength += int(qstrlen(PseudoStates[state]) + qstrlen(ColorProperties[i])) + 4; // "{", ";} "
        }
    }
}

void StyleTemplate::writeRest(const QString &rest, bool wrapDeclarations)
{
    int pos = 0;
    std::size_t token = 0;
    const int none = rest.size();
    const auto nextMark = [&] {
        const int at = m_tokens.empty() ? -1 : rest.indexOf(TokenMark, pos);
        return at < 0 ? none : at;
    };
    int mark = nextMark();
    const auto write = [&](int end) {
        while (pos < end) {
            const int stop = qMin(mark, end);
            addLiteral(rest.mid(pos, stop - pos));
            pos = stop;
            if (stop == end)
                break;
            while (m_tokens[token].set < 0)
                ++token;
            addColor(m_tokens[token].set, m_tokens[token].state);
            ++token;
            ++pos;
            mark = nextMark();
        }
    };
    if (wrapDeclarations) {
        for (const Run &run : bareDeclarations(rest)) {
            write(run.start);
            addSelector();
            addLiteral(QStringLiteral("{"));
            write(run.end);
            addLiteral(QStringLiteral("} "));
        }
    }
    write(rest.size());
}

int StyleTemplate::slotOf(const QString &setName)
{
    const auto [it, isNew] = m_slots.try_emplace(setName.toStdString(), int(m_setNames.size()));
    if (isNew)
        m_setNames.push_back(it->first);
    return it->second;
}

void StyleTemplate::addLiteral(const QString &text)
{
    if (text.isEmpty())
        return;
    if (!m_ops.empty() && m_ops.back().kind == Op::Literal)
        m_ops.back().b += text.size();
    else
        m_ops.push_back({Op::Literal, 0, m_text.size(), text.size()});
    m_text += text;
    m_literalLength += text.size();
}

void StyleTemplate::addSelector()
{
    m_ops.push_back({Op::Selector, 0, 0, 0});
}

void StyleTemplate::addColor(int set, int state)
{
    m_ops.push_back({Op::Color, qint8(state), set, 0});
    ++m_colorCount;
}

const StyleTemplate::Resolved &StyleTemplate::resolve(const ColorTable &table) const
{
    Resolved &recent = m_resolved[0];
    if (recent.generation == table.generation())
        return recent;
    std::swap(m_resolved[0], m_resolved[1]);
    if (recent.generation == table.generation())
        return recent;
    recent.index.resize(m_setNames.size());
    recent.complete = true;
    for (std::size_t i = 0; i < m_setNames.size(); ++i) {
        recent.index[i] = table.find(m_setNames[i]);
        recent.complete = recent.complete && (recent.index[i] >= 0 || m_setNames[i].empty());
    }
    recent.generation = table.generation();
    const QString before = recent.text;
    const std::vector<int> cutsBefore = recent.cuts;
    fill(&recent, table);
    static quint64 contents = 0;
    const Resolved &other = m_resolved[1];
    if (other.content != 0 && other.text == recent.text && other.cuts == recent.cuts)
        recent.content = other.content;
    else if (recent.content == 0 || before != recent.text || cutsBefore != recent.cuts)
        recent.content = ++contents;
    return recent;
}

quint64 StyleTemplate::contentFor(const ColorTable &table) const
{
    return m_twoPasses ? 0 : resolve(table).content;
}

// The index is a copy: whoever receives the messages may have this template expanded against another table.
void StyleTemplate::report(std::vector<int> index) const
{
    const auto reportUnknown = [&](int set) {
        if (set >= 0 && index[std::size_t(set)] < 0 && !m_setNames[std::size_t(set)].empty()) {
            qWarning() << "ColorSet name does not exist! "
                       << forMessage(QString::fromStdString(m_setNames[std::size_t(set)]));
        }
    };
    for (const Token &token : m_tokens) {
        if (token.set < 0) {
            qWarning() << "WThemeUtils: format is invalid! expected: $(colorSetName.state) found:"
                       << forMessage(token.text);
            continue;
        }
        reportUnknown(token.set);
        if (token.state < 0)
            qWarning("WColorSet: color state is invalid!");
    }
    for (const auto &[message, directive] : m_faults)
        qWarning() << message << forMessage(directive);
    for (int i = 0; i < 3; ++i) {
        if (i == 0) {
            reportUnknown(m_gradientSet[0]);
            reportUnknown(m_gradientSet[1]);
        }
        reportUnknown(m_directiveSet[i]);
    }
}

StyleTemplate StyleTemplate::withTokensReplaced(const ColorTable &table) const
{
    const Resolved &resolved = resolve(table);
    QString out;
    int pos = 0;
    int from = 0;
    for (const Token &token : m_tokens) {
        const int start = m_source.indexOf(token.text, from);
        from = start + token.text.size();
        if (token.set < 0)
            continue;
        out += m_source.midRef(pos, start - pos);
        const int index = resolved.index[std::size_t(token.set)];
        const ColorTable::Entry &entry = index < 0 || token.state < 0 ? ColorTable::unknown() : table.at(index);
        out += QString::fromUtf16(entry.hex[qMax(0, token.state)], ColorTable::HexLength);
        pos = from;
    }
    out += m_source.midRef(pos);
    if (m_troubled || !resolved.complete)
        report(resolved.index);
    return StyleTemplate(out, Tokens::Keep);
}

QString StyleTemplate::expand(const QString &selector, const ColorTable &table) const
{
    if (m_twoPasses)
        return withTokensReplaced(table).expand(selector, table);
    const Resolved &resolved = resolve(table);
    const QString result = withSelectors(resolved.text, resolved.cuts, selector);
    if (m_troubled || !resolved.complete)
        report(resolved.index);
    return result;
}

QString StyleTemplate::expandNormal(const QString &selector, const ColorTable &table) const
{
    if (m_twoPasses || !m_hasStateRules)
        return QString();
    const Resolved &resolved = resolve(table);
    return withSelectors(resolved.normalText, resolved.normalCuts, selector);
}

void StyleTemplate::fill(Resolved *target, const ColorTable &table) const
{
    write(table, target->index, false, &target->text, &target->cuts);
    if (m_hasStateRules) {
        write(table, target->index, true, &target->normalText, &target->normalCuts);
        joinRules(&target->normalText, &target->normalCuts);
    }
}

void StyleTemplate::write(const ColorTable &table, const std::vector<int> &indices, bool isNormalOnly, QString *target,
                          std::vector<int> *cuts) const
{
    QString result(m_literalLength + m_colorCount * ColorTable::HexLength, Qt::Uninitialized);
    auto *const begin = reinterpret_cast<char16_t *>(result.data());
    auto *out = begin;
    cuts->clear();
    const auto cut = [&] {
        cuts->push_back(int(out - begin));
    };
    const auto copy = [&out](const void *text, int length) {
        std::memcpy(out, text, std::size_t(length) * sizeof(char16_t));
        out += length;
    };
    const auto latin1 = [&out](const char *text) {
        while (*text)
            *out++ = char16_t(*text++);
    };
    const auto color = [&](int set, int state) {
        const int index = indices[std::size_t(set)];
        const bool known = index >= 0 && state >= 0;
        copy((known ? table.at(index) : ColorTable::unknown()).hex[known ? state : 0], ColorTable::HexLength);
    };
    for (const Op &op : m_ops) {
        switch (op.kind) {
        case Op::Literal: copy(m_text.constData() + op.a, op.b); break;
        case Op::Selector: cut(); break;
        case Op::Color: color(op.a, op.state); break;
        case Op::StateRules: {
            const int index = indices[std::size_t(m_directiveSet[op.a])];
            const bool focusShows = index >= 0 && table.at(index).focusShows;
            for (const WColorSet::State state : focusShows ? RuleOrder : RuleOrderFocusHidden) {
                if (state < op.state || (isNormalOnly && state != WColorSet::Normal))
                    continue; // the normal state of a gradient is written already
                cut();
                latin1(PseudoStates[state]);
                *out++ = u'{';
                latin1(ColorProperties[op.a]);
                color(m_directiveSet[op.a], state);
                latin1(";} ");
            }
            break;
        }
        }
    }
    result.resize(int(out - begin));
    *target = result;
}
