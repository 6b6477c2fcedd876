#pragma once

#include "Page.h"

/// Item views: lists, trees and their headers.
class ListsPage : public Page
{
    Q_OBJECT

public:
    ListsPage();
};
