// SPDX-License-Identifier: Apache-2.0
#include "TextSettings.h"

#include <UiElements/app/OxaApplication.h>
#include <UiElements/fonts/OxaFontManager.h>

#include <QWidget>

namespace {

/// Writing a font token makes its font again, at the current scale.
void reapplyFontTokens()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        const QVariant token = widget->property("fontToken");
        if (token.isValid())
            widget->setProperty("fontToken", token);
    }
}

/// Only the regular table includes the application's scale.
void rebuildTable(FontManagerEnum::FontType view, FontManagerEnum::FontScalingFactor factor)
{
    OxaFontManager *manager = OxaFontManager::get();
    manager->setScalingFactor(view, FontManagerEnum::FontScalingFactor::Regular);
    if (factor != FontManagerEnum::FontScalingFactor::Regular)
        manager->setScalingFactor(view, factor);
}

} // namespace

TextSettings::TextSettings(QObject *parent)
    : QObject(parent),
      m_scaling { { FontType::MessagingView, ScalingFactor::Regular },
                  { FontType::MeetingView, ScalingFactor::Regular } }
{
}

void TextSettings::setDirection(Qt::LayoutDirection direction)
{
    // Labels read this when the layout direction changes: the text goes where the layout goes.
    qApp->setProperty("TextDirection", int(direction));
    QGuiApplication::setLayoutDirection(direction);
}

void TextSettings::setFontScale(float scale)
{
    qApp->setProperty("fontScaleFactor", scale);
    for (const auto &[view, factor] : m_scaling)
        rebuildTable(view, factor);
    reapplyFontTokens();
    Q_EMIT sizesChanged();
}

TextSettings::ScalingFactor TextSettings::scaling(FontType view) const
{
    return m_scaling.at(view);
}

void TextSettings::zoomMessages(int steps)
{
    const int factor = qBound(int(ScalingFactor::Small),
                              int(scaling(FontType::MessagingView)) + steps,
                              int(ScalingFactor::Large));
    setScaling(FontType::MessagingView, static_cast<ScalingFactor>(factor));
}

void TextSettings::setScaling(FontType view, ScalingFactor factor)
{
    m_scaling[view] = factor;
    OxaFontManager::get()->setScalingFactor(view, factor);
    Q_EMIT sizesChanged();
}
