#pragma once

#include "Page.h"

/// Windows, frames and what divides them.
class WindowsPage : public Page
{
    Q_OBJECT

public:
    WindowsPage();
};
