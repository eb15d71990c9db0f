// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class HeaderBar;
class NavigationList;
class PageStack;

/// The gallery's window: the header bar, the navigation, and the page that was chosen.
class GalleryWindow : public OxaWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    /// Shows the page called \a name.
    void showPage(const QString &name);

private:
    void focusPane(int step);

    HeaderBar *m_header;
    NavigationList *m_navigation;
    PageStack *m_pages;
};
