// Where there is no application object: the theme engine asks for one and finds none.

#include <UiElements/app/IWApplication.h>

#include <cstdlib>

const QMetaObject IWApplication::staticMetaObject = QApplication::staticMetaObject;

const WColorSets &IWApplication::getColorSets() const
{
    abort();
}

const WColorSets &IWApplication::getInvertedColorSets() const
{
    abort();
}

const WColorTokens &IWApplication::getColorTokens() const
{
    abort();
}

bool IWApplication::getIsDarkTheme() const
{
    abort();
}

bool IWApplication::getIsHighContrastTheme() const
{
    abort();
}

void IWApplication::setColorSets(const WColorSets &)
{
    abort();
}

void IWApplication::setInvertedColorSets(const WColorSets &)
{
    abort();
}

void IWApplication::setColorTokens(const WColorTokens &)
{
    abort();
}
