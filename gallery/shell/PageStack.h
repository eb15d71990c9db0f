// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaStackedWidget.h>

#include <map>

class Page;

/// Holds the pages, shows one of them, and remembers which were shown. A page is made when it is
/// first shown.
class PageStack : public OxaStackedWidget
{
    Q_OBJECT

public:
    explicit PageStack(QWidget *parent = nullptr);

    /// Shows the page called \a name. An unknown name is ignored.
    void showPage(const QString &name);

    /// Shows the page \a step places before the current one in the navigation, or after it.
    void showNeighbour(int step);

    /// Shows the page that was shown before the current one, with a \a step of -1, or again the one
    /// after it, with 1.
    void goInHistory(int step);

Q_SIGNALS:
    /// The page called \a name is shown instead of another.
    void pageShown(const QString &name);

private:
    void bringUp(const QString &name);

    std::map<QString, Page *> m_pages;
    QStringList m_history;
    int m_place = -1; ///< In the history.
};
