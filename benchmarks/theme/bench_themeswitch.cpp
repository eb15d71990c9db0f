// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QApplication>
#include <QVBoxLayout>

#include <memory>
#include <vector>

namespace {

constexpr int sectionCount = 10;
constexpr int rowsPerSection = 9;
constexpr int labelsPerRow = 10;

enum class StyledWidgets { All, Leaves };

const QString groundText = QStringLiteral("$backgroundColors: set-1; $borderColors: set-2; "
                                          "$borderRadius: 6;");
const QString labelText = QStringLiteral("$backgroundColors: set-3; $textColors: set-4; "
                                         "$borderRadius: 4;");

/// A shown window of 1,001 widgets, four deep, and their finished sheets under two theme types.
class Window
{
public:
    explicit Window(StyledWidgets styled)
        : m_groundText(styled == StyledWidgets::All ? groundText : QString())
    {
        fillStores(false);
        m_window.setCSS(m_groundText);
        m_widgets.push_back(&m_window);
        auto *layout = new QVBoxLayout(&m_window);
        for (int i = 0; i < sectionCount; ++i)
            layout->addWidget(makeSection());
        m_window.show();
        QCoreApplication::processEvents();
        noteSheets(QStringLiteral("dark"), m_darkSheets);
        noteSheets(QStringLiteral("light"), m_lightSheets);
    }

    void setThemeType(bool isDark)
    {
        m_window.setThemeType(isDark ? QStringLiteral("dark") : QStringLiteral("light"));
    }

    /// Makes the calls to Qt that a switch of the theme type makes, and nothing else.
    void setStyleSheets(bool isDark)
    {
        const std::vector<QString> &sheets = isDark ? m_darkSheets : m_lightSheets;
        for (std::size_t i = 0; i < m_widgets.size(); ++i) {
            if (!sheets[i].isEmpty())
                m_widgets[i]->QWidget::setStyleSheet(sheets[i]);
        }
    }

    /// Fills the stores and refreshes all widgets by the library's function.
    void refresh(bool isDark)
    {
        fillStores(isDark);
        OxaThemeUtils::refreshThemedWidgets();
    }

    /// The same, by setting each widget's theme type again.
    void rewriteThemeTypes(bool isDark)
    {
        fillStores(isDark);
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            const QVariant themeType = widget->property("themeType");
            if (themeType.isValid())
                widget->setProperty("themeType", themeType);
        }
    }

    /// True when switching sets the same sheets as the peer.
    bool agrees()
    {
        setThemeType(true);
        for (std::size_t i = 0; i < m_widgets.size(); ++i) {
            if (m_widgets[i]->styleSheet() != m_darkSheets[i] || m_darkSheets == m_lightSheets)
                return false;
        }
        return true;
    }

private:
    static void fillStores(bool isDark)
    {
        OxaThemeUtils::setAppOxaColorSets(Stores::make(600, isDark ? 100 : 0));
        OxaThemeUtils::setAppInvertedOxaColorSets(Stores::make(600, isDark ? 0 : 100));
    }

    OxaWidget *makeGround(QWidget *parent)
    {
        auto *ground = new OxaWidget(parent);
        ground->setCSS(m_groundText);
        m_widgets.push_back(ground);
        return ground;
    }

    OxaWidget *makeSection()
    {
        OxaWidget *section = makeGround(&m_window);
        auto *layout = new QVBoxLayout(section);
        for (int i = 0; i < rowsPerSection; ++i) {
            OxaWidget *row = makeGround(section);
            auto *rowLayout = new QHBoxLayout(row);
            for (int j = 0; j < labelsPerRow; ++j) {
                auto *label = new OxaLabel(QStringLiteral("Ready"), row);
                label->setCSS(labelText);
                m_widgets.push_back(label);
                rowLayout->addWidget(label);
            }
            layout->addWidget(row);
        }
        return section;
    }

    void noteSheets(const QString &themeType, std::vector<QString> &sheets)
    {
        m_window.setThemeType(themeType);
        for (const QWidget *widget : m_widgets)
            sheets.push_back(widget->styleSheet());
    }

    const QString m_groundText;
    OxaWidget m_window;
    std::vector<QWidget *> m_widgets; ///< In the order in which a switch reaches them.
    std::vector<QString> m_darkSheets;
    std::vector<QString> m_lightSheets;
};

void switchTheme(benchmark::State &state, StyledWidgets styled, double limit)
{
    Window window(styled);
    if (!window.agrees())
        state.SkipWithError("a switch sets other sheets than its peer");

    // Each side switches the colours, so that neither sets the same sheets again.
    bool isDark = true;
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&] { window.setThemeType(isDark = !isDark); },
                         [&] { window.setStyleSheets(isDark = !isDark); });
    comparison.ratioAtMost(limit);
}

void switchAll(benchmark::State &state) { switchTheme(state, StyledWidgets::All, 1.02); }
BENCHMARK(switchAll)
        ->Name("theme switch of 1,001 widgets/QWidget::setStyleSheet")
        ->Iterations(15)
        ->UseManualTime();

/// Leaves are what Qt is fastest with, so that the expansion of their texts shows.
void switchLeaves(benchmark::State &state) { switchTheme(state, StyledWidgets::Leaves, 1.05); }
BENCHMARK(switchLeaves)
        ->Name("theme switch of 900 leaves/QWidget::setStyleSheet")
        ->Iterations(15)
        ->UseManualTime();

void refresh(benchmark::State &state)
{
    Window window(StyledWidgets::All);
    bool isDark = true;
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&] { window.refresh(isDark = !isDark); },
                         [&] { window.rewriteThemeTypes(isDark = !isDark); });
    comparison.ratioAtMost(1.02);
}
BENCHMARK(refresh)
        ->Name("new colours in 1,001 widgets/writing each theme type anew")
        ->Iterations(15)
        ->UseManualTime();

/// An empty style text under a styled parent, compared with Qt's own setter in the same place.
void emptyStyleText(benchmark::State &state)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    OxaWidget parent;
    parent.setCSS(groundText);
    parent.show();

    Comparison comparison(state);
    for (auto _ : state) {
        OxaLabel ours(&parent);
        OxaLabel peer(&parent);
        comparison.round([&ours] { ours.setCSS(QString()); },
                         [&peer] { peer.QWidget::setStyleSheet(QString()); });
    }
    comparison.ratioAtMost(1.0);
}
BENCHMARK(emptyStyleText)
        ->Name("empty style text on a fresh label/QWidget::setStyleSheet")
        ->Iterations(500)
        ->UseManualTime();

} // namespace
