// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class ColumnsLayout;
class QVBoxLayout;
class ScrollArea;

/// A page of the gallery: a title, a line of description, and a body that fills the rest and
/// scrolls if necessary.
class Page : public OxaWidget
{
    Q_OBJECT

public:
    Page(const QString &title, const QString &summary, QWidget *parent = nullptr);

    /// Returns the layout of the body, with the page's margins.
    QVBoxLayout *body() const { return m_body; }

    /// Shows what a picture of the page must have and what a user opens first. Does nothing here.
    virtual void showForPicture() { }

    /// Appends columns for cards to the body and returns them.
    ColumnsLayout *makeColumns();

private:
    ScrollArea *makeArea();

    QVBoxLayout *m_body;
};
