// SPDX-License-Identifier: Apache-2.0
#include "PropertyControls.h"

#include "Metrics.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/Labels.h"
#include "widgets/LineEdit.h"
#include "widgets/SegmentedControl.h"
#include "widgets/Slider.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QHBoxLayout>

namespace {

constexpr int captionShare = 2;
constexpr int controlShare = 3;

PropertyControls::Apply setter(const char *property)
{
    return [property](QWidget *widget, const QVariant &value) {
        widget->setProperty(property, value);
    };
}

QStringList textsOf(const QVector<PropertyControls::Choice> &choices)
{
    QStringList texts;
    for (const auto &choice : choices)
        texts += choice.text;
    return texts;
}

/// Checks the segment for \a value where there is one.
void showValue(SegmentedControl *control, const QVector<PropertyControls::Choice> &choices,
               const QVariant &value)
{
    for (int i = 0; i < choices.size(); ++i) {
        if (choices[i].value == value)
            control->setCurrentIndex(i);
    }
}

void showValue(Slider *slider, int value)
{
    const QSignalBlocker blocker(slider);
    slider->setValue(value);
}

} // namespace

PropertyControls::PropertyControls(const QVector<QWidget *> &widgets, QWidget *parent)
    : OxaWidget(parent), m_widgets(widgets)
{
    new ColumnsLayout(Metrics::spacing, Metrics::small, this);
}

void PropertyControls::addNumber(const char *property, int minimum, int maximum)
{
    Slider *slider = addSlider(QString::fromLatin1(property), minimum, maximum, setter(property));
    keepUpToDate([this, slider, property] { showValue(slider, value(property).toInt()); });
}

void PropertyControls::addSize(const char *property, int minimum, int maximum)
{
    Slider *slider = addSlider(QString::fromLatin1(property), minimum, maximum,
                               [property](QWidget *widget, const QVariant &side) {
                                   widget->setProperty(property, QSize(side.toInt(), side.toInt()));
                               });
    keepUpToDate([this, slider, property] { showValue(slider, value(property).toSize().width()); });
}

void PropertyControls::addPoint(const char *property, int minimum, int maximum)
{
    auto *x = new Slider(minimum, maximum, 0);
    auto *y = new Slider(minimum, maximum, 0);
    const QString name = QString::fromLatin1(property);
    x->setAccessibleName(tr("%1, across").arg(name));
    y->setAccessibleName(tr("%1, down").arg(name));
    const auto set = [this, property, x, y] {
        applyToAll(setter(property), QPoint(x->value(), y->value()));
    };
    connect(x, &QSlider::valueChanged, this, set);
    connect(y, &QSlider::valueChanged, this, set);

    auto *both = new OxaWidget;
    auto *row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small);
    row->addWidget(x);
    row->addWidget(y);
    add(name, both);
    keepUpToDate([this, x, y, property] {
        showValue(x, value(property).toPoint().x());
        showValue(y, value(property).toPoint().y());
    });
}

void PropertyControls::addText(const char *property)
{
    auto *field = new LineEdit;
    field->setText(value(property).toString());
    connect(field, &QLineEdit::textChanged, this,
            [this, property](const QString &text) { applyToAll(setter(property), text); });
    add(QString::fromLatin1(property), field);
}

void PropertyControls::addChoice(const char *property, const QVector<Choice> &choices)
{
    SegmentedControl *control = addSegments(QString::fromLatin1(property), choices,
                                            setter(property));
    keepUpToDate(
            [this, control, choices, property] { showValue(control, choices, value(property)); });
}

void PropertyControls::addSwitch(const char *property) { addChoice(property, noAndYes()); }

void PropertyControls::addChoice(const QString &name, const QVector<Choice> &choices,
                                 const Apply &apply)
{
    addSegments(name, choices, apply);
}

void PropertyControls::addNumber(const QString &name, int minimum, int maximum, int value,
                                 const Apply &apply)
{
    showValue(addSlider(name, minimum, maximum, apply), value);
}

QVector<PropertyControls::Choice> PropertyControls::noAndYes()
{
    return { { tr("No"), false }, { tr("Yes"), true } };
}

QVariant PropertyControls::value(const char *property) const
{
    return m_widgets.front()->property(property);
}

void PropertyControls::add(const QString &name, QWidget *control)
{
    control->setAccessibleName(name);
    auto *row = new OxaWidget(this);
    auto *captioned = new QHBoxLayout(row);
    captioned->setContentsMargins(0, 0, 0, 0);
    captioned->setSpacing(Metrics::small);
    auto *share = new QHBoxLayout;
    share->addWidget(control);
    if (control->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed)
        share->addStretch(1);
    // In shares, so that captions of different lengths leave the controls below each other.
    captioned->addWidget(Labels::caption(name, this), captionShare);
    captioned->addLayout(share, controlShare);
    layout()->addWidget(row);
}

Slider *PropertyControls::addSlider(const QString &name, int minimum, int maximum,
                                    const Apply &apply)
{
    auto *slider = new Slider(minimum, maximum, minimum);
    connect(slider, &QSlider::valueChanged, this,
            [this, apply](int number) { applyToAll(apply, number); });
    add(name, slider);
    return slider;
}

SegmentedControl *PropertyControls::addSegments(const QString &name, const QVector<Choice> &choices,
                                                const Apply &apply)
{
    auto *control = new SegmentedControl(textsOf(choices));
    connect(control, &SegmentedControl::chosen, this,
            [this, apply, choices](int i) { applyToAll(apply, choices[i].value); });
    add(name, control);
    return control;
}

void PropertyControls::keepUpToDate(const std::function<void()> &refresh)
{
    m_refreshers += refresh;
    refresh();
}

void PropertyControls::applyToAll(const Apply &apply, const QVariant &value) const
{
    for (QWidget *widget : m_widgets)
        apply(widget, value);
    for (const auto &refresh : m_refreshers)
        refresh();
}
