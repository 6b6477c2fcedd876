#include <UiElements/keyboard/TabOrderUtils.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QScrollArea>
#include <QSet>
#include <QStyleHints>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace {

Qt::FocusReason tabReason(bool forward)
{
    return forward ? Qt::TabFocusReason : Qt::BacktabFocusReason;
}

bool complain(const char *function)
{
    qWarning("TabOrderUtils::%s - The argument must not be null", function);
    return false;
}

/// Where the focus of a widget ends up.
QWidget *focusTarget(QWidget *widget)
{
    while (widget->focusProxy())
        widget = widget->focusProxy();
    return widget;
}

/// The items of a view at which Tab stops, in order.
QVector<QQuickItem *> itemStops(const QQuickWidget *view)
{
    QVector<QQuickItem *> items;
    QSet<QQuickItem *> seen;
    QQuickItem *const content = view->quickWindow()->contentItem();
    // The content item stands before the first one, and is returned when there is none.
    for (QQuickItem *item = content->nextItemInFocusChain(); item != content && !seen.contains(item);
         item = item->nextItemInFocusChain()) {
        seen << item;
        items << item;
    }
    return items;
}

/// The item that has the focus when the view has it; the content item without one.
QQuickItem *focusedItem(const QQuickWidget *view)
{
    QQuickItem *item = view->quickWindow()->contentItem();
    while (item->isFocusScope() && item->scopedFocusItem())
        item = item->scopedFocusItem();
    return item;
}

bool isLetThrough(const QQuickWidget *view);

/// One widget or item of a window; `stop` is where Tab stops there, or null.
struct Place
{
    const QObject *object;
    QObject *stop;
    QQuickWidget *view;
};

void addItems(QVector<Place> &places, QQuickWidget *view, QQuickItem *item, const QVector<QQuickItem *> &stops)
{
    places << Place {item, stops.contains(item) ? item : nullptr, view};
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        addItems(places, view, child, stops);
}

/// Whether Tab stops at the widget; what is inside a view does not matter here.
bool takesTab(const QWidget *widget, const QWidget *target, const QWidget *window)
{
    const bool all = QGuiApplication::styleHints()->tabFocusBehavior() == Qt::TabFocusAllControls;
    const Qt::FocusPolicy needed = all ? Qt::TabFocus : Qt::StrongFocus;
    // A window that is not shown yet has the order that it will have.
    const auto canBe = [window](const QWidget *w) {
        return w->window() == window && w->isEnabled() && (w == window || w->isVisibleTo(window));
    };
    return (target->focusPolicy() & needed) == needed && canBe(widget) && canBe(target);
}

/// Everything in the window in the order of Tab, the window itself first.
QVector<Place> placesOf(const QWidget *window)
{
    QVector<Place> places;
    QSet<QObject *> stops;
    auto *const first = const_cast<QWidget *>(window);
    QWidget *widget = first;
    do {
        QWidget *const target = focusTarget(widget);
        // Only once: the line of a spin box hands the focus to the box.
        const bool isStop = takesTab(widget, target, window) && !stops.contains(target);
        auto *const view = qobject_cast<QQuickWidget *>(target);
        if (!view || (view != widget && !isStop)) {
            places << Place {widget, isStop ? target : nullptr, nullptr};
        } else {
            const QVector<QQuickItem *> items = isStop ? itemStops(view) : QVector<QQuickItem *>();
            places << Place {widget, isStop && items.isEmpty() && !isLetThrough(view) ? target : nullptr, nullptr};
            addItems(places, view, view->quickWindow()->contentItem(), items);
        }
        if (isStop)
            stops << target;
        widget = widget->nextInFocusChain();
    } while (widget != first);
    return places;
}

/// The first stop from an index on that is outside a widget; null when there is none in the whole round.
const Place *findStop(const QVector<Place> &places, int start, bool forward, const QWidget *outside = nullptr)
{
    const int count = places.size();
    for (int i = 0; i < count; ++i) {
        const Place &place = places.at((start + (forward ? i : count - i)) % count);
        if (!place.stop)
            continue;
        const auto *widget = place.view ? place.view : static_cast<const QWidget *>(place.stop);
        if (!outside || (widget != outside && !outside->isAncestorOf(widget)))
            return &place;
    }
    return nullptr;
}

