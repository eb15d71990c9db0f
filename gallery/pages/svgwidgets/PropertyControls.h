// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <QVariant>
#include <QVector>

#include <functional>

class SegmentedControl;
class Slider;

/// Controls, each of which sets one property of several widgets at once.
///
/// A control is called by its property and shows the value that the first of the widgets has, also
/// when another control changed it.
class PropertyControls : public OxaWidget
{
    Q_OBJECT

public:
    /// A value to choose, and what it is called.
    struct Choice
    {
        QString text;
        QVariant value;
    };

    using Apply = std::function<void(QWidget *widget, const QVariant &value)>;

    /// Makes an empty panel for \a widgets, which must outlive it.
    explicit PropertyControls(const QVector<QWidget *> &widgets, QWidget *parent = nullptr);

    /// Adds a slider for an integer.
    void addNumber(const char *property, int minimum, int maximum);

    /// Adds a slider for the side of a square size.
    void addSize(const char *property, int minimum, int maximum);

    /// Adds two sliders for the coordinates of a point.
    void addPoint(const char *property, int minimum, int maximum);

    /// Adds a field for a text.
    void addText(const char *property);

    /// Adds a choice between \a choices, of which one should be the value that the property has.
    void addChoice(const char *property, const QVector<Choice> &choices);

    /// Adds a choice between no and yes.
    void addSwitch(const char *property);

    /// Adds a choice between \a choices for what is not a property, and is set by \a apply.
    void addChoice(const QString &name, const QVector<Choice> &choices, const Apply &apply);

    /// Adds a slider, at \a value at first, for what is not a property, and is set by \a apply.
    void addNumber(const QString &name, int minimum, int maximum, int value, const Apply &apply);

    /// Returns the choices no and yes.
    static QVector<Choice> noAndYes();

private:
    QVariant value(const char *property) const;
    void add(const QString &name, QWidget *control);
    Slider *addSlider(const QString &name, int minimum, int maximum, const Apply &apply);
    SegmentedControl *addSegments(const QString &name, const QVector<Choice> &choices,
                                  const Apply &apply);
    void keepUpToDate(const std::function<void()> &refresh);
    void applyToAll(const Apply &apply, const QVariant &value) const;

    const QVector<QWidget *> m_widgets;
    QVector<std::function<void()>> m_refreshers; ///< Each shows a property's value in its control.
};
