#include <UiElements/widgets/ThemeSupport.h>

#include "RestylePass_p.h"
#include "ThemedAccessible_p.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/theme/StyleTemplate_p.h>
#include <UiElements/theme/WThemeUtils_p.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QDebug>
#include <QEvent>
#include <QFrame>
#include <QHash>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace {

QHash<const QWidget *, ThemeSupport *> &supports()
{
    static QHash<const QWidget *, ThemeSupport *> all;
    return all;
}

// While this is not zero, whoever reads the property "styleSheet" is Qt's style engine.
int engineReads = 0;
// How often the engine has been given the expanded text.
quint64 expandedTextsRead = 0;

class EngineReads
{
public:
    EngineReads() { ++engineReads; }
    ~EngineReads() { --engineReads; }
    EngineReads(const EngineReads &) = delete;
    EngineReads &operator=(const EngineReads &) = delete;
};

// Qt's style sheet style refuses, and hands over to its base style, every call made while another instance of it is at
// work. So a widget with a border that no base style draws tells whether one is.
class EngineProbe
{
public:
    static bool engineIsAtWork()
    {
        static EngineProbe probe;
        if (!probe.m_frame) {
            probe.m_frame = new QFrame;
            probe.m_frame->setObjectName(QStringLiteral("uielements_engine_probe"));
            probe.m_frame->setStyleSheet(QStringLiteral("QFrame { border: 77px solid black; }"));
            qAddPostRoutine([] { delete probe.m_frame; });
        }
        return probe.m_frame->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, probe.m_frame) != 77;
    }

private:
    QPointer<QFrame> m_frame;
};

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

class ThemeSupport::Private
{
public:
    Private(ThemeSupport *s, QWidget *w, const Hooks *h)
        : support(*s)
        , widget(w)
        , hooks(h)
    {
    }

    WThemeUtils::AppThemeType effectiveType() const;
    void followParent();
    void announceThemeType();
    void noticeThemeType();
    void take(const StyleTemplate::Directives &directives);
    void expandInTwoPasses(const ColorTable &table);
    bool isUpToDate(const StyleTemplate *from, quint64 content) const;
    void give(const QString &text, bool isOnlyColors);
    void giveColors();
    void noticeForeignSheet();
    void setSheetOfThisOnly(const QString &sheet);
    bool canBeShort() const;
    bool isInNormalState() const;
    bool hasToWait() const { return isPolished && !widget->isVisible(); }

    ThemeSupport &support;
    QWidget *const widget;
    const Hooks *const hooks;
    bool attached = false;
    const QMetaObject *ownClass = nullptr; // the one that called attach()

    QString css;
    std::shared_ptr<const StyleTemplate> source; // of css, once it was expanded
    // What was expanded last: from which template, and what came of it. Empty: nothing came of any so far.
    std::shared_ptr<const StyleTemplate> expanded;
    quint64 content = 0;
    QString text;
    QString shortText; // what Qt's style engine is told instead, if anything
    bool isWaiting = false; // to be given to Qt
    QString replaced; // by what waits
    bool isAncestorNewer = false; // than what the widget was polished with
    bool isPolished = false; // was shown, or measured
    bool isGettingColors = false;

    QString colorSetNames[3];
    QString trailingText;
    int borderWidth = 0;
    int borderRadius = 0;
    bool hasFocusProperties = false;
    bool drawsOwnBox = false;
    WThemeUtils::AppThemeType ownType = WThemeUtils::AppThemeTypeGlobal;
    WThemeUtils::AppThemeType shownType = WThemeUtils::AppThemeTypeGlobal;

    WFont::Token fontToken = WFont::Default;
    FontManagerEnum::FontType fontType = FontManagerEnum::Default;
    QAccessible::Role role = QAccessible::NoRole;
    QString elementUniqueId;
    std::unique_ptr<QMargins> margins;
    std::unique_ptr<QMargins> layoutMargins;

    QMetaObject::Connection nameConnection;
    QMetaObject::Connection parentConnection;
    QMetaObject::Connection fontConnection;
    QPointer<WScaledFonts> scaledFonts;
    QFont givenFont, resultingFont;
};

ThemeSupport::ThemeSupport(QWidget *widget, const Hooks *hooks)
    : d(std::make_unique<Private>(this, widget, hooks))
{
    supports().insert(widget, this);
}

