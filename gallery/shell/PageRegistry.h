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
    QString name;  ///< The name in the command line and in file names.
    QString title; ///< The text in the navigation.
    QString group; ///< The heading above it in the navigation.
    std::function<Page *(QWidget *parent)> make;
};

/// Returns all pages, in the order of the navigation. The pages of a group are adjacent.
const std::vector<PageEntry> &pageEntries();

/// Returns the page called \a name, or null.
const PageEntry *findPageEntry(const QString &name);

/// Returns the names of all pages, in the order of the navigation.
QStringList pageNames();
