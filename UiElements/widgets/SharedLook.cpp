#include "SharedLook_p.h"

#include "RestylePass_p.h"
#include "StyleEngine_p.h"
#include "ThemeSupport_p.h"

#include <UiElements/theme/WThemeUtils_p.h>

#include <QApplication>
#include <QStyle>

#include <algorithm>
#include <functional>
#include <map>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace {

// Rules of a sheet that equal templates have in common: those for the widget itself, by its class or its name, or those
// that name others.
struct Rules
{
    const StyleTemplate *source;
    quint64 content;
    bool areOwn;
    QByteArray ownClass;
    QString ownName;

    bool operator==(const Rules &other) const
    {
        return source == other.source && content == other.content && areOwn == other.areOwn
            && ownClass == other.ownClass && ownName == other.ownName;
    }
};

bool isFor(const QMetaObject *meta, const QByteArray &className)
{
    for (; meta; meta = meta->superClass()) {
        if (className == meta->className())
            return true;
    }
    return false;
}

// What a widget gets from those it is inside of.
struct Above
{
    bool isKnown = true;
    bool isNew = false; // a sheet among them is
    std::vector<int> rules; // of the outermost first, as numbers
};

class AllRules
{
public:
    int forOthers(const StyleTemplate *source, quint64 content) { return number({source, content, false, {}, {}}); }
    int own(const QWidget *widget, const StyleTemplate *source, quint64 content)
    {
        const QString name = widget->objectName();
        return number({source, content, true, name.isEmpty() ? widget->metaObject()->className() : QByteArray(), name});
    }

    // Those that have rules for the widget, the innermost first; of equal ones that counts. Its name goes into "name"
    // if a rule asks for it. False if one asks for more.
    bool findForWidget(const QWidget *widget, const std::vector<int> &above, int forOthers, std::vector<int> *found,
                       QString *name)
    {
        const QMetaObject *meta = widget->metaObject();
        const QString objectName = widget->objectName();
        // Of its own sheet those for others hold for itself, too.
        const Meaning &ofOwn = meaningOf(forOthers, meta);
        if (ofOwn.isForSome)
            return false;
        if (ofOwn.names.contains(objectName))
            *name = objectName;
        for (auto it = above.rbegin(); it != above.rend(); ++it) {
            const Meaning &meaning = meaningOf(*it, meta);
            if (meaning.isForSome)
                return false;
            const bool isForName = !objectName.isEmpty() && meaning.names.contains(objectName);
            if (isForName)
                *name = objectName;
            if ((isForName || meaning.isForAll) && std::find(found->begin(), found->end(), *it) == found->end())
                found->push_back(*it);
        }
        return true;
    }

private:
    struct Meaning
    {
        bool isForAll = false;
        bool isForSome = false;
        QStringList names;
    };
    int number(const Rules &rules)
    {
        const auto known = std::find(m_all.begin(), m_all.end(), rules);
        if (known != m_all.end())
            return int(known - m_all.begin());
        m_all.push_back(rules);
        return int(m_all.size()) - 1;
    }
    const Meaning &meaningOf(int number, const QMetaObject *meta)
    {
        const auto [it, isNew] = m_meanings.try_emplace({number, meta});
        Meaning &meaning = it->second;
        if (!isNew)
            return meaning;
        const Rules &rules = m_all[std::size_t(number)];
        if (rules.areOwn) {
            meaning.isForAll = !rules.ownClass.isEmpty() && isFor(meta, rules.ownClass);
            if (!rules.ownName.isEmpty())
                meaning.names.append(rules.ownName);
            return meaning;
        }
        const StyleTemplate::Scope &scope = rules.source->scope();
        for (const QByteArray &className : scope.classes)
            meaning.isForAll = meaning.isForAll || isFor(meta, className);
        for (const StyleTemplate::Scope::Some &some : scope.some) {
            if (!some.className.isEmpty() && !isFor(meta, some.className))
                continue;
            if (some.name.isEmpty())
                meaning.isForSome = true;
            else
                meaning.names.append(some.name);
        }
        return meaning;
    }

    std::vector<Rules> m_all;
    std::map<std::pair<int, const QMetaObject *>, Meaning> m_meanings;
};

// Qt polishes these together with their parent.
bool hasPlainChildren(const QWidget *widget)
{
    const QObjectList &children = widget->children();
    return std::any_of(children.begin(), children.end(), [](const QObject *object) {
        return object->isWidgetType()
            && (!ThemeSupport::of(static_cast<const QWidget *>(object))
                || static_cast<const QWidget *>(object)->styleSheet().isEmpty());
    });
}

} // namespace

