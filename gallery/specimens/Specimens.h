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
    /// Which states a widget is shown in beside the one to use.
    enum class States {
        All,  ///< Each that it can be held in: only buttons are pressed or checked.
        None, ///< It looks the same in all of them.
    };

    /// Makes one widget with \a make for use, and one for each of \a states.
    explicit Specimens(const std::function<QWidget *()> &make, States states = States::All,
                       QWidget *parent = nullptr);

    /// Returns the widgets; the first is the one to use.
    const QVector<QWidget *> &widgets() const { return m_widgets; }

private:
    void add(QWidget *widget, const QString &caption);

    QVector<QWidget *> m_widgets;
};
