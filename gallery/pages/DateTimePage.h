#pragma once

#include "Page.h"

/// Fields for dates and times.
class DateTimePage : public Page
{
    Q_OBJECT

public:
    DateTimePage();
};
