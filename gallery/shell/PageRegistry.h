// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

#include <functional>
#include <vector>

class Page;
class QWidget;

/// One page of the gallery.
struct PageEntry
{
    QString name;  ///< What the command line and file names call it.
    QString title; ///< What the navigation shows.
    QString group; ///< The heading that the navigation puts it under.
    std::function<Page *(QWidget *parent)> make;
};

/// Returns all pages, in the order of the navigation. The pages of a group stand together.
const std::vector<PageEntry> &pageEntries();

/// Returns the page called \a name, or null.
const PageEntry *findPageEntry(const QString &name);

/// Returns the names of all pages, in the order of the navigation.
QStringList pageNames();
