#pragma once

#include <QString>
#include <QVector>

#include <functional>

class Page;

/// A page by the name of its pictures, its title in the navigation and the function that makes it.
struct PageEntry
{
    QString name;
    QString title;
    std::function<Page *()> make;
};

/// All pages in the order of the navigation.
const QVector<PageEntry> &allPages();
