#pragma once

#include <UiElements/controls/WSvgPushButton.h>

#include <QString>

class FlowLayout;
class QMovie;
class WLabel;

// The buttons and labels of the gallery in the looks of GalleryStyles.

/// The path of an icon of the library: "mic_16".
QString iconPath(const char *name);

/// The kind is one of GalleryStyles::pushButton().
WPushButton *makePushButton(const QString &text, const char *kind = "secondary");
WSvgPushButton *makeSvgButton(const QString &text, const char *icon, const char *kind = "secondary");
/// With nothing but an icon; the name is its tooltip and what readers say.
WSvgPushButton *makeIconButton(const QString &name, const char *icon, const char *kind = "ghost");

/// Gives the label the font and a color set.
void dress(WLabel *label, WFont::Token token, const char *textSet = "text-primary");

/// Keeps the font of the button 1.5 times as large as its token says.
void enlarge(WPushButton *button);

/// A widget with a FlowLayout, as high as the lines need.
QWidget *makeFlow(FlowLayout **layout);

/// In a picture no time passes: the movie stands at the frame.
void standStill(QMovie *movie, int frame);
