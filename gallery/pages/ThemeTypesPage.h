#pragma once

#include "Page.h"

/// Theme types side by side, and how an element gets the one of its window.
class ThemeTypesPage : public Page
{
    Q_OBJECT

public:
    ThemeTypesPage();

private:
    void addReparenting();
};
