// SPDX-License-Identifier: Apache-2.0
#include "PropertyControls.h"

#include "looks/Metrics.h"
#include "widgets/Fields.h"
#include "widgets/SegmentedControl.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QHBoxLayout>
#include <QMetaProperty>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

using Choice = PropertyControls::Choice;
using Choices = PropertyControls::Choices;

/// More choices would not fit beside the caption.
constexpr int mostChoices = 6;

/// Properties of all themed widgets, which the header of the window sets.
constexpr const char *commonProperties[] = { "css", "themeType", "styleSheet", "fontToken",
                                             "fontType" };

QStringList textsOf(const Choices &choices)
{
    QStringList texts;
    for (const auto &choice : choices)
        texts += choice.text;
    return texts;
}

/// Returns the index of \a value, which may be an enumerator or its number; -1 if it is none.
int indexOf(const Choices &choices, const QVariant &value)
{
    const auto found = std::find_if(choices.begin(), choices.end(), [&value](const Choice &choice) {
        return choice.value == value
                || (choice.value.type() == QVariant::Int && choice.value.toInt() == value.toInt());
    });
    return found == choices.end() ? -1 : int(found - choices.begin());
}

/// Returns the length of the common beginning of \a texts.
int commonStart(const QStringList &texts)
{
    const auto [first, last] = std::minmax_element(texts.begin(), texts.end());
    const auto end = std::mismatch(first->begin(), first->end(), last->begin(), last->end());
    return int(end.first - first->begin());
}

QStringList reversed(QStringList texts)
{
    for (QString &text : texts)
        std::reverse(text.begin(), text.end());
    return texts;
}

/// Returns the enumerators of \a type, without the common beginning and end of their names.
Choices enumerators(const QMetaEnum &type)
{
    QStringList keys;
    for (int i = 0; i < type.keyCount(); ++i)
        keys += QString::fromLatin1(type.key(i));
    const int start = commonStart(keys);
    const int end = commonStart(reversed(keys));
    Choices choices;
    for (int i = 0; i < keys.size(); ++i)
        choices += { keys[i].mid(start).chopped(end), type.value(i) };
    return choices;
}

} // namespace

PropertyControls::PropertyControls(const QVector<QWidget *> &widgets, QWidget *parent)
    : ControlPanel(parent)
{
    for (QWidget *widget : widgets)
        m_objects += widget;
}

PropertyControls::PropertyControls(QObject *object, QWidget *parent)
    : ControlPanel(parent), m_objects { object }
{
}

QWidget *PropertyControls::front() const { return qobject_cast<QWidget *>(m_objects.front()); }

void PropertyControls::offer(const char *ending, const Choices &choices)
{
    m_offers += { ending, choices };
}

void PropertyControls::setRange(const char *property, int minimum, int maximum)
{
    m_ranges[property] = { minimum, maximum };
}

void PropertyControls::addAll()
{
    const QMetaObject *type = m_objects.front()->metaObject();
    for (; !QByteArray(type->className()).startsWith('Q'); type = type->superClass()) {
        for (int i = type->propertyOffset(); i < type->propertyCount(); ++i)
            add(type->property(i));
    }
}

void PropertyControls::addProperty(const char *property)
{
    const QMetaObject *type = m_objects.front()->metaObject();
    add(type->property(type->indexOfProperty(property)));
}

void PropertyControls::add(const QMetaProperty &property)
{
    const char *name = property.name();
    const auto isThis = [name](const char *other) { return qstrcmp(name, other) == 0; };
    if (std::any_of(std::begin(commonProperties), std::end(commonProperties), isThis)
        || hasControl(name))
        return;
    for (const auto &[ending, choices] : qAsConst(m_offers)) {
        if (QByteArray(name).endsWith(ending)) {
            addChoiceOf(name, choices);
            return;
        }
    }
    if (property.isEnumType()) {
        if (!property.isFlagType() && property.enumerator().keyCount() <= mostChoices)
            addChoiceOf(name, enumerators(property.enumerator()));
        return;
    }
    switch (property.userType()) {
    case QMetaType::Bool:
        addChoiceOf(name, noAndYes());
        break;
    case QMetaType::Int:
    case QMetaType::Double:
        addNumberOf(name);
        break;
    case QMetaType::QSize:
        addSizeOf(name);
        break;
    case QMetaType::QPoint:
        addPointOf(name);
        break;
    case QMetaType::QString:
        addTextOf(name);
        break;
    default:
        break;
    }
}

void PropertyControls::addChoiceOf(const char *property, const Choices &choices)
{
    SegmentedControl *control = ControlPanel::addChoice(QString::fromLatin1(property),
                                                        textsOf(choices), 0,
                                                        [this, property, choices](int i) {
                                                            setOnAll(property, choices[i].value);
                                                        });
    keepUpToDate([this, control, choices, property] {
        const int index = indexOf(choices, value(property));
        if (index >= 0)
            control->setCurrentIndex(index);
    });
}