/// Where Tab goes on from an object; -1 for what is not in the window.
int indexOf(const QVector<Place> &places, const QObject *object)
{
    const auto find = [&places](const QObject *sought) {
        const auto it = std::find_if(places.begin(), places.end(),
                                     [sought](const Place &p) { return p.object == sought || p.stop == sought; });
        return it == places.end() ? -1 : int(it - places.begin());
    };
    if (auto *widget = qobject_cast<const QWidget *>(object))
        return find(focusTarget(const_cast<QWidget *>(widget)));
    const int found = find(object);
    if (found < 0)
        return found;
    // An item inside a stop goes on from there, as the text of a field does.
    for (auto *item = qobject_cast<const QQuickItem *>(object); item; item = item->parentItem()) {
        const int outer = find(item);
        if (places.at(outer).stop)
            return outer;
    }
    const int view = find(places.at(found).view);
    return places.at(view).stop ? view : found;
}

/// The index to look on from, one step away from `from`.
int startIndex(const QVector<Place> &places, int from, bool forward)
{
    if (from < 0)
        return forward ? 0 : places.size() - 1;
    return (from + (forward ? 1 : places.size() - 1)) % places.size();
}

void focusPlace(const Place &place, bool forward)
{
    QWidget *const widget = place.view ? place.view : static_cast<QWidget *>(place.stop);
    const QPointer<QObject> stop(place.stop);
    const QPointer<QWidget> guard(widget);
    widget->setFocus(tabReason(forward));
    if (!stop || !guard)
        return;
    if (auto *item = qobject_cast<QQuickItem *>(stop.data()))
        item->forceActiveFocus(tabReason(forward));
    if (!guard)
        return;
    // As QScrollArea does for the keys that reach it.
    for (QWidget *outer = widget->parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(outer))
            area->ensureWidgetVisible(widget);
    }
}

bool moveFocus(QWidget *window, bool forward)
{
    window = window->window();
    const QObject *from = window->focusWidget();
    if (const auto *view = qobject_cast<const QQuickWidget *>(from))
        from = focusedItem(view);
    const QVector<Place> places = placesOf(window);
    const int index = from ? indexOf(places, from) : -1;
    const Place *place = findStop(places, startIndex(places, index, forward), forward);
    if (place)
        focusPlace(*place, forward);
    return place;
}

/// Gives the widgets this order, from where the earliest of them stands.
void link(const QVector<QWidget *> &order)
{
    QWidget *const window = order.constFirst()->window();
    QWidget *before = window;
    for (QWidget *widget = window; !order.contains(widget); widget = widget->nextInFocusChain()) {
        if (!widget->focusProxy())
            before = widget;
    }
    // The chain is a ring, which Qt does not turn: the last widget of a window counts as standing before the first one.
    // It ignores widgets without focus.
    const Qt::FocusPolicy policy = before->focusPolicy();
    before->setFocusPolicy(Qt::FocusPolicy(policy | Qt::TabFocus));
    QWidget::setTabOrder(before, order.constFirst());
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order.at(i - 1), order.at(i));
    before->setFocusPolicy(policy);
}

// --- reading order

/// What setReadingOrder() places: a widget with everything inside it, in order.
struct Block
{
    QRect rect;
    QVector<QWidget *> widgets;
};

bool inOneRow(const Block &a, const Block &b)
{
    const int shared = qMin(a.rect.bottom(), b.rect.bottom()) - qMax(a.rect.top(), b.rect.top()) + 1;
    return 2 * shared > qMin(a.rect.height(), b.rect.height());
}

QVector<Block> takeRow(QVector<Block> &blocks)
{
    QVector<Block> row {blocks.takeFirst()};
    for (int i = 0; i < row.size(); ++i) {
        for (int j = 0; j < blocks.size();) {
            if (inOneRow(row.at(i), blocks.at(j)))
                row << blocks.takeAt(j);
            else
                ++j;
        }
    }
    return row;
}

void read(QVector<Block> blocks, Qt::LayoutDirection direction, QVector<QWidget *> &order)
{
    std::stable_sort(blocks.begin(), blocks.end(),
                     [](const Block &a, const Block &b) { return a.rect.top() < b.rect.top(); });
    while (!blocks.isEmpty()) {
        QVector<Block> row = takeRow(blocks);
        // The tallest one divides the row, since there may be several rows on either side of it.
        const auto tallest = std::max_element(
            row.begin(), row.end(), [](const Block &a, const Block &b) { return a.rect.height() < b.rect.height(); });
        const Block middle = *tallest;
        row.erase(tallest);
        QVector<Block> before;
        QVector<Block> after;
        for (const Block &block : qAsConst(row)) {
            const int offset = block.rect.center().x() - middle.rect.center().x();
            ((direction == Qt::RightToLeft ? offset > 0 : offset < 0) ? before : after) << block;
        }
        read(before, direction, order);
        order << middle.widgets;
        read(after, direction, order);
    }
}

