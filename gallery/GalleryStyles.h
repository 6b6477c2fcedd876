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
QString textField();
QString codeField();
QString textBrowser();
QString dateField();
QString radioButton();
QString slider();
QString progressBar();
QString menu();
QString menuWithIcons();
/// Tool bars, tool buttons and tabs, for what they stand in.
QString iconBars();
/// A bar of push buttons that are as quiet as tool buttons.
QString toolBar();

} // namespace GalleryStyles
