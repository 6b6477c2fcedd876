#pragma once

#include "Page.h"

/// Labels: plain, rich, with emoji, with icons.
class LabelsPage : public Page
{
    Q_OBJECT

public:
    LabelsPage();

private:
    void addStates();
    void addPlain();
    void addRich();
    void addEmoji();
    void addIcons();
    void addWrapped();
};