QVector<QWidget *> readingOrder(QWidget *container)
{
    QVector<QWidget *> order;
    // Not what hands its focus on, as a compound widget does to a part of it and the line of a spin box to the box.
    if (container->focusPolicy() != Qt::NoFocus && !container->focusProxy())
        order << container;
    QVector<Block> blocks;
    for (QObject *object : container->children()) {
        auto *child = qobject_cast<QWidget *>(object);
        if (!child || child->isWindow())
            continue;
        const QVector<QWidget *> inside = readingOrder(child);
        if (!inside.isEmpty())
            blocks << Block {child->geometry(), inside};
    }
    read(blocks, container->layoutDirection(), order);
    return order;
}

// --- views

/// Stands at the end of a view's items while they are asked. Tab reaches it exactly when no item took the key and none
/// follows, whatever scopes, handlers and popups there are.
class Gate : public QQuickItem
{
public:
    Gate(QQuickItem *content, bool forward)
        : QQuickItem(content)
    {
        if (!forward)
            stackBefore(content->childItems().constFirst());
        setActiveFocusOnTab(true);
        // By these Qt recognizes an editor, where Tab goes to nothing else.
        setProperty("readOnly", false);
        setProperty("text", QString());
    }
};

class TabThrough : public QObject
{
public:
    explicit TabThrough(QQuickWidget *view)
        : QObject(view)
        , m_view(view)
    {
        view->installEventFilter(this);
    }

    static bool isOn(const QQuickWidget *view)
    {
        const QObjectList &children = view->children();
        return std::any_of(children.begin(), children.end(),
                           [](QObject *child) { return dynamic_cast<TabThrough *>(child); });
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress: return keyPressed(static_cast<QKeyEvent *>(event));
        case QEvent::FocusIn: return enter(static_cast<QFocusEvent *>(event)->reason());
        case QEvent::Hide:
        case QEvent::EnabledChange:
            // Qt sends the items a Tab in the same case, and thinks that was it. With the whole window, nothing moves.
            if ((m_view->isHidden() || !m_view->isEnabled()) && !m_view->isWindow()
                && m_view->window()->focusWidget() == m_view)
                TabOrderUtils::focusNextPrevChild(m_view, true);
            return false;
        default: return false;
        }
    }

private:
    bool enter(Qt::FocusReason reason)
    {
        if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason)
            return false;
        const bool forward = reason == Qt::TabFocusReason;
        if (focusEnd(forward) || !TabOrderUtils::focusNextPrevChild(m_view, forward))
            return false;
        // QWidget::setFocus() of the view has yet to tell assistive tools that the focus is here.
        if (QAccessible::isActive()) {
            QTimer::singleShot(0, qApp, [] {
                if (QObject *object = QGuiApplication::focusObject()) {
                    QAccessibleEvent focus(object, QAccessible::Focus);
                    QAccessible::updateAccessibility(&focus);
                }
            });
        }
        return true;
    }

    /// The item at which Tab comes in. It is not yet active when the view has no focus.
    bool focusEnd(bool forward)
    {
        QQuickItem *const content = m_view->quickWindow()->contentItem();
        QQuickItem *const item = content->nextItemInFocusChain(forward);
        if (item == content)
            return false;
        item->forceActiveFocus(tabReason(forward));
        return true;
    }

    bool keyPressed(QKeyEvent *event)
    {
        if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return false;
        if (event->key() != Qt::Key_Tab && event->key() != Qt::Key_Backtab)
            return false;
        const bool forward = event->key() == Qt::Key_Tab && !(event->modifiers() & Qt::ShiftModifier);

        const QPointer<TabThrough> self(this);
        QQuickWindow *const window = m_view->quickWindow();
        // From an item that was hidden while it had the focus Qt may go to one that is no stop.
        if (!focusedItem(m_view)->isVisible()) {
            moveFocus(m_view, forward);
            return true;
        }
        const QPointer<QQuickItem> focused(window->contentItem()->scopedFocusItem());
        const QPointer<Gate> gate(new Gate(window->contentItem(), forward));
        QKeyEvent copy(event->type(), event->key(), event->modifiers(), event->nativeScanCode(),
                       event->nativeVirtualKey(), event->nativeModifiers(), event->text(), event->isAutoRepeat(),
                       ushort(event->count()));
        copy.setTimestamp(event->timestamp());
        QCoreApplication::sendEvent(window, &copy);
        if (!self)
            return true;
        const bool leaves = gate && gate->hasFocus();
        // First the focus leaves the view, then the gate goes: no item inside becomes active in between.
        const bool left = leaves && TabOrderUtils::focusNextPrevChild(m_view, forward);
        if (!self)
            return true;
        delete gate;
        // The item is the one to come back to when the view gets the focus otherwise than by Tab.
        if (leaves && (left || !focusEnd(forward)) && focused)
            focused->setFocus(true);
        event->setAccepted(copy.isAccepted());
        return true;
    }

    QQuickWidget *const m_view;
};

