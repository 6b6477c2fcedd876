#pragma once

#include <UiElements/theme/ColorTable_p.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// A style template, read once and written as often as the theme changes.
///
/// Reading cuts the text into the runs that never change and the places where a selector or a color goes. The first
/// writing against a table puts the colors in; every further one is one allocation and a copy between the places of
/// selectors, which is what a hundred widgets with the same template need. What it writes is the same, character for
/// character, as replacing the tokens in the text and expanding the directives of the result.
///
/// GUI thread only: an expansion remembers which sets it found where.
class StyleTemplate
{
public:
    /// Which directives there are and how they are spelled.
    static const QStringList &colorDirectives();
    static const QStringList &geometryDirectives();
    static const QStringList &allDirectives(); ///< in the order in which they are removed

    /// The value of the directive: the text up to the next ";", trimmed. Empty when there is no such directive.
    static QString directiveValue(const QString &directive, const QString &css);
    /// The text without any directive that has a value, trimmed if one was removed.
    static QString withoutDirectives(const QString &css);

    /// The border text for the sides, as the "$borders:" directive writes it; "border:none;" for no side.
    static QString borderText(bool left, bool top, bool right, bool bottom, int width);

    explicit StyleTemplate(const QString &css);
    /// The same template text read before is not read again while somebody still holds it.
    static std::shared_ptr<const StyleTemplate> shared(const QString &css);

    /// Writes the style sheet for the selector and reports, once for each place, what the template asks for in vain.
    QString expand(const QString &selector, const ColorTable &table) const;

    /// The same without the rules that the color directives write for other states than normal, and with as few rules
    /// as possible: all that Qt needs of a widget that is in no such state, and half of the work. Nothing if there are
    /// no such rules, or the template is one of needsTwoPasses().
    QString expandNormal(const QString &selector, const ColorTable &table) const;

    /// Differs between any two texts that one template has been expanded to for one selector. Equal colors in another
    /// table give the number that they had before. 0 for the templates of needsTwoPasses(), which are not remembered.
    quint64 contentFor(const ColorTable &table) const;

    /// True when an expansion against the table has nothing to report.
    bool isQuiet(const ColorTable &table) const { return !m_twoPasses && !m_troubled && resolve(table).complete; }

    /// For which widgets the rules are.
    struct Scope
    {
        struct Some
        {
            QByteArray className; ///< empty: of any class
            QString name; ///< empty: of any name
        };
        bool isKnown = true; ///< false: for nobody knows which, or they do more to a widget than give it a look
        bool hasOwn = false; ///< rules for the selector
        std::vector<QByteArray> classes; ///< rules for all of a class
        std::vector<Some> some; ///< rules for some of these at most
    };
    const Scope &scope() const { return m_scope; }

    /// The color sets that an expansion looks up.
    const std::vector<std::string> &setNames() const { return m_setNames; }

    /// What the directives say; colors and texts in `data` that depend on the sets are left alone.
    struct Directives
    {
        QString colorSetNames[3];
        QString trailingText;
        bool left = false, top = false, right = false, bottom = false;
        bool hasBorders = false;
        bool focusRadius = false;
        quint8 rectangularCorners = 0;
        int borderWidth = 0;
        int borderRadius = 0;
        QString borderText;
        QString radiusText;
    };
    const Directives &directives() const { return m_directives; }

    /// True when a token stands inside a directive: the directives are known only once its color is.
    bool needsTwoPasses() const { return m_twoPasses; }
    /// The template with its tokens replaced, for the templates of needsTwoPasses().
    StyleTemplate withTokensReplaced(const ColorTable &table) const;

private:
    enum class Tokens { Expand, Keep };
    StyleTemplate(const QString &css, Tokens tokens);

    struct Token
    {
        int set; ///< index in m_setNames; -1 for a token that names no state and stays as it is
        int state; ///< -1: not one of the six
        QString text; ///< the whole token, for messages
    };
    struct Op
    {
        enum Kind : quint8 { Literal, Selector, Color, StateRules } kind;
        qint8 state;
        int a; ///< Literal: offset in m_text; Color: set; StateRules: directive
        int b; ///< Literal: length
    };
    struct Resolved
    {
        quint64 generation = 0;
        quint64 content = 0;
        std::vector<int> index; ///< for each of m_setNames its index in the table, -1 unknown
        bool complete = false;
        QString text; ///< everything but the selectors
        std::vector<int> cuts; ///< where in text they go
        QString normalText; ///< of expandNormal()
        std::vector<int> normalCuts;
    };

    QString readTokens(const QString &css);
    void readDirectives(QString rest, int marks);
    void addFault(const char *message, const QString &directive);
    void readBorders(const QString &value, bool present, const QString &width);
    void readRadius(const QString &value);
    void readWrittenBorders();
    void readScope(QString rest);
    void writeDirectives();
    void writeRest(const QString &rest, bool wrapDeclarations);
    int slotOf(const QString &setName);
    void addLiteral(const QString &text);
    void addSelector();
    void addColor(int set, int state);
    void fill(Resolved *target, const ColorTable &table) const;
    void write(const ColorTable &table, const std::vector<int> &index, bool isNormalOnly, QString *text,
               std::vector<int> *cuts) const;
    const Resolved &resolve(const ColorTable &table) const;
    void report(std::vector<int> index) const;

    QString m_source;
    QString m_text;
    std::vector<Op> m_ops;
    std::vector<std::string> m_setNames;
    std::unordered_map<std::string, int> m_slots; ///< index in m_setNames; empty once the text is read
    std::vector<Token> m_tokens;
    Directives m_directives;
    Scope m_scope;
    int m_directiveSet[3] = {-1, -1, -1};
    int m_gradientSet[2] = {-1, -1};
    std::vector<std::pair<const char *, QString>> m_faults; ///< message and directive
    int m_literalLength = 0, m_colorCount = 0;
    bool m_hasStateRules = false;
    bool m_troubled = false; ///< there is something to report whatever the sets are
    bool m_twoPasses = false;
    mutable Resolved m_resolved[2]; ///< a widget switches between at most two registries
};
