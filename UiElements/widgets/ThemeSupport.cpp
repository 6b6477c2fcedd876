#include <UiElements/widgets/ThemeSupport.h>

#include "RestylePass_p.h"
#include "StyleEngine_p.h"
#include "ThemeSupport_p.h"
#include "ThemedAccessible_p.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/theme/StyleTemplate_p.h>
#include <UiElements/theme/WThemeUtils_p.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QDebug>
#include <QElapsedTimer>
#include <QEvent>
#include <QFrame>
#include <QHash>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace {

QHash<const QWidget *, ThemeSupport *> &supports()
{
    static QHash<const QWidget *, ThemeSupport *> all;
    return all;
}

QMargins mirroredFor(const QWidget *widget, const QMargins &margins)
{
    return widget->layoutDirection() == Qt::RightToLeft
        ? QMargins(margins.right(), margins.top(), margins.left(), margins.bottom())
        : margins;
}

// The themed widgets that are next below, seen through plain ones; those have no signal of the parent to follow.
void collectBelowPlain(const QWidget *widget, bool throughPlain, std::vector<QPointer<QWidget>> *found)
{
    for (QObject *object : widget->children()) {
        auto *child = object->isWidgetType() ? static_cast<QWidget *>(object) : nullptr;
        if (!child || child->isWindow())
            continue;
        if (!ThemeSupport::of(child))
            collectBelowPlain(child, true, found);
        else if (throughPlain)
            found->emplace_back(child);
    }
}

} // namespace

ThemeSupport::ThemeSupport(QWidget *widget, const Hooks *hooks)
    : d(std::make_unique<Private>(this, widget, hooks))
{
    supports().insert(widget, this);
    RestylePass::noteCreation();
}

ThemeSupport::~ThemeSupport()
{
    if (d->isGone)
        *d->isGone = true;
    d->leaveLook();
    StyledBelow::putBackBelow(d->widget);
    StyledBelow::putBack(d->widget);
    supports().remove(d->widget);
    RestylePass::forget(this);
    QObject::disconnect(d->nameConnection);
    QObject::disconnect(d->fontConnection);
}

ThemeSupport *ThemeSupport::of(const QWidget *widget)
{
    return supports().value(widget);
}

// Qt classes that announce their text or value in the constructor have an accessible interface before the object is a
// themed one. To ask for it makes one where there is none, so it is asked for only where there is.
static bool hasEarlyInterface(const QWidget *widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return QAccessible::isActive() || (button && !button->text().isEmpty())
        || qobject_cast<const QAbstractSpinBox *>(widget);
}

void ThemeSupport::attach()
{
    d->attached = true;
    d->ownClass = d->widget->metaObject();
    RestylePass::ensure();
    ThemedAccessible::install();
    if (hasEarlyInterface(d->widget))
        ThemedAccessible::replaceEarlyInterface(d->widget);
    d->nameConnection = QObject::connect(d->widget, &QObject::objectNameChanged, d->widget, [this] {
        d->expanded.reset();
        d->leaveLook();
        setCss(QString(d->css));
    });
    // By name: the slots are those of the widget's own class, which this code does not know.
    QObject::connect(qApp, SIGNAL(layoutDirectionChanged(Qt::LayoutDirection)), d->widget,
                     SLOT(onLayoutDirectionChanged()));
    QObject::connect(d->widget, SIGNAL(themeTypeChanged()), d->widget, SLOT(onThemeChanged()));
    d->followParent();
    d->shownType = d->effectiveType();
    applyFont();
}

// The same as WThemeUtils::getThemeTypeOfWidget(), without a look-up by name for most.
WThemeUtils::AppThemeType ThemeSupport::Private::effectiveType() const
{
    const QWidget *window = widget->window();
    if (ownType != WThemeUtils::AppThemeTypeGlobal || window == widget)
        return ownType;
    if (const ThemeSupport *other = ThemeSupport::of(window))
        return other->d->ownType;
    // A plain window may have the property all the same.
    const bool hasOne = window->metaObject() != &QWidget::staticMetaObject || !window->dynamicPropertyNames().isEmpty();
    return hasOne ? WThemeUtils::getThemeTypeOfWidget(window) : WThemeUtils::AppThemeTypeGlobal;
}

