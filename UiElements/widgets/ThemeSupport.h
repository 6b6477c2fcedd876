#pragma once

#include <UiElements/app/FontManagerEnum.h>
#include <UiElements/app/WFont.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/uielements_export.h>

#include <QAccessible>
#include <QMargins>
#include <QString>

#include <memory>

class QEvent;
class QPainter;
class QWidget;

/// The behaviour shared by all themed widgets. Each widget holds one as a private member of Themed, which forwards.
class UIELEMENTS_EXPORT ThemeSupport
{
public:
    /// How the widget's own signals and slots are reached from here.
    struct Hooks
    {
        void (*cssChanged)(QWidget *);
        void (*themeTypeChanged)(QWidget *);
        void (*onThemeChanged)(QWidget *);
        void (*onParentThemeTypeChanged)(QWidget *);
    };

    /// For QAccessibleInterface::text(): the element's unique id.
    static constexpr auto ElementUniqueIdText = QAccessible::Text(QAccessible::UserText);

    ThemeSupport(QWidget *widget, const Hooks *hooks);
    ~ThemeSupport();
    ThemeSupport(const ThemeSupport &) = delete;
    ThemeSupport &operator=(const ThemeSupport &) = delete;

    /// The support of a themed widget, null for any other widget.
    static ThemeSupport *of(const QWidget *widget);

    /// To be called in the constructor of the class that declares the signals and slots.
    void attach();
    /// To be called with every event of the widget, before the widget handles it. True for an event that the widget
    /// need not see: a change of the style in which nothing but colors changed.
    bool follow(QEvent *event);

    /// The widget's style draws the whole box of its rule. Qt's background for Qt::WA_StyledBackground would come on
    /// top of that once more, which shows where colors are translucent, and under a part that is drawn smaller.
    void setDrawsOwnBox();

    QString css() const;
    void setCss(const QString &css);
    void refresh();
    /// The expanded text. That of a hidden widget is given to Qt when it is shown, or when it is asked for here.
    QString styleSheet() const;
    /// Gives what waits in the widget and in all that it is inside of.
    static void showNewColors(QWidget *widget);
    /// To be called before anything of the widget is painted, its background, too.
    void preparePainting();
    /// To be called after the paint event.
    void endPainting();
    /// The class paints with model(), and draws drawBackground() first. Those derived from it do not.
    void setBorrows();
    /// The widget by whose rules, with its style, this one is to be drawn instead of its own: it looks the same, and
    /// Qt's style engine knows it already. Null where there is none.
    const QWidget *model() const;
    /// What Qt has left to the paint event.
    void drawBackground(QPainter *painter);
    /// Polishes the widget if the sheet of an ancestor changed and it was not polished since. If it is hidden, that
    /// waits until it is shown.
    void polishIfNeeded();
    /// Template and font. Slots connected to the widget may destroy it meanwhile.
    void applyTheme();
    /// In between, whoever reads the property "styleSheet" of a themed widget is known to be Qt's style engine.
    static void beginEngineReads();
    static void endEngineReads();
    /// What the property "styleSheet" answers: the template, but the expanded text to Qt's style engine.
    QString styleSheetProperty() const;

    /// What the last expansion found in the template; see WCSSData.
    QString colorSetName(WThemeUtils::ColorSetType type) const;
    QString trailingText() const;
    int borderWidth() const;
    int borderRadius() const;

    /// Has the memory ready for answerThemeChange().
    void prefetch() const;
    /// Has the widget's class answer a change of the theme; the widget may be gone afterwards.
    void answerThemeChange();

    QString themeType() const;
    void setThemeType(const QString &themeType);
    void onParentThemeTypeChanged();

    QAccessible::Role accessibleRole() const;
    void setAccessibleRole(QAccessible::Role role);
    QString elementUniqueId() const;
    void setElementUniqueId(const QString &id);

    WFont::Token fontToken() const;
    void setFontToken(WFont::Token token);
    FontManagerEnum::FontType fontType() const;
    void setFontType(FontManagerEnum::FontType type);
    void applyFont();

    void setContentsMargins(const QMargins &margins);
    void setLayoutContentsMargins(const QMargins &margins);
    void applyMargins();

private:
    friend class SharedLook;
    class Private;
    const std::unique_ptr<Private> d;
};
