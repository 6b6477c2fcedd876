#include "PlainParts.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QEvent>
#include <QWidget>

namespace {

// When a widget comes under another style sheet, Qt's style engine may give it the font back that it had before. So the
// font is seen to again after every change.
class FontFollower : public QObject
{
public:
    FontFollower(QWidget *widget, WScaledFonts *fonts, WFont::Token token)
        : QObject(widget)
        , m_widget(widget)
        , m_fonts(fonts)
        , m_token(token)
    {
        connect(fonts, &WScaledFonts::fontTokenChanged, this, &FontFollower::apply);
        widget->installEventFilter(this);
        apply();
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FontChange && m_widget->font().pixelSize() != wanted().pixelSize())
            QMetaObject::invokeMethod(
                this, [this] { apply(); }, Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }

private:
    QFont wanted() const { return m_fonts->getFont(m_token); }
    void apply() { m_widget->setFont(wanted()); }

    QWidget *const m_widget;
    WScaledFonts *const m_fonts;
    const WFont::Token m_token;
};

// The style sheet's text color becomes that of the placeholder, too; so it is set again after the style sheet.
class PlaceholderColor : public QObject
{
public:
    explicit PlaceholderColor(QWidget *field)
        : QObject(field)
        , m_field(field)
    {
        field->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange || event->type() == QEvent::Polish || event->type() == QEvent::Show)
            QMetaObject::invokeMethod(
                this, [this] { apply(); }, Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }

private:
    void apply()
    {
        const auto type = WThemeUtils::getThemeTypeOfWidget(m_field);
        const QColor color = WThemeUtils::getColorSet("input-placeholder-text", type).normal();
        QPalette palette = m_field->palette();
        if (palette.placeholderText().color() == color)
            return;
        palette.setColor(QPalette::PlaceholderText, color);
        m_field->setPalette(palette);
    }

    QWidget *const m_field;
};

class DirectionFollower : public QObject
{
public:
    DirectionFollower(QWidget *widget, const std::function<void(Qt::LayoutDirection)> &apply)
        : QObject(widget)
        , m_widget(widget)
        , m_apply(apply)
    {
        widget->installEventFilter(this);
        m_apply(widget->layoutDirection());
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange)
            m_apply(m_widget->layoutDirection());
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget *const m_widget;
    const std::function<void(Qt::LayoutDirection)> m_apply;
};

} // namespace

void followDirection(QWidget *widget, const std::function<void(Qt::LayoutDirection)> &apply)
{
    new DirectionFollower(widget, apply);
}

void followFontToken(QWidget *widget, WFont::Token token)
{
    new FontFollower(widget, WFontManager::get()->getFont(FontManagerEnum::Default), token);
}

void followPlaceholderColor(QWidget *field)
{
    new PlaceholderColor(field);
}
