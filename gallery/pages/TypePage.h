#pragma once

#include "Page.h"

/// The typographic scale: fonts by token, and the scaled sets of each kind of view.
class TypePage : public Page
{
    Q_OBJECT

public:
    TypePage();

private:
    void addTokens();
    void addScaledSets();
};
