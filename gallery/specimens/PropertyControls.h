// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ControlPanel.h"

#include <QVariant>
#include <QVector>

class QMetaProperty;

/// Controls, each of which sets one property of several widgets, or of another object.
///
/// A control is named after its property and shows the value of the first widget, also when another
/// control changed it.
class PropertyControls : public ControlPanel
{
    Q_OBJECT

public:
    /// A value to choose, and its name.
    struct Choice
    {
        QString text;
        QVariant value;
    };
    using Choices = QVector<Choice>;
    /// Sets \a value of \a widget, which is null for another object.
    using Apply = std::function<void(QWidget *widget, const QVariant &value)>;

    /// Makes an empty panel for \a widgets, which must outlive it.
    explicit PropertyControls(const QVector<QWidget *> &widgets, QWidget *parent = nullptr);

    /// Makes an empty panel for \a object, which must outlive it and is no widget.
    explicit PropertyControls(QObject *object, QWidget *parent = nullptr);

    /// Returns the widget whose values are shown.
    QWidget *front() const;

    /// Offers \a choices for each property whose name ends in \a ending, instead of what addAll()
    /// would make of its type. The first matching offer is used.
    void offer(const char *ending, const Choices &choices);

    /// Sets the range of \a property, which is 0 to 24 otherwise.
    void setRange(const char *property, int minimum, int maximum);

    /// Adds a control for each property that the library declares for the widgets' class, and that
    /// has none yet: a switch, a slider, a choice or a field, by its type. Leaves out properties
    /// that no such control can set, and those of all themed widgets.
    void addAll();

    /// Adds a control for \a property alone.
    void addProperty(const char *property);

    /// Adds a choice between \a choices that \a apply sets, for what is not a property.
    void addChoice(const QString &name, const Choices &choices, const Apply &apply);

    /// Adds a slider, at \a value at first, that \a apply sets, for what is not a property.
    void addNumber(const QString &name, int minimum, int maximum, int value, const Apply &apply);

    /// Adds sliders for setFixedWidth() and setFixedHeight() of widgets that have such a size.
    void addWidth(int narrowest, int widest);
    void addHeight(int lowest, int highest);

    /// Adds a text that \a read returns, and that is read again with all values.
    void addReading(const QString &name, const std::function<QString()> &read);

    /// Shows the current values of the first widget.
    void refresh();

    /// Returns the choices no and yes.
    static Choices noAndYes();

private:
    struct Range
    {
        int minimum = 0;
        int maximum = 24;
    };

    void add(const QMetaProperty &property);
    void addChoiceOf(const char *property, const Choices &choices);
    void addNumberOf(const char *property);
    void addSizeOf(const char *property);
    void addPointOf(const char *property);
    void addTextOf(const char *property);
    bool hasControl(const char *property) const;
    QVariant value(const char *property) const;
    void keepUpToDate(const std::function<void()> &show);
    void setOnAll(const char *property, const QVariant &value);
    void applyToAll(const Apply &apply, const QVariant &value);
    void changeAll(const std::function<void(QObject *)> &change);

    QVector<QObject *> m_objects;
    QVector<std::pair<const char *, Choices>> m_offers;
    QHash<QByteArray, Range> m_ranges;
    QVector<std::function<void()>> m_refreshers; ///< Each shows a value in its control.
    bool m_isRefreshing = false;
};