void ThemeSupport::Private::followParent()
{
    QObject::disconnect(parentConnection);
    parentConnection = {};
    const QWidget *parent = widget->parentWidget();
    if (parent && parent->metaObject()->indexOfSignal("themeTypeChanged()") >= 0) {
        parentConnection =
            QObject::connect(parent, SIGNAL(themeTypeChanged()), widget, SLOT(onParentThemeTypeChanged()));
    }
}

void ThemeSupport::Private::take(const StyleTemplate::Directives &directives)
{
    std::copy(std::begin(directives.colorSetNames), std::end(directives.colorSetNames), colorSetNames);
    trailingText = directives.trailingText;
    borderWidth = directives.borderWidth;
    borderRadius = directives.borderRadius;
    if (directives.focusRadius) {
        WThemeUtilsPrivate::setFocusProperties(widget, directives.borderRadius, directives.rectangularCorners);
    } else if (hasFocusProperties) {
        widget->setProperty("focusBorderRadius", QVariant());
        widget->setProperty("rectangularCornerMask", QVariant());
    }
    hasFocusProperties = directives.focusRadius;
}

bool ThemeSupport::follow(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Polish:
        d->isPolished = true;
        d->hasFilledBackground = d->hasFilledBackground || d->widget->autoFillBackground();
        break;
    case QEvent::StyleChange:
        if (d->isGettingColors)
            return true;
        d->leaveLook();
        d->isUnread = false; // Qt has polished it
        d->isTextSure = false;
        break;
    case QEvent::Paint:
        preparePainting();
        d->isInPaintEvent = true;
        if (d->leavesBackground)
            d->widget->setAttribute(Qt::WA_StyledBackground);
        break;
    case QEvent::ChildAdded:
        d->leaveLook();
        // Rules for a class hold for what is inside, too, and that has states of its own.
        if (!d->shortText.isEmpty()) {
            d->shortText.clear();
            d->giveColors();
        }
        break;
    case QEvent::ParentAboutToChange: StyledBelow::putBack(d->widget); break;
    case QEvent::ParentChange:
        d->leaveLook();
        if (!d->attached)
            break;
        if (d->drawsOwnBox)
            setDrawsOwnBox();
        d->followParent();
        d->noticeThemeType();
        break;
    case QEvent::Show:
        // A plain ancestor may have moved to another window, of which nothing below it is told.
        if (d->attached)
            d->noticeThemeType();
        if (d->isWaiting || d->isAncestorNewer || d->widget->isWindow())
            showNewColors(d->widget);
        break;
    default: break;
    }
    return false;
}

void ThemeSupport::preparePainting()
{
    if (!d->shortText.isEmpty() && !d->isInNormalState()) {
        d->shortText.clear();
        d->isAncestorNewer = true;
    }
    // A picture may be taken of a hidden widget.
    if (d->isWaiting || d->isAncestorNewer || !d->widget->isVisible())
        showNewColors(d->widget);
    if (d->isInPaintEvent)
        return;
    const bool isBorrowing = model();
    if (d->isUnread && !isBorrowing)
        d->readByEngine();
    // Qt would draw it by the widget's own rules.
    if (isBorrowing && d->widget->testAttribute(Qt::WA_StyledBackground)
        && !d->widget->testAttribute(Qt::WA_NoSystemBackground) && !d->widget->testAttribute(Qt::WA_OpaquePaintEvent)) {
        d->leavesBackground = true;
        d->widget->setAttribute(Qt::WA_StyledBackground, false);
    }
}

void ThemeSupport::endPainting()
{
    d->isInPaintEvent = d->leavesBackground = false;
}

