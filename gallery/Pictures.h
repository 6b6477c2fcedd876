#pragma once

#include "GalleryThemes.h"

#include <QString>
#include <QStringList>

/// What the pictures are made of; an empty list stands for all.
struct PictureOptions
{
    QString folder;
    QStringList pages;
    QStringList themes;
    QStringList directions; ///< "ltr", "rtl"
    QStringList scales; ///< "1x", "2x"
};

/// The gallery without somebody in front of it: every page, in every theme, direction and scale.
///
/// Both return the exit status of the program. Animations stand still, so that equal programs make equal pictures.
namespace Pictures {

/// Writes <page>-<theme>-<direction>-<scale>.png; with the window's theme type inverted, at 1x from left to right,
/// <page>-<theme>-inverted-ltr-1x.png.
int write(GalleryThemes *themes, const PictureOptions &options);

/// Lays out and paints the same pages at 1x, writes none, and lists what is cut off or out of place.
int check(GalleryThemes *themes, const PictureOptions &options);

} // namespace Pictures
