#pragma once

#include "Page.h"

/// A place to try style templates, and what they can say.
class TemplatesPage : public Page
{
    Q_OBJECT

public:
    TemplatesPage();

private:
    void addPlayground();
    void addExamples();
};
