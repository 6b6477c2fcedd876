#include "RestylePass_p.h"

#include "SharedLook_p.h"
#include "ThemeSupport.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/theme/WThemeUtils_p.h>

#include <algorithm>
#include <utility>

namespace {

// With the windows that belong to others: their sheets cascade too.
void collect(QWidget *widget, std::vector<ThemeSupport *> *themed)
{
    if (ThemeSupport *support = ThemeSupport::of(widget))
        themed->push_back(support);
    for (QObject *child : widget->children()) {
        if (child->isWidgetType())
            collect(static_cast<QWidget *>(child), themed);
    }
}

// Those whose turn is still to come, of each pass: a slot may start another one.
std::vector<std::vector<ThemeSupport *> *> &runningPasses()
{
    static std::vector<std::vector<ThemeSupport *> *> passes;
    return passes;
}

// Those of the last pass, as long as there are no others.
std::vector<ThemeSupport *> &allThemed()
{
    static std::vector<ThemeSupport *> all;
    return all;
}

std::size_t &createdCount()
{
    static std::size_t count = 0;
    return count;
}

struct Scopes
{
    int open = 0;
    std::vector<QPointer<QWidget>> left;
    bool hasHidden = false;
    RestyleReport counts;
    RestyleReport last;
};
Scopes &scopes()
{
    static Scopes all;
    return all;
}

void polishLeft()
{
    // More may come while these are polished.
    std::vector<QPointer<QWidget>> &left = scopes().left;
    for (std::size_t i = 0; i < left.size(); ++i) {
        const QPointer<QWidget> widget = left[i];
        if (ThemeSupport *support = widget ? ThemeSupport::of(widget) : nullptr)
            support->polishIfNeeded();
    }
    left.clear();
}

// The sheets of a hidden window hold for its dialogs, too.
void polishAboveShownWindows()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const std::vector<QPointer<QWidget>> guarded(windows.begin(), windows.end());
    for (const QPointer<QWidget> &window : guarded) {
        if (window && window->parentWidget() && window->isVisible())
            ThemeSupport::showNewColors(window);
    }
}

std::vector<StyledBelow *> &openLists()
{
    static std::vector<StyledBelow *> open;
    return open;
}

} // namespace

RestyleReport RestyleReport::last()
{
    return scopes().last;
}

RestylePass::RestylePass(QObject *parent)
    : QObject(parent)
{
}

void RestylePass::ensure()
{
    static QPointer<RestylePass> pass;
    auto *app = qobject_cast<IWApplication *>(QCoreApplication::instance());
    if (pass || !app)
        return;
    pass = new RestylePass(app);
    connect(app, &IWApplication::colorSetsChanged, pass, &RestylePass::run);
}

void RestylePass::run()
{
    const RestyleScope scope(RestyleScope::Whole);
    const auto generation = [](WThemeUtils::AppThemeType type) {
        return WThemeUtilsPrivate::colorTable(type)->generation();
    };
    const std::pair<quint64, quint64> generations {generation(WThemeUtils::AppThemeTypeGlobal),
                                                   generation(WThemeUtils::AppThemeTypeInverted)};
    // Announced without a change: nobody gets other colors, so neither their order matters nor what they have in
    // common.
    const bool isNew = std::exchange(m_generations, generations) != generations;
    std::vector<ThemeSupport *> themed = std::exchange(allThemed(), {});
    if (isNew || themed.empty()) {
        themed.clear();
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (!window->parentWidget())
                collect(window, &themed);
        }
    }
    const std::size_t created = createdCount();
    runningPasses().push_back(&themed);
    if (isNew)
        SharedLook::restyle(themed);
    for (std::size_t i = 0; i < themed.size(); ++i) {
        // Where nothing changes, waiting for the memory is most of what it takes.
        if (i + 8 < themed.size() && themed[i + 8])
            __builtin_prefetch(themed[i + 8]);
        if (i + 4 < themed.size() && themed[i + 4])
            themed[i + 4]->prefetch();
        if (themed[i])
            themed[i]->answerThemeChange();
    }
    runningPasses().pop_back();
    if (created == createdCount() && std::find(themed.begin(), themed.end(), nullptr) == themed.end())
        allThemed() = std::move(themed);
}

void RestylePass::noteCreation()
{
    ++createdCount();
    allThemed().clear();
}

void RestylePass::forget(const ThemeSupport *support)
{
    allThemed().clear();
    for (std::vector<ThemeSupport *> *themed : runningPasses())
        std::replace(themed->begin(), themed->end(), const_cast<ThemeSupport *>(support),
                     static_cast<ThemeSupport *>(nullptr));
}

