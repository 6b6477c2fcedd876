#pragma once

#include "Page.h"

/// The first page: a small messaging window made of the elements, and ways to the other pages.
class OverviewPage : public Page
{
    Q_OBJECT

public:
    OverviewPage();

private:
    void addHero();
    void addConversation();
    void addLinks();
};
