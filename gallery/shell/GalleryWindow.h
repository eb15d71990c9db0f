// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaMainWindow.h>

class HeaderBar;
class NavigationList;
class PageStack;

/// The gallery's window: the header bar, the navigation, and the page that was chosen.
///
/// It follows those of the library's shortcuts that mean something here: to other pages, to the
/// search of a page, to the list of all shortcuts. F6 goes from one part of the window to the next.
class GalleryWindow : public OxaMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    /// Shows the page called \a name.
    void showPage(const QString &name);

private:
    QWidget *makeContents();
    void followShortcuts();
    void focusPane(int step);
    void focusSearch();

    HeaderBar *m_header;
    NavigationList *m_navigation;
    PageStack *m_pages;
};