void PropertyControls::addNumberOf(const char *property)
{
    const Range range = m_ranges.value(property);
    OxaSlider *slider = ControlPanel::addNumber(QString::fromLatin1(property), range.minimum,
                                                range.maximum, value(property).toInt(),
                                                [this, property](int number) {
                                                    setOnAll(property, number);
                                                });
    keepUpToDate([this, slider, property] { slider->setValue(value(property).toInt()); });
}

/// The size is a square one.
void PropertyControls::addSizeOf(const char *property)
{
    const Range range = m_ranges.value(property, { 8, 40 });
    OxaSlider *slider = ControlPanel::addNumber(QString::fromLatin1(property), range.minimum,
                                                range.maximum, value(property).toSize().width(),
                                                [this, property](int side) {
                                                    setOnAll(property, QSize(side, side));
                                                });
    keepUpToDate([this, slider, property] { slider->setValue(value(property).toSize().width()); });
}

void PropertyControls::addPointOf(const char *property)
{
    const Range range = m_ranges.value(property);
    auto *both = new OxaWidget;
    OxaSlider *x = Fields::slider(range.minimum, range.maximum, 0, both);
    OxaSlider *y = Fields::slider(range.minimum, range.maximum, 0, both);
    const QString name = QString::fromLatin1(property);
    x->setAccessibleName(tr("%1, across").arg(name));
    y->setAccessibleName(tr("%1, down").arg(name));
    const auto change = [this, property](void (QPoint::*set)(int)) {
        return [this, property, set](int number) {
            QPoint point = value(property).toPoint();
            (point.*set)(number);
            setOnAll(property, point);
        };
    };
    auto *row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small);
    row->addWidget(x);
    row->addWidget(y);
    ControlPanel::add(name, both);
    keepUpToDate([this, x, y, property] {
        x->setValue(value(property).toPoint().x());
        y->setValue(value(property).toPoint().y());
    });
    connect(x, &OxaSlider::valueChanged, this, change(&QPoint::setX));
    connect(y, &OxaSlider::valueChanged, this, change(&QPoint::setY));
}

void PropertyControls::addTextOf(const char *property)
{
    OxaLineEdit *field = addText(QString::fromLatin1(property), value(property).toString(),
                                 [this, property](const QString &text) {
                                     setOnAll(property, text);
                                 });
    keepUpToDate([this, field, property] {
        if (field->text() != value(property).toString())
            field->setText(value(property).toString());
    });
}

void PropertyControls::addChoice(const QString &name, const Choices &choices, const Apply &apply)
{
    ControlPanel::addChoice(name, textsOf(choices), 0,
                            [this, apply, choices](int i) { applyToAll(apply, choices[i].value); });
}

void PropertyControls::addNumber(const QString &name, int minimum, int maximum, int value,
                                 const Apply &apply)
{
    ControlPanel::addNumber(name, minimum, maximum, value,
                            [this, apply](int number) { applyToAll(apply, number); });
}

void PropertyControls::addWidth(int narrowest, int widest)
{
    addNumber(tr("setFixedWidth()"), narrowest, widest, front()->minimumWidth(),
              [](QWidget *widget, const QVariant &width) { widget->setFixedWidth(width.toInt()); });
}

void PropertyControls::addHeight(int lowest, int highest)
{
    addNumber(tr("setFixedHeight()"), lowest, highest, front()->minimumHeight(),
              [](QWidget *widget, const QVariant &height) {
                  widget->setFixedHeight(height.toInt());
              });
}

void PropertyControls::addReading(const QString &name, const std::function<QString()> &read)
{
    OxaLabel *label = addValue(name);
    keepUpToDate([label, read] { label->setText(read()); });
}

void PropertyControls::refresh()
{
    const QScopedValueRollback<bool> guard(m_isRefreshing, true);
    for (const auto &show : qAsConst(m_refreshers))
        show();
}

Choices PropertyControls::noAndYes() { return { { tr("No"), false }, { tr("Yes"), true } }; }

bool PropertyControls::hasControl(const char *property) const
{
    const auto controls = findChildren<QWidget *>();
    return std::any_of(controls.begin(), controls.end(), [property](const QWidget *control) {
        return control->accessibleName() == QLatin1String(property);
    });
}

QVariant PropertyControls::value(const char *property) const
{
    return m_objects.front()->property(property);
}

void PropertyControls::keepUpToDate(const std::function<void()> &show)
{
    m_refreshers += show;
    show();
}

void PropertyControls::setOnAll(const char *property, const QVariant &value)
{
    changeAll([property, &value](QObject *object) { object->setProperty(property, value); });
}

void PropertyControls::applyToAll(const Apply &apply, const QVariant &value)
{
    changeAll([&apply, &value](QObject *object) { apply(qobject_cast<QWidget *>(object), value); });
}

void PropertyControls::changeAll(const std::function<void(QObject *)> &change)
{
    // A slider is at its end if the value is out of its range.
    if (m_isRefreshing)
        return;
    for (QObject *object : qAsConst(m_objects))
        change(object);
    refresh();
}
