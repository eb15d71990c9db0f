// SPDX-License-Identifier: Apache-2.0
#include "OxaThemeBlock.h"

#include "ThemeChange_p.h"
#include "WidgetStyleText_p.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QMetaMethod>
#include <QPointer>
#include <QVariant>

#include <utility>

using OxaThemeUtils::AppThemeType;

namespace {

/// True for themed widgets. Others that have a theme type know nothing of changes, so that each
/// signal of theirs is a change of its own.
bool beginsChanges(const QObject *parent)
{
    return !parent || parent->metaObject()->indexOfSlot("refreshCSS()") >= 0;
}

template <typename Value>
void keep(Value *place, const Value &value)
{
    if (place)
        *place = value;
}

/// Makes Qt forget what it takes \a widget for, if one of its base classes may have told assistive
/// technology of it: that it is disabled, as its parent is, or that it has a model or a text.
void forgetEarlyInterface(QWidget *widget)
{
    const bool isToldEarly = QAccessible::isActive() || !widget->isEnabled()
            || qobject_cast<QAbstractItemView *>(widget)
            || qobject_cast<QAbstractSpinBox *>(widget);
    if (!isToldEarly)
        return;
    QAccessibleInterface *early = QAccessible::queryAccessibleInterface(widget);
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(early));
}

} // namespace

void OxaThemeBlock::followTheme()
{
    forgetEarlyInterface(m_widget);
    m_class.followTheme(m_widget);
    followParent(Qt::AutoConnection);
}

void OxaThemeBlock::setCSS(const QString &styleText)
{
    m_styleText = styleText;
    const OxaThemeUtils::CSSParserResult result =
            WidgetStyleText::parse(m_widget, effectiveThemeType(), m_styleText,
                                   OxaThemeUtils::getAppOxaColorSets());
    m_cssData = result.oxaCSS;
    keep(m_kept.text, result.textColorSet);
    keep(m_kept.background, result.backgroundColorSet);
    keep(m_kept.border, result.borderColorSet);
    keep(m_kept.cssData, m_cssData);

    const QString &sheet = result.expandedStyleSheet;
    // Never switched off: a rule in a parent's style sheet may need the attribute too.
    if (m_form == Form::StyledBackground && !sheet.isEmpty())
        m_widget->setAttribute(Qt::WA_StyledBackground);
    const bool hasSheet = !m_widget->styleSheet().isEmpty();
    // Qt ignores a second sheet of a widget that is not polished, if a child has read the first.
    if (hasSheet)
        m_widget->ensurePolished();
    // Setting an empty sheet on a widget that has none would still make Qt compute its style again.
    if (!sheet.isEmpty() || hasSheet)
        m_widget->QWidget::setStyleSheet(sheet);
    // A slot may delete the widget, and the block with it.
    const QPointer<QWidget> widget(m_widget);
    m_class.emitCssChanged(m_widget);
    if (widget && m_form == Form::Full)
        followObjectName();
}

void OxaThemeBlock::setStyleSheet(const QString &styleSheet)
{
    if (m_styleText.isEmpty())
        m_styleText = styleSheet;
    m_widget->QWidget::setStyleSheet(styleSheet);
}

AppThemeType OxaThemeBlock::effectiveThemeType() const
{
    const AppThemeType own = OxaThemeUtils::stringToThemeType(m_themeType);
    return own != AppThemeType::Global ? own
                                       : OxaThemeUtils::getThemeTypeOfWidget(m_widget->window());
}

void OxaThemeBlock::setThemeType(const QString &themeType)
{
    const ThemeChange change;
    applyThemeType(themeType);
}

void OxaThemeBlock::changeEvent(const QEvent *event)
{
    if (event->type() != QEvent::ParentChange)
        return;
    followParent(Qt::UniqueConnection);
    const ThemeChange change;
    takeThemeTypeFromAbove();
}

void OxaThemeBlock::onParentThemeTypeChanged(const QObject *parent)
{
    if (ThemeChange::refreshes(parent))
        return;
    if (ThemeChange::depth() == 0 || !beginsChanges(parent)) {
        const ThemeChange change;
        takeThemeTypeFromAbove();
    } else if (m_change != ThemeChange::depth()) {
        takeThemeTypeFromAbove();
    }
}

void OxaThemeBlock::takeThemeTypeFromAbove()
{
    const QWidget *parent = m_widget->parentWidget();
    if (!parent || !takeThemeTypeOf(parent))
        takeThemeTypeOf(m_widget->window());
}

/// Makes \a themeType the widget's own. Widgets that stay connected to earlier parents may form a
/// circle: a change that comes back to a widget ends there.
void OxaThemeBlock::applyThemeType(const QString &themeType)
{
    const int outerChange = std::exchange(m_change, ThemeChange::depth());
    m_themeType = themeType;
    const QPointer<QWidget> widget(m_widget);
    refreshCSS();
    if (widget)
        m_class.emitThemeTypeChanged(m_widget);
    if (widget)
        m_change = outerChange;
}

/// Connects the widget to its parent's theme type, in addition to those of earlier parents.
void OxaThemeBlock::followParent(Qt::ConnectionType connectionType)
{
    const QObject *parent = m_widget->parent();
    if (!parent)
        return;
    const QMetaObject *parentClass = parent->metaObject();
    const int signal = parentClass->indexOfSignal("themeTypeChanged()");
    if (signal < 0)
        return;
    const QMetaObject *ownClass = m_widget->metaObject();
    QObject::connect(parent, parentClass->method(signal), m_widget,
                     ownClass->method(ownClass->indexOfSlot("onParentThemeTypeChanged()")),
                     connectionType);
}

/// Takes over the theme type of \a other if it differs from the widget's. Words are compared by
/// meaning: an unknown word is the same as "global".
bool OxaThemeBlock::takeThemeTypeOf(const QWidget *other)
{
    const QVariant otherType = other->property("themeType");
    if (!otherType.isValid()
        || OxaThemeUtils::stringToThemeType(otherType.toString())
                == OxaThemeUtils::stringToThemeType(m_themeType))
        return false;
    applyThemeType(otherType.toString());
    return true;
}