void ThemeSupport::drawBackground(QPainter *painter)
{
    if (!d->leavesBackground)
        return;
    const QWidget *by = model() ? model() : d->widget;
    QStyleOption option;
    option.initFrom(d->widget);
    by->style()->drawPrimitive(QStyle::PE_Widget, &option, painter, by);
}

void ThemeSupport::setBorrows()
{
    d->borrows = true;
}

void ThemeSupport::setDrawsOwnBox()
{
    d->drawsOwnBox = true;
    // In a window nothing else would paint what is beside the box.
    d->widget->setAttribute(Qt::WA_NoSystemBackground, !d->widget->isWindow());
}

QString ThemeSupport::css() const
{
    return d->css;
}

void ThemeSupport::setCss(const QString &css)
{
    if (d->css != css || !d->source) {
        d->css = css;
        d->source = StyleTemplate::shared(css);
    }
    if (!d->isGiving || d->expanded == d->source) {
        refresh();
        return;
    }
    // Who answers a style change with another template would have it answered once more, and so on.
    if (!std::exchange(d->isRefreshDue, true))
        QMetaObject::invokeMethod(
            d->widget,
            [this] {
                d->isRefreshDue = false;
                refresh();
            },
            Qt::QueuedConnection);
}

void ThemeSupport::refresh()
{
    if (!d->source)
        return;
    d->noticeForeignSheet();
    d->shownType = d->effectiveType();
    // Held: whoever receives the messages may replace the application's color sets.
    const std::shared_ptr<const ColorTable> table = WThemeUtilsPrivate::colorTable(d->shownType);
    const auto source = d->source; // a slot may set another template meanwhile
    if (source->needsTwoPasses()) {
        d->expandInTwoPasses(*table);
        return;
    }
    const quint64 content = source->contentFor(*table);
    if (d->isUpToDate(source.get(), content)) {
        if (!std::exchange(d->isCounted, false))
            RestyleScope::count(&RestyleReport::unchanged);
        d->hooks->cssChanged(d->widget);
        return;
    }
    // Unless somebody gave the widget another sheet, past this class.
    const bool isOnlyColors = d->expanded == source && (d->isWaiting || d->widget->styleSheet() == d->text);
    if (isOnlyColors && RestyleScope::isOpen() && d->hasToWait() && source->isQuiet(*table)) {
        d->postpone(content);
        d->hooks->cssChanged(d->widget);
        return;
    }
    const QString selector = WThemeUtilsPrivate::selectorOf(d->widget);
    const QString text = source->expand(selector, *table);
    d->take(source->directives());
    if (text.isEmpty())
        return;
    d->expanded = source;
    d->content = content;
    d->shortText.clear();
    if (isOnlyColors && d->canBeShort())
        d->shortText = source->expandNormal(selector, *table);
    d->give(text, isOnlyColors);
    d->hooks->cssChanged(d->widget);
}

// A token stands inside a directive, so other colors may be other directives.
void ThemeSupport::Private::expandInTwoPasses(const ColorTable &table)
{
    const StyleTemplate final = source->withTokensReplaced(table);
    const QString expandedText = final.expand(WThemeUtilsPrivate::selectorOf(widget), table);
    take(final.directives());
    if (expandedText.isEmpty())
        return;
    expanded.reset();
    shortText.clear();
    if (isWaiting || text != expandedText || widget->styleSheet() != expandedText || isAncestorNewer)
        give(expandedText, false);
    else
        RestyleScope::count(&RestyleReport::unchanged);
    hooks->cssChanged(widget);
}

// Of a polished widget Qt tells when anybody sets another sheet.
bool ThemeSupport::Private::hasText() const
{
    return (isTextSure && isPolished) || widget->styleSheet() == text;
}

bool ThemeSupport::Private::isUpToDate(const StyleTemplate *from, quint64 newContent) const
{
    return expanded.get() == from && content == newContent && (isWaiting || (!isAncestorNewer && hasText()));
}

