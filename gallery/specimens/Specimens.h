// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <QVector>

#include <functional>

/// The same widget several times side by side: once to be used, and once held in each state.
class Specimens : public OxaWidget
{
    Q_OBJECT

public:
    /// Makes one widget with \a make for use, and one for each state that such a widget can be held
    /// in. A button knows all of them; any other widget is not pressed and not checked.
    explicit Specimens(const std::function<QWidget *()> &make, QWidget *parent = nullptr);

    /// Returns the widgets; the first is the one to be used.
    const QVector<QWidget *> &widgets() const { return m_widgets; }

private:
    void add(QWidget *widget, const QString &caption);

    QVector<QWidget *> m_widgets;
};
