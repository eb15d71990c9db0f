// SPDX-License-Identifier: Apache-2.0
// Shows a window of 20 themed widgets and ends at its first paint. With an argument, accessibility
// is left to Qt.
#include "FirstPaint.h"
#include "support/BenchmarkApplication.h"
#include "support/Stores.h"

#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QVBoxLayout>

int main(int argc, char **argv)
{
    const BenchmarkApplication application(argc, argv);
    if (argc > 1)
        BenchmarkApplication::leaveAccessibilityToQt();
    OxaThemeUtils::setAppOxaColorSets(Stores::make(10));
    OxaWidget window;
    const FirstPaint firstPaint(&window);
    auto *layout = new QVBoxLayout(&window);
    for (int i = 0; i < 10; ++i) {
        auto *ground = new OxaWidget(&window);
        ground->setObjectName(QStringLiteral("ground"));
        ground->setCSS(QStringLiteral("$backgroundColors: set-1; $borderRadius: 4;"));
        auto *label = new OxaLabel(QStringLiteral("Ready to join"), ground);
        label->setObjectName(QStringLiteral("label"));
        label->setCSS(QStringLiteral("$textColors: set-2;"));
        (new QVBoxLayout(ground))->addWidget(label);
        layout->addWidget(ground);
    }
    window.show();
    return QCoreApplication::exec();
}
