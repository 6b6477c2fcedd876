#pragma once

#include "Page.h"

/// Text that is edited and text that is read.
class TextPage : public Page
{
    Q_OBJECT

public:
    TextPage();
};
