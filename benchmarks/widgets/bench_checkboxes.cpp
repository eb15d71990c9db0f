// SPDX-License-Identifier: Apache-2.0
#include "ButtonWindow.h"
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/widgets/OxaCheckBox.h>

#include <QPainter>
#include <QStyleOptionButton>

namespace {

constexpr int checkBoxCount = 1000;
const QString styleText = QStringLiteral("$backgroundColors: set-1; $textColors: set-3;");

/// Returns the benchmarks' store with the sets that check boxes ask for themselves.
OxaColorSetMap makeStore()
{
    OxaColorSetMap store = Stores::make(600);
    for (const char *name :
         { "oxa-default-text", "oxa-recorder-comboBox-border", "checkbox-checked-background",
           "checkbox-unchecked-background", "background-primary",
           "oxa-reaction-list-item-gradient-background-end-color" }) {
        store.emplace(name, OxaColorSet(QString::fromLatin1(name), QColor(40, 90, 200)));
    }
    return store;
}

/// The finished sheets select a check box by its object name, so that they fit any class.
void prepare(QCheckBox &checkBox, bool isChecked)
{
    checkBox.setObjectName(QStringLiteral("agree"));
    checkBox.setText(QStringLiteral("Agree"));
    checkBox.setChecked(isChecked);
}

/// A QCheckBox that paints a tick on its box while it is checked.
class TickBox : public QCheckBox
{
public:
    explicit TickBox(QWidget *parent) : QCheckBox(parent) { }

    void showLike(const OxaCheckBox &other)
    {
        setAttribute(Qt::WA_Hover);
        setStyleSheet(other.styleSheet());
        m_icon.setFilePath(other.getSvgIcon());
        m_icon.setIconSize(other.getSvgIconSize());
        m_icon.setColorSet(OxaThemeUtils::getColorSet("set-3", other.getThemeType()));
        QStyleOptionButton option;
        initStyleOption(&option);
        m_tickPlace = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this).topLeft()
                + QPoint(2, 2);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QCheckBox::paintEvent(event);
        if (!isChecked())
            return;
        QPainter painter(this);
        painter.translate(m_tickPlace);
        m_icon.draw(&painter, QStyle::State_Enabled | QStyle::State_On);
    }

private:
    OxaSvgIcon m_icon;
    QPoint m_tickPlace;
};

void checkBoxes(benchmark::State &state, bool isChecked)
{
    OxaThemeUtils::setAppOxaColorSets(makeStore());
    ButtonWindow<OxaCheckBox> ours(checkBoxCount, [isChecked](OxaCheckBox &checkBox) {
        prepare(checkBox, isChecked);
        checkBox.setCSS(styleText);
    });
    ButtonWindow<TickBox> peer(checkBoxCount, [isChecked, &ours](TickBox &checkBox) {
        prepare(checkBox, isChecked);
        checkBox.showLike(ours.button());
    });

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&ours] { ours.repaint(); }, [&peer] { peer.repaint(); });
    comparison.ratioAtMost(1.15);
}
BENCHMARK_CAPTURE(checkBoxes, unchecked, false)
        ->Name("repainting 1,000 check boxes/QCheckBox with the finished sheet")
        ->Iterations(200)
        ->UseManualTime();
BENCHMARK_CAPTURE(checkBoxes, checked, true)
        ->Name("repainting 1,000 checked boxes/QCheckBox with the finished sheet and the tick")
        ->Iterations(200)
        ->UseManualTime();

} // namespace
