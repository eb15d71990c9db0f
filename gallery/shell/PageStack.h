// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeBlock.h>

#include <QStackedWidget>

#include <map>

class Page;

/// Holds the pages and shows one of them. A page is made when it is first shown.
class PageStack : public QStackedWidget
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QStackedWidget)

public:
    explicit PageStack(QWidget *parent = nullptr);

    /// Shows the page called \a name. An unknown name is ignored.
    void showPage(const QString &name);

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    std::map<QString, Page *> m_pages;
};
