#pragma once

#include "Page.h"

/// The layouts of the library, each in a frame that is made wider and narrower by hand.
class LayoutsPage : public Page
{
    Q_OBJECT

public:
    LayoutsPage();

private:
    void addFlow();
    void addSmart();
    void addGrid();
    void addTiles();
};
