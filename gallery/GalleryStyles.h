#pragma once

#include <QString>

/// All style templates of the gallery. Colors are color sets of the theme; there is no color written anywhere else.
///
/// A template dresses the element that it is set on and the plain parts inside of it: scroll bars, headers, labels,
/// buttons; a button with the property "kind" of the text "primary" does the main thing of its card. It follows the
/// theme type of its element, and so do those parts.
namespace GalleryStyles {

// The window and what it is divided into.
QString window();
QString side();
QString navigation();
QString bar();
QString card();
/// A panel that may have a theme type of its own, with everything plain that stands in it.
QString panel();
QString hero();
/// A card with samples: radio buttons that show nothing but what their own template says.
QString sampleCard();
QString bubble(bool own, Qt::LayoutDirection direction);
/// A part of a panel with one line at an edge, such as "bottom". With "none" it is in the color of what it stands on.
QString section(const QString &line);
/// The side of a panel at its leading edge, with its round corners.
QString rail(Qt::LayoutDirection direction);
QString callBar();
/// A round picture of somebody, as wide as given.
QString avatar(int side);

// One for each kind of element.
QString widget();
QString frame();
QString dialog();
QString mainWindow();
QString splitter();
QString stackedWidget();
/// Where a SizedFrame is taken to be made wider or narrower.
QString grip();
QString itemView();
/// A list without a frame of its own.
QString spaceList();
/// Where bubbles stand below each other and are scrolled.
QString messages();
QString textField();
QString codeField();
QString textBrowser();
QString dateField();
QString radioButton();
QString slider();
QString progressBar();
QString menu();
QString menuWithIcons();
/// A WPushButton: "primary", "secondary", "danger" or "ghost". One with icon and text has the height of the icon for
/// its padding, one that shows only an icon has equal sides.
QString pushButton(const QString &kind);
QString svgButton(const QString &kind);
QString iconButton(const QString &kind);
/// A tab of a rail: an icon above a short text.
QString railButton();
/// Tool bars, tool buttons and tabs, for what they stand in.
QString iconBars();
/// A bar of push buttons that are as quiet as tool buttons.
QString toolBar();

} // namespace GalleryStyles
