// SPDX-License-Identifier: Apache-2.0
// The smallest program that an installed library must serve. It exits with 0 when a label has
// turned a colour set's name into the colour, and a field has shown its three looks.

#include <UiElements/app/OxaApplication.h>
#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>

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

OxaCSSData look(const QString &colorSetName)
{
    OxaCSSData css;
    css.backgroundColorSetName = colorSetName;
    return css;
}

/// Returns the names of the sets in which a field is painted at first, with a text, and with one
/// that its validator rejects.
QStringList looksOfAField()
{
    const OxaTextInputFactory fields({ look(QStringLiteral("field")),
                                       look(QStringLiteral("field-focused")),
                                       look(QStringLiteral("field-error")) });
    OxaWidget window;
    OxaTextInput *field = fields.make(&window);
    QStringList looks { field->getOxaCSS().backgroundColorSetName };
    field->setInputValidator([](const QString &text) { return text != QLatin1String("bad"); },
                             true);
    for (const char *text : { "good", "bad" }) {
        field->setText(QLatin1String(text));
        looks += field->getOxaCSS().backgroundColorSetName;
    }
    return looks;
}

} // namespace

int main(int argc, char **argv)
{
    const Application application(argc, argv);

    OxaColorSetMap colorSets;
    for (const char *name :
         { "banner", "button-hyperlink-text", "field", "field-focused", "field-error" })
        colorSets.emplace(name, OxaColorSet(QLatin1String(name), QColor(0x12, 0x34, 0x56)));
    OxaThemeUtils::setAppOxaColorSets(colorSets);

    OxaLabel label;
    label.setCSS(QStringLiteral("$backgroundColors: banner;"));
    label.ensurePolished();

    const QColor background = label.palette().color(QPalette::Window);
    QTextStream(stdout) << label.styleSheet() << '\n' << background.name() << '\n';
    const QString looks = looksOfAField().join(QLatin1Char(' '));
    QTextStream(stdout) << looks << '\n';
    const bool isRight = background == QColor(0x12, 0x34, 0x56)
            && looks == QLatin1String("field field-focused field-error");
    return isRight ? 0 : 1;
}
