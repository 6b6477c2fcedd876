#pragma once

#include "Page.h"

/// The push buttons of the library in all their states and arrangements.
class ButtonsPage : public Page
{
    Q_OBJECT

public:
    ButtonsPage();

private:
    void addStates();
    void addSizes();
    void addArrangements();
    void addAnchors();
    void addTabs();
    void addElided();
    void addEvents();
};
