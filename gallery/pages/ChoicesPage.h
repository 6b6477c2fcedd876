#pragma once

#include "Page.h"

/// Choices and values: radio buttons, sliders, progress.
class ChoicesPage : public Page
{
    Q_OBJECT

public:
    ChoicesPage();
};