RestyleScope::RestyleScope(Purpose purpose)
    : m_purpose(purpose)
{
    if (scopes().open++ == 0)
        m_time.start();
}

RestyleScope::~RestyleScope()
{
    Scopes &all = scopes();
    if (all.open > 1) {
        --all.open;
        return;
    }
    polishLeft();
    if (std::exchange(all.hasHidden, false)) {
        polishAboveShownWindows();
        polishLeft();
        all.hasHidden = false;
    }
    all.open = 0;
    all.counts.microseconds = m_time.nsecsElapsed() / 1000;
    const RestyleReport report = std::exchange(all.counts, {});
    if (m_purpose == Whole)
        all.last = report;
}

bool RestyleScope::isOpen()
{
    return scopes().open > 0;
}

void RestyleScope::noteHidden()
{
    scopes().hasHidden = true;
}

void RestyleScope::add(QWidget *widget)
{
    scopes().left.emplace_back(widget);
}

void RestyleScope::count(int RestyleReport::*number)
{
    if (isOpen())
        ++(scopes().counts.*number);
}

StyledBelow::StyledBelow(QWidget *widget)
{
    openLists().push_back(this);
    takeFrom(widget);
}

StyledBelow::~StyledBelow()
{
    for (Children &children : m_lists)
        putBack(&children);
    openLists().pop_back();
}

void StyledBelow::putBack(Children *children)
{
    if (!children->parent)
        return;
    const_cast<QObjectList &>(children->parent->children()) = merged(*children);
    std::fill(m_widgets.begin() + std::ptrdiff_t(children->firstTaken),
              m_widgets.begin() + std::ptrdiff_t(children->endTaken), nullptr);
    if (children->connection)
        QObject::disconnect(children->connection);
    children->parent = nullptr;
}

void StyledBelow::putBack(QWidget *widget)
{
    for (StyledBelow *open : openLists()) {
        const auto taken = std::find(open->m_widgets.begin(), open->m_widgets.end(), widget);
        if (taken == open->m_widgets.end())
            continue;
        *taken = nullptr;
        const_cast<QObjectList &>(widget->parent()->children()).append(widget);
    }
}

void StyledBelow::putBackBelow(QWidget *parent)
{
    for (StyledBelow *open : openLists()) {
        for (Children &children : open->m_lists) {
            if (children.parent == parent)
                open->putBack(&children);
        }
    }
}

void StyledBelow::takeFrom(QWidget *parent)
{
    const QObjectList all = parent->children();
    const std::size_t first = m_widgets.size();
    QObjectList kept;
    for (QObject *object : all) {
        auto *child = object->isWidgetType() ? static_cast<QWidget *>(object) : nullptr;
        if (child && ThemeSupport::of(child) && !child->styleSheet().isEmpty())
            m_widgets.emplace_back(child);
        else
            kept.append(object);
    }
    const std::size_t end = m_widgets.size();
    for (QObject *object : qAsConst(kept)) {
        if (object->isWidgetType() && !object->children().isEmpty())
            takeFrom(static_cast<QWidget *>(object));
    }
    if (first == end)
        return;
    QMetaObject::Connection connection;
    if (!ThemeSupport::of(parent))
        connection = QObject::connect(parent, &QObject::destroyed, parent, [parent] { putBackBelow(parent); });
    m_lists.push_back({parent, all, kept, first, end, connection});
    const_cast<QObjectList &>(parent->children()) = kept;
}

// As it was, but for what came and went meanwhile.
QObjectList StyledBelow::merged(const Children &children) const
{
    const QObjectList &now = children.parent->children();
    bool isUntouched = now.isSharedWith(children.kept);
    for (std::size_t i = children.firstTaken; isUntouched && i < children.endTaken; ++i)
        isUntouched = m_widgets[i] && m_widgets[i]->parent() == children.parent;
    if (isUntouched)
        return children.all;
    QObjectList list;
    for (QObject *object : children.all) {
        const bool isTaken =
            std::any_of(m_widgets.begin() + std::ptrdiff_t(children.firstTaken),
                        m_widgets.begin() + std::ptrdiff_t(children.endTaken), [&](const QPointer<QWidget> &widget) {
                            return widget == object && widget->parent() == children.parent;
                        });
        if (isTaken || now.contains(object))
            list.append(object);
    }
    for (QObject *object : now) {
        if (!list.contains(object))
            list.append(object);
    }
    return list;
}
