#include "PageRegistry.h"

#include "pages/ButtonsPage.h"
#include "pages/ChoicesPage.h"
#include "pages/ClientPage.h"
#include "pages/DateTimePage.h"
#include "pages/EmojiPage.h"
#include "pages/IconsPage.h"
#include "pages/LabelsPage.h"
#include "pages/LayoutsPage.h"
#include "pages/ListsPage.h"
#include "pages/ModelsPage.h"
#include "pages/MoviesPage.h"
#include "pages/OverviewPage.h"
#include "pages/PalettePage.h"
#include "pages/QmlPage.h"
#include "pages/ShortcutsPage.h"
#include "pages/TemplatesPage.h"
#include "pages/TextPage.h"
#include "pages/ThemeTypesPage.h"
#include "pages/TypePage.h"
#include "pages/WindowsPage.h"

#include <QCoreApplication>

namespace {

template <typename P>
PageEntry page(const char *name, const char *title)
{
    return {QString::fromLatin1(name), QCoreApplication::translate("PageRegistry", title), [] {
                return new P;
            }};
}

} // namespace

const QVector<PageEntry> &allPages()
{
    static const QVector<PageEntry> pages {
        page<OverviewPage>("overview", "Overview"),
        page<ClientPage>("client", "Client"),
        page<ButtonsPage>("buttons", "Buttons"),
        page<LabelsPage>("labels", "Labels"),
        page<MoviesPage>("movies", "Animated images"),
        page<WindowsPage>("windows", "Windows and frames"),
        page<ListsPage>("lists", "Lists and trees"),
        page<ModelsPage>("models", "Models"),
        page<LayoutsPage>("layouts", "Layouts"),
        page<TextPage>("text", "Text"),
        page<DateTimePage>("datetime", "Date and time"),
        page<ChoicesPage>("choices", "Choices and values"),
        page<QmlPage>("qml", "QML"),
        page<ShortcutsPage>("shortcuts", "Shortcuts and signals"),
        page<ThemeTypesPage>("themetypes", "Theme types"),
        page<TypePage>("type", "Type"),
        page<IconsPage>("icons", "Icons"),
        page<EmojiPage>("emoji", "Emoji"),
        page<PalettePage>("palette", "Palette"),
        page<TemplatesPage>("templates", "Templates"),
    };
    return pages;
}
