#pragma once

#include <UiElements/app/WFont.h>

/// The typographic scale behind WFont, for those who derive further sizes from it.
namespace FontTokens {
struct Specification
{
    int pixelSize;
    int weight;
    bool underline;
};

/// Null for a token that does not exist, without a warning.
const Specification *find(WFont::Token token);

/// The factor of the application object; 1 without one.
float applicationScale();

/// Half a pixel is rounded away from zero.
int roundedPixelSize(float pixelSize);

/// Prose may need any script; code must not lose its fixed pitch to the families listed before its own.
constexpr bool wantsFallbackFamilies(WFont::Token token)
{
    return token != WFont::CodeBlocks;
}
} // namespace FontTokens