void ThemeSupport::Private::give(const QString &newText, bool isOnlyColors)
{
    leaveLook();
    text = newText;
    isTextDue = isTextSure = false;
    widget->setAttribute(Qt::WA_StyledBackground);
    if (isOnlyColors) {
        if (!isWaiting)
            replaced = widget->styleSheet();
        isWaiting = true;
        if (RestyleScope::isOpen() && hasToWait()) {
            RestyleScope::count(&RestyleReport::deferred);
            RestyleScope::noteHidden();
        } else {
            giveColors();
        }
    } else if (!isPolished && widget->styleSheet().isEmpty()) {
        RestyleScope::count(&RestyleReport::restyled);
        setSheetOfThisOnly(text);
    } else if (widget->styleSheet() != text || isAncestorNewer) {
        RestyleScope::count(&RestyleReport::restyled);
        isWaiting = isAncestorNewer = isUnread = false;
        setSheet(text);
        isTextSure = true;
        support.applyMargins(); // a tree takes those of its frame after its last style event
    }
}

// There may be many hidden pages; the text is made when it is needed.
void ThemeSupport::Private::postpone(quint64 newContent)
{
    leaveLook();
    if (!isWaiting)
        replaced = widget->styleSheet();
    isWaiting = isTextDue = true;
    content = newContent;
    RestyleScope::count(&RestyleReport::deferred);
    RestyleScope::noteHidden();
}

void ThemeSupport::Private::makeText()
{
    if (!std::exchange(isTextDue, false) || !expanded)
        return;
    const auto table = WThemeUtilsPrivate::colorTable(shownType);
    const QString selector = WThemeUtilsPrivate::selectorOf(widget);
    content = expanded->contentFor(*table);
    shortText = canBeShort() ? expanded->expandNormal(selector, *table) : QString();
    text = expanded->expand(selector, *table);
}

// The widget stays as large as it is, so neither it nor what is below has to be laid out anew.
void ThemeSupport::Private::giveColors()
{
    RestyleScope::count(&RestyleReport::restyled);
    leaveLook();
    noticeForeignSheet();
    makeText();
    isGettingColors = true;
    setSheetOfThisOnly(isWaiting ? text : widget->styleSheet());
    isGettingColors = false;
    widget->update();
}

ThemeSupport::Private::Need ThemeSupport::Private::need(const ColorTable &table, quint64 *newContent) const
{
    const QString &sheet = widget->styleSheet();
    if (sheet.isEmpty() && !source)
        return None;
    const bool isSettled = attached && source && expanded == source && isPolished && !isWaiting && !isAncestorNewer
        && widget->isVisible() && shownType == effectiveType() && sheet == text;
    if (!isSettled || !source->isQuiet(table))
        return Other;
    *newContent = source->contentFor(table);
    return *newContent == content ? Same : Colors;
}

// Stored only: Qt's style engine is kept from looking at it now.
void ThemeSupport::Private::setNewText(const QString &newText, quint64 newContent)
{
    text = newText;
    content = newContent;
    shortText.clear();
    isGettingColors = true;
    setSheetOfThisOnly(text);
    isGettingColors = false;
    isUnread = true;
}

void ThemeSupport::Private::leaveLook()
{
    if (look && look->model == widget)
        look->model.clear();
    look.reset();
}

// The engine asks for the sheet now, and is told what it needs; in the middle of the painting it would get the same,
// but ask twice.
void ThemeSupport::Private::readByEngine()
{
    isUnread = false;
    if (canBeShort()) {
        const auto table = WThemeUtilsPrivate::colorTable(shownType);
        if (source->contentFor(*table) == content)
            shortText = source->expandNormal(WThemeUtilsPrivate::selectorOf(widget), *table);
    }
    QStyleOption option;
    option.initFrom(widget);
    const StyleEngine::Reads reading;
    widget->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, widget);
}

