// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <map>

class OxaToggleButton;
class QVBoxLayout;
class ScrollArea;
struct PageEntry;

/// The list of pages at the side of the window, under the headings of their groups.
class NavigationList : public OxaWidget
{
    Q_OBJECT

public:
    explicit NavigationList(QWidget *parent = nullptr);

    /// Marks the page called \a name as the current one, without a signal.
    void setCurrentPage(const QString &name);

Q_SIGNALS:
    /// The user chose the page called \a name.
    void pageChosen(const QString &name);

protected:
    /// Home and End choose the first and the last page.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void addEntries(QVBoxLayout *column);
    OxaToggleButton *addItem(const PageEntry &entry);

    ScrollArea *m_area;
    std::map<QString, OxaToggleButton *> m_items;
};
