#include "Controls.h"

#include "GalleryStyles.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/controls/WLabel.h>
#include <UiElements/icons/WSvgRenderer.h>
#include <UiElements/layouts/FlowLayout.h>

#include <QMovie>

QString iconPath(const char *name)
{
    return WSvgRenderer::resourcePath(QString::fromLatin1(name));
}

WPushButton *makePushButton(const QString &text, const char *kind)
{
    auto *button = new WPushButton(text);
    button->setFontToken(WFont::BodySecondary);
    button->setCSS(GalleryStyles::pushButton(QString::fromLatin1(kind)));
    return button;
}

WSvgPushButton *makeSvgButton(const QString &text, const char *icon, const char *kind)
{
    auto *button = new WSvgPushButton(text);
    button->setFontToken(WFont::BodySecondary);
    button->setCSS(GalleryStyles::svgButton(QString::fromLatin1(kind)));
    button->setSvgIcon(iconPath(icon));
    return button;
}

WSvgPushButton *makeIconButton(const QString &name, const char *icon, const char *kind)
{
    auto *button = new WSvgPushButton;
    button->setCSS(GalleryStyles::iconButton(QString::fromLatin1(kind)));
    button->setSvgIcon(iconPath(icon));
    button->setSvgIconSize(QSize(20, 20));
    button->setFixedSize(36, 36);
    button->setToolTip(name);
    button->setAccessibleName(name);
    return button;
}

void dress(WLabel *label, WFont::Token token, const char *textSet)
{
    label->setFontToken(token);
    label->setCSS(QStringLiteral("$textColors: %1; background: transparent;").arg(QLatin1String(textSet)));
}

void enlarge(WPushButton *button)
{
    const auto apply = [button] {
        QFont font = WFontManager::get()->getFont(FontManagerEnum::Default)->getFont(button->fontToken());
        font.setPixelSize(font.pixelSize() * 3 / 2);
        button->setFont(font);
    };
    // Both give the button the font of its token first.
    QObject::connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, button,
                     apply, Qt::QueuedConnection);
    QObject::connect(button, &WPushButton::cssChanged, button, apply, Qt::QueuedConnection);
    apply();
}

QWidget *makeFlow(FlowLayout **layout)
{
    auto *all = new QWidget;
    *layout = new FlowLayout(8, 8, all);
    (*layout)->setContentsMargins(0, 0, 0, 0);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    all->setSizePolicy(policy);
    return all;
}

void standStill(QMovie *movie, int frame)
{
    // A format without an index can only be read in its order.
    for (int i = -1; movie && i < frame; ++i)
        movie->jumpToNextFrame();
}
