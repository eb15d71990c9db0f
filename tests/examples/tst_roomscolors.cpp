// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

constexpr double textContrast = 4.5;
constexpr double highTextContrast = 7.0;
constexpr double shapeContrast = 3.0;

struct Pair
{
    const char *front;
    const char *ground;
};

/// Texts that stand on grounds, in each of their states.
constexpr Pair texts[] = {
    { "text-primary", "window" },
    { "text-primary", "sidebar" },
    { "text-secondary", "window" },
    { "text-secondary", "sidebar" },
    { "text-secondary", "panel" },
    { "text-accent", "window" },
    { "row-text", "row" },
    { "row-text-secondary", "row" },
    { "bubble-own-text", "bubble-own" },
    { "bubble-other-text", "bubble-other" },
    { "accent-button-text", "accent-button" },
    { "outline-button-text", "outline-button" },
    { "quiet-button-text", "quiet-button" },
    { "chosen-button-text", "chosen-button" },
    { "danger-button-text", "danger-button" },
    { "field-text", "field-background" },
    { "field-placeholder", "field-background" },
    { "field-error", "panel" },
    { "badge-text", "badge" },
    { "tab-text", "tab" },
    { "toast-text", "toast" },
    { "selection-text", "selection" },
    { "reaction-mine-text", "reaction-mine" },
    { "alertText-warning", "alertBackground-warning" },
    { "alertText-error", "alertBackground-error" },
    { "person-text", "person-1" },
    { "person-text", "person-2" },
    { "person-text", "person-3" },
    { "person-text", "person-4" },
    { "person-text", "person-5" },
    { "person-text", "person-6" },
};

/// Lines and shapes that tell something.
constexpr const char *shapes[] = { "focus",         "field-border",  "field-focus-border",
                                   "presence-away", "presence-busy", "presence-active",
                                   "unread-line",   "level",         "presence-offline" };

double luminance(const QColor &color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
            + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [low, high] = std::minmax({ luminance(a), luminance(b) });
    return (high + 0.05) / (low + 0.05);
}

OxaColorSetMap read(const char *name)
{
    const QString folder = QStringLiteral(DOCUMENTS);
    return OxaThemeUtils::parseOxaColorSetsFromJson(
            folder + QStringLiteral("/%1.json").arg(QLatin1String(name)),
            OxaThemeUtils::parseOxaColorsFromJson(folder + QStringLiteral("/palette.json")));
}

} // namespace

/// The colour documents of examples/rooms.
class tst_RoomsColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void haveTheSameSets();
    void areReadable_data();
    void areReadable();
    void tellShapesFromTheirGround_data() { areReadable_data(); }
    void tellShapesFromTheirGround();
};

void tst_RoomsColors::haveTheSameSets()
{
    const OxaColorSetMap light = read("light");
    QVERIFY(light.size() > 80);
    for (const char *name : { "dark", "high-contrast" }) {
        const OxaColorSetMap other = read(name);
        QCOMPARE(other.size(), light.size());
        for (const auto &entry : light)
            QVERIFY2(other.count(entry.first) == 1, entry.first.c_str());
    }
}

void tst_RoomsColors::areReadable_data()
{
    QTest::addColumn<double>("wanted");
    QTest::newRow("light") << textContrast;
    QTest::newRow("dark") << textContrast;
    QTest::newRow("high-contrast") << highTextContrast;
}

void tst_RoomsColors::areReadable()
{
    QFETCH(const double, wanted);
    const OxaColorSetMap sets = read(QTest::currentDataTag());
    const QColor clearGround = sets.at("window").normal;
    for (const Pair &pair : texts) {
        const OxaColorSet &text = sets.at(pair.front);
        const OxaColorSet &ground = sets.at(pair.ground);
        for (const auto state : { &OxaColorSet::normal, &OxaColorSet::hovered,
                                  &OxaColorSet::pressed, &OxaColorSet::checked }) {
            const QColor behind = (ground.*state).alpha() == 0 ? clearGround : ground.*state;
            QVERIFY2(contrast(text.*state, behind) >= wanted, pair.front);
        }
    }
}

void tst_RoomsColors::tellShapesFromTheirGround()
{
    const OxaColorSetMap sets = read(QTest::currentDataTag());
    for (const char *shape : shapes) {
        for (const char *ground : { "window", "sidebar", "panel" })
            QVERIFY2(contrast(sets.at(shape).normal, sets.at(ground).normal) >= shapeContrast,
                     shape);
    }
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_RoomsColors)
#include "tst_roomscolors.moc"
