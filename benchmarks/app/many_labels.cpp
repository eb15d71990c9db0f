// SPDX-License-Identifier: Apache-2.0
// Prints the nanoseconds of CPU time that 1,000 labels take to be made, and a switch of their
// theme. With an argument, accessibility is left to Qt.
#include "support/BenchmarkApplication.h"
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QVBoxLayout>

#include <cstdio>

namespace {

void makeLabels(OxaWidget &window)
{
    auto *layout = new QVBoxLayout(&window);
    for (int i = 0; i < 1000; ++i)
        layout->addWidget(new OxaLabel(QStringLiteral("Ready to join"), &window));
}

} // namespace

int main(int argc, char **argv)
{
    const BenchmarkApplication application(argc, argv);
    if (argc > 1)
        BenchmarkApplication::leaveAccessibilityToQt();
    OxaThemeUtils::setAppOxaColorSets(Stores::make(10));
    OxaThemeUtils::setAppInvertedOxaColorSets(Stores::make(10, 100));
    OxaWidget window;
    const double making = Comparison::timeOf([&window] { makeLabels(window); });

    const auto labels = window.findChildren<OxaLabel *>();
    for (OxaLabel *label : labels)
        label->setCSS(QStringLiteral("$textColors: set-2; $borderRadius: 4;"));
    window.show();
    QCoreApplication::processEvents();
    bool isDark = false;
    const double switching = Comparison::timeOf(
            [&] {
                isDark = !isDark;
                window.setThemeType(isDark ? QStringLiteral("dark") : QStringLiteral("light"));
            },
            4);
    std::printf("%f %f\n", making, switching);
    return 0;
}
