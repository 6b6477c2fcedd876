#pragma once

#include "SharedLook_p.h"
#include "ThemeSupport.h"

#include <UiElements/app/WScaledFonts.h>
#include <UiElements/theme/StyleTemplate_p.h>
#include <UiElements/theme/WThemeUtils_p.h>

#include <QFont>
#include <QPointer>
#include <QWidget>

#include <memory>

class ThemeSupport::Private
{
public:
    Private(ThemeSupport *s, QWidget *w, const Hooks *h)
        : support(*s)
        , widget(w)
        , hooks(h)
    {
    }

    /// What the colors of the application mean for the widget.
    enum Need {
        None, ///< it has no sheet
        Same, ///< no other text
        Colors, ///< another text, of which only the colors are new, at once
        Other ///< more than that, or not now
    };
    Need need(const ColorTable &table, quint64 *content) const;

    WThemeUtils::AppThemeType effectiveType() const;
    void followParent();
    void announceThemeType();
    void noticeThemeType();
    void take(const StyleTemplate::Directives &directives);
    void expandInTwoPasses(const ColorTable &table);
    bool hasText() const;
    bool isUpToDate(const StyleTemplate *from, quint64 content) const;
    void give(const QString &text, bool isOnlyColors);
    void postpone(quint64 content);
    void makeText();
    void giveColors();
    void noticeForeignSheet();
    void setSheetOfThisOnly(const QString &sheet);
    void setSheet(const QString &sheet);
    void warnIfRestless();
    void setNewText(const QString &text, quint64 content);
    void leaveLook();
    void readByEngine();
    bool canBeShort() const;
    bool isInNormalState() const;
    bool hasToWait() const { return isPolished && !widget->isVisible(); }

    ThemeSupport &support;
    bool *isGone = nullptr; // to be told by the destructor
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
    bool isTextSure = false; // to be the widget's sheet
    bool isWaiting = false; // to be given to Qt
    bool isTextDue = false; // nor made
    QString replaced; // by what waits
    bool isAncestorNewer = false; // than what the widget was polished with
    bool isPolished = false; // was shown, or measured
    bool isGettingColors = false;
    bool isUnread = false; // Qt's style engine has not looked at the sheet since it was set
    bool hasFilledBackground = false; // by the host, once
    bool isGiving = false; // a sheet to Qt
    bool isRefreshDue = false; // with the next event
    bool isReportedRestless = false;
    int timesStyled = 0;
    qint64 styledIn = -1; // which second
    bool isCounted = false; // in the report, before its turn to announce
    std::shared_ptr<SharedLook> look;

    QString colorSetNames[3];
    QString trailingText;
    int borderWidth = 0;
    int borderRadius = 0;
    bool hasFocusProperties = false;
    bool drawsOwnBox = false;
    bool borrows = false; // its class draws by the rules of the model
    bool isInPaintEvent = false;
    bool leavesBackground = false; // to the paint event
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
