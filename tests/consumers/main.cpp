// SPDX-License-Identifier: Apache-2.0
// The smallest program that an installed library must serve. It exits with 0 when a label and a
// text input, which only its factory can make, have turned a colour set's name into the colour.

#include <UiElements/app/OxaApplication.h>
#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>

#include <QTextStream>

#include <memory>

namespace {

class Application final : public OxaApplication
{
public:
    using OxaApplication::OxaApplication;

    void onQmlEngineCreated(OxaQmlEngine *) override { }
    void restart() override { }
    void registerMainWindowShortcuts(OxaMainWindow *) override { }
};

const QColor bannerColor(0x12, 0x34, 0x56);

/// Returns whether \a widget has the banner's colour as its background.
bool showsBanner(QWidget &widget)
{
    widget.ensurePolished();
    const QColor background = widget.palette().color(QPalette::Window);
    QTextStream(stdout) << widget.styleSheet() << '\n' << background.name() << '\n';
    return background == bannerColor;
}

} // namespace

int main(int argc, char **argv)
{
    const Application application(argc, argv);

    OxaColorSetMap colorSets;
    for (const char *name : { "banner", "button-hyperlink-text" })
        colorSets.emplace(name, OxaColorSet(QLatin1String(name), bannerColor));
    OxaThemeUtils::setAppOxaColorSets(colorSets);

    OxaLabel label;
    label.setCSS(QStringLiteral("$backgroundColors: banner;"));

    OxaCSSData look;
    look.backgroundColorSetName = QStringLiteral("banner");
    const OxaTextInputFactory fields({ look, look, look });
    const std::unique_ptr<OxaTextInput> field(fields.make(nullptr));

    return showsBanner(label) && showsBanner(*field) ? 0 : 1;
}
