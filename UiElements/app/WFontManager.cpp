#include <UiElements/app/WFontManager.h>

#include <UiElements/app/WApplication.h>
#include <UiElements/app/WFont.h>
#include <UiElements/app/WScaledFonts.h>

#include <QDebug>

#include <cstddef>

WFontManager::WFontManager(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<WFont::Token>("WFont::Token");
    qRegisterMetaType<FontManagerEnum::FontType>("FontManagerEnum::FontType");
    qRegisterMetaType<FontManagerEnum::FontScalingFactor>("FontManagerEnum::FontScalingFactor");
    for (WScaledFonts *&fonts : m_fonts)
        fonts = new WScaledFonts(this);
}

WFontManager *WFontManager::get()
{
    const WApplication *app = WApplication::find();
    return app ? app->getWFontManager() : nullptr;
}

WScaledFonts *WFontManager::getFont(FontManagerEnum::FontType type) const
{
    if (WScaledFonts *fonts = find(type))
        return fonts;
    qWarning() << "WFontManager::getFont - Invalid font type" << static_cast<int>(type);
    return m_fonts[FontManagerEnum::Default];
}

void WFontManager::onFontScaleFactorChanged()
{
    // Setting the factor that a set has already makes it rebuild and announce.
    for (WScaledFonts *fonts : m_fonts)
        fonts->setScalingFactor(fonts->scalingFactor());
}

void WFontManager::setScalingFactor(FontManagerEnum::FontType view, FontManagerEnum::FontScalingFactor factor)
{
    if (WScaledFonts *fonts = find(view))
        fonts->setScalingFactor(factor);
    else
        qWarning() << "WFontManager::setScalingFactor - Invalid font type" << static_cast<int>(view);
}

WScaledFonts *WFontManager::find(FontManagerEnum::FontType type) const
{
    const auto index = static_cast<std::size_t>(type); // a negative type becomes a very large index
    return index < m_fonts.size() ? m_fonts[index] : nullptr;
}
