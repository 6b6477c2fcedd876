#pragma once

#include <UiElements/widgets/ThemeSupport.h>

#include <QEvent>
#include <QMargins>

/// Makes a Qt widget class themeable: `class WFrame : public Themed<WFrame, QFrame>`.
///
/// The template only forwards to ThemeSupport. The class adds Q_OBJECT, the macros below for what moc must see in each
/// class, and calls initTheme() in its constructor.
///
/// A themed widget
/// - expands its style template (setCSS(), property `styleSheet`) against the color sets of its theme type whenever
///   the template, the object name, the theme type or the application's colors change. An expansion to nothing leaves
///   the previous look. cssChanged() follows every expansion to something, also one that equals the previous;
/// - has a theme type: "global" (the application's theme), "light", "dark" or "inverted". Where it is "global" that of
///   its window counts. An unknown text is reported and taken as "global"; the same value again does nothing.
///   themeTypeChanged() is passed on to all themed widgets below, level by level and through plain widgets, because
///   what they inherit may have changed;
/// - takes its font from the scaled set of its font type by its font token, and again whenever that set announces new
///   fonts or the theme changes: a font set with setFont() lasts until then;
/// - mirrors the margins given to setContentsMargins() and setLayoutContentsMargins() while its layout direction is
///   right-to-left;
/// - tells its accessible role and its element id to the accessibility interface. QAccessible::NoRole, the default,
///   leaves the role to Qt.
///
/// The functions setStyleSheet() and setContentsMargins() hide the non-virtual ones of QWidget; called through a
/// QWidget pointer those set a plain sheet, which the next expansion replaces, or margins that are not mirrored.
template <typename Self, typename Base>
class Themed : public Base
{
public:
    /// The template. Unlike the property it is never the expanded text, which QWidget::styleSheet() returns.
    QString getCSS() const { return m_theme.css(); }
    /// One that is set in answer to the widget's own style change comes with the next event. Debug builds report a
    /// widget that is restyled 100 times within a second.
    void setCSS(const QString &css) { m_theme.setCss(css); }
    /// The same as setCSS(): code generated from forms calls this.
    void setStyleSheet(const QString &css) { setCSS(css); }

    /// The expanded text. After a change of the theme a hidden widget gives it to Qt when it is shown, or when it is
    /// asked here; QWidget::styleSheet(), called through a QWidget pointer, is the previous text until then.
    QString styleSheet() const { return m_theme.styleSheet(); }

    QString themeType() const { return m_theme.themeType(); }
    void setThemeType(const QString &themeType) { m_theme.setThemeType(themeType); }

    QAccessible::Role accessibleRole() const { return m_theme.accessibleRole(); }
    void setAccessibleRole(QAccessible::Role role) { m_theme.setAccessibleRole(role); }
    /// For automation: ThemeSupport::ElementUniqueIdText of the accessible interface.
    QString elementUniqueId() const { return m_theme.elementUniqueId(); }
    void setElementUniqueId(const QString &id) { m_theme.setElementUniqueId(id); }

    WFont::Token fontToken() const { return m_theme.fontToken(); }
    /// An invalid token is reported and changes nothing.
    void setFontToken(WFont::Token token) { m_theme.setFontToken(token); }
    FontManagerEnum::FontType fontType() const { return m_theme.fontType(); }
    void setFontType(FontManagerEnum::FontType type) { m_theme.setFontType(type); }

    /// Margins as they are in a left-to-right layout.
    void setContentsMargins(const QMargins &margins) { m_theme.setContentsMargins(margins); }
    void setContentsMargins(int left, int top, int right, int bottom)
    {
        m_theme.setContentsMargins(QMargins(left, top, right, bottom));
    }
    /// The same for the layout; without a layout nothing happens.
    void setLayoutContentsMargins(const QMargins &margins) { m_theme.setLayoutContentsMargins(margins); }
    void setLayoutContentsMargins(int left, int top, int right, int bottom)
    {
        m_theme.setLayoutContentsMargins(QMargins(left, top, right, bottom));
    }

    // Slots: moc sees them declared in each class, by the macros below.
    virtual void refreshCSS() { m_theme.refresh(); }
    virtual void onThemeChanged() { m_theme.applyTheme(); }
    virtual void onParentThemeTypeChanged() { m_theme.onParentThemeTypeChanged(); }
    virtual void onLayoutDirectionChanged() { m_theme.applyMargins(); }

protected:
    using Base::Base;

    void initTheme() { m_theme.attach(); }
    ThemeSupport &theme() { return m_theme; }
    QString styleSheetProperty() const { return m_theme.styleSheetProperty(); }

    // Qt paints a styled background before it sends the event.
    void initPainter(QPainter *painter) const override
    {
        const_cast<ThemeSupport &>(m_theme).preparePainting();
        Base::initPainter(painter);
    }

    bool event(QEvent *event) override
    {
        if (m_theme.follow(event))
            return true;
        const QEvent::Type type = event->type();
        const bool polishes = type == QEvent::Polish;
        if (polishes)
            ThemeSupport::beginEngineReads();
        const bool handled = Base::event(event);
        if (polishes)
            ThemeSupport::endEngineReads();
        if (type == QEvent::Paint)
            m_theme.endPainting();
        // A frame lays its margins anew for each of these.
        if (type == QEvent::LayoutDirectionChange || type == QEvent::StyleChange)
            m_theme.applyMargins();
        return handled;
    }

private:
    static const ThemeSupport::Hooks *hooks()
    {
        static constexpr ThemeSupport::Hooks table {
            [](QWidget *w) { Q_EMIT static_cast<Self *>(w)->cssChanged(); },
            [](QWidget *w) { Q_EMIT static_cast<Self *>(w)->themeTypeChanged(); },
            [](QWidget *w) { static_cast<Self *>(w)->onThemeChanged(); },
            [](QWidget *w) { static_cast<Self *>(w)->onParentThemeTypeChanged(); },
        };
        return &table;
    }

    ThemeSupport m_theme {this, hooks()};
};

// What moc must find in each themed class. Include this header where they are used: a macro that moc does not know
// vanishes without a word. Each ends with the access that its name says; an access specifier belongs behind it.

#define W_THEME_PROPERTIES                                                                                             \
    Q_PROPERTY(QString styleSheet READ styleSheetProperty WRITE setCSS NOTIFY cssChanged)                              \
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY themeTypeChanged)

#define W_ACCESSIBLE_PROPERTIES                                                                                        \
    Q_PROPERTY(QString elementUniqueId READ elementUniqueId WRITE setElementUniqueId)                                  \
    Q_PROPERTY(QAccessible::Role accessibleRole READ accessibleRole WRITE setAccessibleRole)

#define W_FONT_PROPERTIES                                                                                              \
    Q_PROPERTY(QFont font READ font WRITE setFont)                                                                     \
    Q_PROPERTY(WFont::Token fontToken READ fontToken WRITE setFontToken)                                               \
    Q_PROPERTY(FontManagerEnum::FontType fontType READ fontType WRITE setFontType)

#define W_THEME_SIGNALS                                                                                                \
Q_SIGNALS:                                                                                                             \
    void cssChanged();                                                                                                 \
    void themeTypeChanged();

#ifdef Q_MOC_RUN
#define W_THEME_SLOTS                                                                                                  \
public Q_SLOTS:                                                                                                        \
    void refreshCSS();                                                                                                 \
    void onThemeChanged();                                                                                             \
    void onParentThemeTypeChanged();                                                                                   \
    void onLayoutDirectionChanged();
#else
#define W_THEME_SLOTS
#endif
