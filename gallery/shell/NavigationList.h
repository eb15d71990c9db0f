// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class ListView;
class QStandardItemModel;

/// The list of pages at the side of the window, under the headings of their groups. It is never too
/// narrow for their titles.
class NavigationList : public OxaWidget
{
    Q_OBJECT

public:
    explicit NavigationList(QWidget *parent = nullptr);

    /// Marks the page called \a name as the current one.
    void setCurrentPage(const QString &name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Another page is the current one, which is called \a name.
    void pageChosen(const QString &name);

private:
    void addPages();

    QStandardItemModel *m_model;
    ListView *m_list;
};
