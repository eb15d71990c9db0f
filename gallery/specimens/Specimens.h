// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <QVector>

#include <functional>

/// The same widget several times side by side: one to use, and one held in each state.
class Specimens : public OxaWidget
{
    Q_OBJECT

public:
    /// Makes one widget with \a make for use, and one for each state that it can be held in.
    /// Widgets other than buttons are never pressed or checked.
    explicit Specimens(const std::function<QWidget *()> &make, QWidget *parent = nullptr);

    /// Returns the widgets; the first is the one to use.
    const QVector<QWidget *> &widgets() const { return m_widgets; }

private:
    void add(QWidget *widget, const QString &caption);

    QVector<QWidget *> m_widgets;
};