const QWidget *ThemeSupport::model() const
{
    const QWidget *model = d->look ? d->look->model.data() : nullptr;
    const QWidget *widget = d->widget;
    if (!model || !d->borrows || model == widget || widget->metaObject() != d->ownClass
        || widget->testAttribute(Qt::WA_SetStyle) || model->testAttribute(Qt::WA_SetStyle)
        || widget->autoFillBackground() != model->autoFillBackground())
        return nullptr;
    // Whether the pointer is over its part that can be clicked only the button knows.
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    if (button && (!button->icon().isNull() || button->underMouse()))
        return nullptr;
    // Of frames the engine looks at this, too.
    const auto *frame = qobject_cast<const QFrame *>(widget);
    if (frame && (frame->lineWidth() == 0) != (static_cast<const QFrame *>(model)->lineWidth() == 0))
        return nullptr;
    return model;
}

// A sheet that was set past this class after the colors changed stays until the next expansion.
void ThemeSupport::Private::noticeForeignSheet()
{
    if (!isWaiting || widget->styleSheet() == replaced)
        return;
    isWaiting = false;
    if (std::exchange(isTextDue, false))
        expanded.reset();
}

// Qt reads and sorts the rules of each widget anew whenever their colors change, and that is most of the time a switch
// of the theme takes. The rules for states in which a widget is not are left out where it is certain that they are not
// missed: nothing inside, and a class whose states are known, which those of a class derived from it are not. They come
// in before it is painted in another state.
bool ThemeSupport::Private::canBeShort() const
{
    const QObjectList &children = widget->children();
    const bool isLeaf =
        std::none_of(children.begin(), children.end(), [](const QObject *child) { return child->isWidgetType(); });
    return isLeaf && isPolished && isInNormalState() && widget->metaObject() == ownClass
        && (qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QLabel *>(widget)
            || widget->inherits("WFrame") || widget->inherits("WWidget"));
}

bool ThemeSupport::Private::isInNormalState() const
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return widget->isEnabled() && !widget->underMouse() && !widget->hasFocus()
        && !(button && (button->isDown() || button->isChecked()));
}

void ThemeSupport::Private::setSheetOfThisOnly(const QString &sheet)
{
    isWaiting = isAncestorNewer = false;
    replaced.clear();
    isUnread = false;
    const RestyleScope scope;
    const StyledBelow below(widget);
    for (const QPointer<QWidget> &child : below.widgets()) {
        Private &other = *ThemeSupport::of(child)->d;
        if (other.isPolished && !other.isAncestorNewer) {
            other.isAncestorNewer = true;
            RestyleScope::add(child);
        }
    }
    setSheet(sheet);
    isTextSure = sheet == text;
}

void ThemeSupport::Private::setSheet(const QString &sheet)
{
#ifndef QT_NO_DEBUG
    warnIfRestless();
#endif
    const StyleEngine::Reads reading;
    hasFilledBackground = hasFilledBackground || widget->autoFillBackground();
    const bool wasGiving = std::exchange(isGiving, true);
    widget->setStyleSheet(sheet);
    isGiving = wasGiving;
}

// A widget that changes with every event costs all the time there is, and nothing else tells which one it is.
void ThemeSupport::Private::warnIfRestless()
{
    constexpr int sane = 100; // for each second
    static const QElapsedTimer clock = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    const qint64 second = clock.elapsed() / 1000;
    if (std::exchange(styledIn, second) != second)
        timesStyled = 0;
    if (++timesStyled == sane && !std::exchange(isReportedRestless, true))
        qWarning() << "ThemeSupport - Restyled" << sane << "times within a second:" << widget;
}

void ThemeSupport::polishIfNeeded()
{
    if (d->isAncestorNewer && d->hasToWait())
        RestyleScope::noteHidden();
    else if (d->isAncestorNewer)
        d->giveColors();
}

