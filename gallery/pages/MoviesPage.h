#pragma once

#include "Page.h"

/// Animated images: the label, the button, and the provider that fetches them.
class MoviesPage : public Page
{
    Q_OBJECT

public:
    MoviesPage();

private:
    void addLabels();
    void addButtons();
    void addProvider();
    void addPause();
};