void SharedLook::restyle(const std::vector<ThemeSupport *> &themed)
{
    // Selectors of the application's sheet may be for anybody.
    if (!qApp->styleSheet().isEmpty())
        return;
    std::vector<Turn> turns = findTurns(themed);
    const bool areStored = StyleEngine::whileAtWork([&] {
        for (const Turn &turn : turns) {
            if (turn.look && themed[turn.index])
                themed[turn.index]->d->setNewText(turn.text, turn.content);
        }
    });
    if (!areStored)
        return;
    for (const Turn &turn : turns) {
        if (!themed[turn.index])
            continue;
        ThemeSupport::Private &d = *themed[turn.index]->d;
        d.isCounted = true;
        if (turn.look) {
            // Unless somebody gave it another template, who was told of the palette of one before it.
            if (d.text == turn.text && d.content == turn.content)
                turn.look->giveTo(&d);
        } else {
            d.content = turn.content;
            d.shortText.clear();
            d.give(turn.text, true);
        }
    }
}

// The text of each is made here. Only such are taken that have nothing to report, so nobody else acts meanwhile.
std::vector<SharedLook::Turn> SharedLook::findTurns(const std::vector<ThemeSupport *> &themed)
{
    using Private = ThemeSupport::Private;
    std::vector<Turn> turns;
    AllRules rules;
    std::map<WThemeUtils::AppThemeType, std::shared_ptr<const ColorTable>> tables;
    using Kind = std::tuple<const QMetaObject *, const StyleTemplate *, quint64, bool, QString, std::vector<int>>;
    std::map<Kind, std::shared_ptr<SharedLook>> looks;
    std::unordered_map<const QWidget *, Above> known;
    known[nullptr];
    // Themed ones are known before those below them.
    const std::function<const Above &(const QWidget *)> aboveOf = [&](const QWidget *widget) -> const Above & {
        const auto it = known.find(widget);
        if (it != known.end())
            return it->second;
        Above above = aboveOf(widget->parentWidget());
        above.isKnown = above.isKnown && widget->styleSheet().isEmpty();
        return known.emplace(widget, std::move(above)).first->second;
    };

    for (std::size_t i = 0; i < themed.size(); ++i) {
        const Private &d = *themed[i]->d;
        const QWidget *widget = d.widget;
        if (!widget->isVisible())
            continue;
        const Above &above = aboveOf(widget->parentWidget());
        std::shared_ptr<const ColorTable> &table = tables[d.shownType];
        if (!table)
            table = WThemeUtilsPrivate::colorTable(d.shownType);
        quint64 content = 0;
        const Private::Need need = d.need(*table, &content);
        const bool isNew = need == Private::Colors || (need == Private::Same && above.isNew);
        const bool isKnown =
            above.isKnown && need != Private::Other && (need == Private::None || d.source->scope().isKnown);
        const bool hasSheet = isKnown && need != Private::None;
        const int forOthers = hasSheet ? rules.forOthers(d.source.get(), content) : -1;
        if (!widget->children().isEmpty()) {
            Above below = above;
            below.isKnown = isKnown;
            below.isNew = above.isNew || isNew;
            if (hasSheet)
                below.rules.push_back(forOthers);
            if (hasSheet && d.source->scope().hasOwn)
                below.rules.push_back(rules.own(widget, d.source.get(), content));
            known[widget] = std::move(below);
        }
        if (!isNew || !above.isKnown)
            continue;
        Turn turn {i, content, d.text, nullptr};
        // Polishing ends what a host set of these, and the engine remembers that it did.
        const bool isOfHost =
            d.hasFilledBackground || widget->autoFillBackground() || widget->testAttribute(Qt::WA_OpaquePaintEvent);
        const bool canShare = isKnown && !isOfHost && !widget->isWindow() && !widget->testAttribute(Qt::WA_SetStyle)
            && !hasPlainChildren(widget);
        std::vector<int> from;
        QString name;
        if (canShare && rules.findForWidget(widget, above.rules, forOthers, &from, &name)) {
            // Whether their own rules are for the class or for the name makes no difference to the widget itself.
            const Kind kind {widget->metaObject(), d.source.get(), content, widget->objectName().isEmpty(), name, from};
            std::shared_ptr<SharedLook> &look = looks[kind];
            if (!look)
                look = std::make_shared<SharedLook>();
            turn.look = look;
        } else if (need == Private::Same) {
            continue;
        }
        if (need == Private::Colors)
            turn.text = d.source->expand(WThemeUtilsPrivate::selectorOf(widget), *table);
        turns.push_back(std::move(turn));
    }
    return turns;
}

void SharedLook::giveTo(ThemeSupport::Private *d)
{
    RestyleScope::count(&RestyleReport::restyled);
    const QPointer<QWidget> widget(d->widget);
    d->isAncestorNewer = false;
    d->look = shared_from_this();
    const QPalette palette = widget->palette();
    if (model && palette == before && palette.resolve() == before.resolve()) {
        widget->setPalette(after);
    } else {
        d->isUnread = false;
        const bool isFirst = !model;
        if (isFirst) {
            model = widget;
            before = palette;
        }
        const StyleEngine::Reads reading;
        widget->style()->polish(widget);
        if (widget && isFirst)
            after = widget->palette();
    }
    if (widget)
        widget->update();
}