ThemeSupport::~ThemeSupport()
{
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
    case QEvent::Polish: d->isPolished = true; break;
    case QEvent::StyleChange: return d->isGettingColors;
    case QEvent::Paint: preparePainting(); break;
    case QEvent::ChildAdded:
        // Rules for a class hold for what is inside, too, and that has states of its own.
        if (!d->shortText.isEmpty()) {
            d->shortText.clear();
            d->giveColors();
        }
        break;
    case QEvent::ParentAboutToChange: StyledBelow::putBack(d->widget); break;
    case QEvent::ParentChange:
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
    refresh();
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
        RestyleScope::count(&RestyleReport::unchanged);
        d->hooks->cssChanged(d->widget);
        return;
    }
    // Unless somebody gave the widget another sheet, past this class.
    const bool isOnlyColors = d->expanded == source && (d->isWaiting || d->widget->styleSheet() == d->text);
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
    if (text != expandedText || widget->styleSheet() != expandedText || isAncestorNewer)
        give(expandedText, false);
    else
        RestyleScope::count(&RestyleReport::unchanged);
    hooks->cssChanged(widget);
}

bool ThemeSupport::Private::isUpToDate(const StyleTemplate *from, quint64 newContent) const
{
    return expanded.get() == from && content == newContent
        && (isWaiting || (!isAncestorNewer && widget->styleSheet() == text));
}

void ThemeSupport::Private::give(const QString &newText, bool isOnlyColors)
{
    text = newText;
    widget->setAttribute(Qt::WA_StyledBackground);
    if (isOnlyColors) {
        isWaiting = true;
        replaced = widget->styleSheet();
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
        isWaiting = isAncestorNewer = false;
        const EngineReads reading;
        widget->setStyleSheet(text);
        support.applyMargins(); // a tree takes those of its frame after its last style event
    }
}

// The widget stays as large as it is, so neither it nor what is below has to be laid out anew.
void ThemeSupport::Private::giveColors()
{
    RestyleScope::count(&RestyleReport::restyled);
    noticeForeignSheet();
    isGettingColors = true;
    setSheetOfThisOnly(isWaiting ? text : widget->styleSheet());
    isGettingColors = false;
    widget->update();
}

// A sheet that was set past this class after the colors changed stays until the next expansion.
void ThemeSupport::Private::noticeForeignSheet()
{
    if (isWaiting && widget->styleSheet() != replaced)
        isWaiting = false;
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
    const RestyleScope scope;
    const StyledBelow below(widget);
    for (const QPointer<QWidget> &child : below.widgets()) {
        Private &other = *ThemeSupport::of(child)->d;
        if (other.isPolished && !other.isAncestorNewer) {
            other.isAncestorNewer = true;
            RestyleScope::add(child);
        }
    }
    const EngineReads reading;
    widget->setStyleSheet(sheet);
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
    const QPointer<QWidget> alive(d->widget);
    refresh();
    if (alive)
        applyFont();
}

void ThemeSupport::beginEngineReads()
{
    ++engineReads;
}

void ThemeSupport::endEngineReads()
{
    --engineReads;
}

// Qt's style engine takes the sheet of a widget, and of each of its ancestors, from the property "styleSheet" and not
// from QWidget::styleSheet(). Handed a template it would find no sheet in it and the widget would lose its look;
// people, forms and tools ask the same property for the template. Nothing tells who asks. But the engine reads the text
// anew only as long as it has not parsed the widget's sheet, and otherwise just looks whether there is one. So it is
// made to parse the expanded text first; after that the template does no harm, whoever it was that asked.
QString ThemeSupport::styleSheetProperty() const
{
    if (engineReads > 0) {
        ++expandedTextsRead;
        const QString sheet = d->widget->styleSheet();
        return !d->shortText.isEmpty() && sheet == d->text ? d->shortText : sheet;
    }
    const QString sheet = d->widget->styleSheet();
    if (sheet.isEmpty() || !QCoreApplication::instance())
        return d->css;
    // The look outlives an emptied template, and to the engine an empty answer would mean that there is no sheet.
    if (d->css.isEmpty())
        return sheet;
    const quint64 before = expandedTextsRead;
    {
        const EngineReads reading;
        d->widget->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, d->widget);
    }
    // Nothing was read: the sheet is parsed already, or the engine, busy elsewhere, would not look at this widget.
    const bool parsed = expandedTextsRead != before || !EngineProbe::engineIsAtWork();
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
