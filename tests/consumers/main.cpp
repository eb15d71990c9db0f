// SPDX-License-Identifier: Apache-2.0
// The smallest program that an installed library must serve. It exits with 0 when a label has
// turned a colour set's name into the colour.

#include <UiElements/app/OxaApplication.h>
#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QTextStream>

namespace {

class Application final : public OxaApplication
{
public:
    using OxaApplication::OxaApplication;

    void onQmlEngineCreated(OxaQmlEngine *) override { }
    void restart() override { }
    void registerMainWindowShortcuts(OxaMainWindow *) override { }
};

} // namespace

int main(int argc, char **argv)
{
    const Application application(argc, argv);

    OxaColorSetMap colorSets;
    for (const char *name : { "banner", "button-hyperlink-text" })
        colorSets.emplace(name, OxaColorSet(QLatin1String(name), QColor(0x12, 0x34, 0x56)));
    OxaThemeUtils::setAppOxaColorSets(colorSets);

    OxaLabel label;
    label.setCSS(QStringLiteral("$backgroundColors: banner;"));
    label.ensurePolished();

    const QColor background = label.palette().color(QPalette::Window);
    QTextStream(stdout) << label.styleSheet() << '\n' << background.name() << '\n';
    return background == QColor(0x12, 0x34, 0x56) ? 0 : 1;
}