bool isLetThrough(const QQuickWidget *view)
{
    return TabThrough::isOn(view);
}

} // namespace

void TabOrderUtils::setTabOrder(const QVector<QWidget *> &widgets)
{
    const QWidget *window = nullptr;
    for (const QWidget *widget : widgets) {
        if (widget && window && widget->window() != window) {
            qWarning("TabOrderUtils::setTabOrder - The widgets are not in one window");
            return;
        }
        if (widget)
            window = widget->window();
    }
    QVector<QWidget *> order;
    for (QWidget *widget : widgets) {
        if (!widget)
            qWarning("TabOrderUtils::setTabOrder - A widget is null");
        else if (order.contains(widget))
            qWarning("TabOrderUtils::setTabOrder - A widget is listed twice");
        else
            order << widget;
    }
    // QWidget::setTabOrder() ignores a widget without focus, and the chain would be torn there.
    QVector<QWidget *> chain;
    for (QWidget *widget : qAsConst(order)) {
        if (widget->focusPolicy() != Qt::NoFocus) {
            chain << widget;
            continue;
        }
        for (QWidget *w = widget->nextInFocusChain(); w != widget; w = w->nextInFocusChain()) {
            if (widget->isAncestorOf(w) && w->focusPolicy() != Qt::NoFocus && !w->focusProxy() && !order.contains(w))
                chain << w;
        }
    }
    if (!chain.isEmpty())
        link(chain);
}

void TabOrderUtils::setReadingOrder(QWidget *container)
{
    if (!container) {
        complain("setReadingOrder");
        return;
    }
    setTabOrder(readingOrder(container));
}

QVector<QObject *> TabOrderUtils::stops(const QWidget *window)
{
    QVector<QObject *> stops;
    if (!window) {
        complain("stops");
        return stops;
    }
    const QVector<Place> places = placesOf(window->window());
    for (const Place &place : places) {
        if (place.stop)
            stops << place.stop;
    }
    return stops;
}

QObject *TabOrderUtils::nextStop(const QWidget *window, const QObject *from, bool forward)
{
    if (!window) {
        complain("nextStop");
        return nullptr;
    }
    const QVector<Place> places = placesOf(window->window());
    const int index = from ? indexOf(places, from) : -1;
    if (from && index < 0) {
        qWarning("TabOrderUtils::nextStop - The object is not in the window");
        return nullptr;
    }
    const Place *place = findStop(places, startIndex(places, index, forward), forward);
    return place ? place->stop : nullptr;
}

bool TabOrderUtils::focusNext(QWidget *window)
{
    return window ? moveFocus(window, true) : complain("focusNext");
}

bool TabOrderUtils::focusPrevious(QWidget *window)
{
    return window ? moveFocus(window, false) : complain("focusPrevious");
}

bool TabOrderUtils::focusNextPrevChild(QWidget *widget, bool next)
{
    if (!widget)
        return complain("focusNextPrevChild");
    const QVector<Place> places = placesOf(widget->window());
    // A container may stand anywhere in the chain, also behind what is inside it.
    const QWidget *focused = widget->window()->focusWidget();
    const int from = indexOf(places, focused && widget->isAncestorOf(focused) ? focused : widget);
    const Place *place = findStop(places, startIndex(places, from, next), next, widget);
    if (place)
        focusPlace(*place, next);
    return place;
}

void TabOrderUtils::letTabThrough(QQuickWidget *view)
{
    if (!view)
        complain("letTabThrough");
    else if (!TabThrough::isOn(view))
        new TabThrough(view);
}