// The widgets of a page are told from the innermost out, and styled from the outermost in. What one is inside of may
// be hidden even so: the window of a dialog, or all of it while a picture is taken.
void ThemeSupport::showNewColors(QWidget *widget)
{
    const RestyleScope scope;
    std::vector<QPointer<QWidget>> chain;
    for (QWidget *w = widget; w; w = w->parentWidget()) {
        if (ThemeSupport::of(w))
            chain.emplace_back(w);
    }
    for (auto it = chain.rbegin(); it != chain.rend(); ++it) {
        ThemeSupport *other = *it ? ThemeSupport::of(*it) : nullptr;
        if (other && (other->d->isWaiting || other->d->isAncestorNewer))
            other->d->giveColors();
    }
}

QString ThemeSupport::styleSheet() const
{
    d->noticeForeignSheet();
    if (d->isWaiting)
        d->giveColors();
    return d->widget->styleSheet();
}

void ThemeSupport::applyTheme()
{
    // What a QPointer would look at is nowhere near: of a thousand widgets it takes as long as all the rest.
    bool isGone = false;
    bool *const outer = std::exchange(d->isGone, &isGone);
    refresh();
    if (isGone) {
        if (outer)
            *outer = true;
        return;
    }
    d->isGone = outer;
    applyFont();
}

void ThemeSupport::beginEngineReads()
{
    StyleEngine::beginReads();
}

void ThemeSupport::endEngineReads()
{
    StyleEngine::endReads();
}

// Qt's style engine takes the sheet of a widget, and of each of its ancestors, from the property "styleSheet" and not
// from QWidget::styleSheet(). Handed a template it would find no sheet in it and the widget would lose its look;
// people, forms and tools ask the same property for the template. Nothing tells who asks. But the engine reads the text
// anew only as long as it has not parsed the widget's sheet, and otherwise just looks whether there is one. So it is
// made to parse the expanded text first; after that the template does no harm, whoever it was that asked.
QString ThemeSupport::styleSheetProperty() const
{
    if (StyleEngine::isReading()) {
        ++StyleEngine::textsRead();
        const QString sheet = d->widget->styleSheet();
        return !d->shortText.isEmpty() && sheet == d->text ? d->shortText : sheet;
    }
    const QString sheet = d->widget->styleSheet();
    if (sheet.isEmpty() || !QCoreApplication::instance())
        return d->css;
    // The look outlives an emptied template, and to the engine an empty answer would mean that there is no sheet.
    if (d->css.isEmpty())
        return sheet;
    const quint64 before = StyleEngine::textsRead();
    {
        const StyleEngine::Reads reading;
        d->widget->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, d->widget);
    }
    // Nothing was read: the sheet is parsed already, or the engine, busy elsewhere, would not look at this widget.
    const bool parsed = StyleEngine::textsRead() != before || !StyleEngine::isAtWork();
    return parsed ? d->css : sheet;
}

QString ThemeSupport::colorSetName(WThemeUtils::ColorSetType type) const
{
    return type >= 0 && type < 3 ? d->colorSetNames[type] : QString();
}

QString ThemeSupport::trailingText() const
{
    return d->trailingText;
}

int ThemeSupport::borderWidth() const
{
    return d->borderWidth;
}

int ThemeSupport::borderRadius() const
{
    return d->borderRadius;
}

void ThemeSupport::prefetch() const
{
    const char *const start = reinterpret_cast<const char *>(d.get());
    for (std::size_t i = 0; i < sizeof(Private); i += 64)
        __builtin_prefetch(start + i);
}

void ThemeSupport::answerThemeChange()
{
    d->hooks->onThemeChanged(d->widget);
}

QString ThemeSupport::themeType() const
{
    return WThemeUtils::themeTypeToString(d->ownType);
}

void ThemeSupport::setThemeType(const QString &themeType)
{
    const WThemeUtils::AppThemeType type = WThemeUtils::stringToThemeType(themeType);
    if (!themeType.isEmpty() && WThemeUtils::themeTypeToString(type) != themeType)
        qWarning() << "Unknown theme type, taken as global:" << themeType;
    if (d->ownType == type)
        return;
    d->ownType = type;
    d->announceThemeType();
}

void ThemeSupport::onParentThemeTypeChanged()
{
    d->announceThemeType();
}

