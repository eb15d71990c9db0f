// SPDX-License-Identifier: Apache-2.0
#include "MissingColors_p.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QDebug>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QWidget>

namespace {

Q_LOGGING_CATEGORY(themeLog, "uielements.theme", QtWarningMsg)

} // namespace

void MissingColors::tell(const QString &name, const QWidget *widget)
{
    if (themeLog().isInfoEnabled())
        QMessageLogger(nullptr, 0, nullptr, themeLog().categoryName()).info()
                << "No colours called" << name << "for" << widget->metaObject()->className()
                << widget->objectName();
}

void MissingColors::tellOfLeftovers(const QString &sheet, const QWidget *widget)
{
    if (!themeLog().isInfoEnabled())
        return;
    using OxaThemeUtils::ColorSetType;
    for (const auto type : { ColorSetType::Background, ColorSetType::Border, ColorSetType::Text }) {
        const QString name = OxaThemeUtils::getColorSetNameFromString(type, sheet);
        if (!name.isEmpty())
            tell(name, widget);
    }
    static const QRegularExpression reference(QStringLiteral(R"(\$\(([^)$\n]*)\))"));
    for (auto found = reference.globalMatch(sheet); found.hasNext();)
        tell(found.next().captured(1), widget);
}
