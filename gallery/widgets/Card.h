// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class QHBoxLayout;
class QVBoxLayout;

/// A bordered area with a heading, an optional description, and a body.
class Card : public OxaWidget
{
    Q_OBJECT

public:
    explicit Card(const QString &heading, const QString &explanation = QString(),
                  QWidget *parent = nullptr);

    /// Returns the layout below the heading.
    QVBoxLayout *body() const { return m_body; }

    /// Puts \a widget at the end of the heading's line.
    void addToHeading(QWidget *widget);

private:
    QHBoxLayout *m_headingLine;
    QVBoxLayout *m_body;
};