void ThemeSupport::Private::announceThemeType()
{
    const RestyleScope scope;
    shownType = effectiveType();
    std::vector<QPointer<QWidget>> below;
    collectBelowPlain(widget, false, &below);
    const QPointer<QWidget> self(widget);
    hooks->themeTypeChanged(widget);
    for (const QPointer<QWidget> &child : below) {
        ThemeSupport *other = self && child ? ThemeSupport::of(child) : nullptr;
        if (other)
            other->d->hooks->onParentThemeTypeChanged(child);
    }
}

// What is inherited may have changed without a word from above.
void ThemeSupport::Private::noticeThemeType()
{
    if (shownType != effectiveType())
        hooks->onParentThemeTypeChanged(widget);
}

QAccessible::Role ThemeSupport::accessibleRole() const
{
    return d->role;
}

void ThemeSupport::setAccessibleRole(QAccessible::Role role)
{
    d->role = role;
    ThemedAccessible::replaceEarlyInterface(d->widget);
}

QString ThemeSupport::elementUniqueId() const
{
    return d->elementUniqueId;
}

void ThemeSupport::setElementUniqueId(const QString &id)
{
    d->elementUniqueId = id;
    ThemedAccessible::replaceEarlyInterface(d->widget);
}

WFont::Token ThemeSupport::fontToken() const
{
    return d->fontToken;
}

void ThemeSupport::setFontToken(WFont::Token token)
{
    if (token < WFont::Default || token > WFont::Display) {
        qWarning("Invalid font token! This should never happen!");
        return;
    }
    d->fontToken = token;
    applyFont();
}

FontManagerEnum::FontType ThemeSupport::fontType() const
{
    return d->fontType;
}

void ThemeSupport::setFontType(FontManagerEnum::FontType type)
{
    if (type < FontManagerEnum::Default || type > FontManagerEnum::MeetingView) {
        qWarning() << "Invalid font type:" << int(type);
        return;
    }
    d->fontType = type;
    applyFont();
}

void ThemeSupport::applyFont()
{
    // A program with a plain QApplication has no scaled sets; its elements keep the unscaled font of their token.
    const auto *app = qobject_cast<WApplication *>(QCoreApplication::instance());
    WFontManager *manager = app ? app->getWFontManager() : nullptr;
    WScaledFonts *fonts = manager ? manager->getFont(d->fontType) : nullptr;
    if (d->scaledFonts != fonts) {
        QObject::disconnect(d->fontConnection);
        d->scaledFonts = fonts;
        if (fonts)
            d->fontConnection =
                QObject::connect(fonts, &WScaledFonts::fontTokenChanged, d->widget, [this] { applyFont(); });
    }
    const QFont font = fonts ? fonts->getFont(d->fontToken) : QFont(WFont(d->fontToken, false));
    // What comes of it depends on fonts around the widget, too: nobody has touched it if it is the very same object.
    if (font.isCopyOf(d->givenFont) && d->widget->font().isCopyOf(d->resultingFont))
        return;
    d->widget->setFont(font);
    d->givenFont = font;
    d->resultingFont = d->widget->font();
}

void ThemeSupport::setContentsMargins(const QMargins &margins)
{
    if (!d->margins)
        d->margins = std::make_unique<QMargins>();
    *d->margins = margins;
    d->widget->setContentsMargins(mirroredFor(d->widget, margins));
}

void ThemeSupport::setLayoutContentsMargins(const QMargins &margins)
{
    QLayout *layout = d->widget->layout();
    if (!layout)
        return;
    if (!d->layoutMargins)
        d->layoutMargins = std::make_unique<QMargins>();
    *d->layoutMargins = margins;
    layout->setContentsMargins(mirroredFor(d->widget, margins));
}

void ThemeSupport::applyMargins()
{
    if (d->margins)
        setContentsMargins(QMargins(*d->margins));
    if (d->layoutMargins)
        setLayoutContentsMargins(QMargins(*d->layoutMargins));
}
