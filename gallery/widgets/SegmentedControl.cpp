// SPDX-License-Identifier: Apache-2.0
#include "SegmentedControl.h"

#include "Buttons.h"

#include <QButtonGroup>
#include <QHBoxLayout>

namespace {

QString look(const char *background, const char *text, const char *focusBorder)
{
    return QStringLiteral("$backgroundColors: %1; $textColors: %2; $borderRadius: 6;"
                          "OxaToggleButton { padding: 3px 10px; border: 2px solid transparent; }"
                          "OxaToggleButton:focus { border-color: $(%3); }")
            .arg(QLatin1String(background), QLatin1String(text), QLatin1String(focusBorder));
}

} // namespace

SegmentedControl::SegmentedControl(const QStringList &texts, QWidget *parent)
    : OxaWidget(parent), m_buttons(new QButtonGroup(this))
{
    // References, and no directives: the frame around the segments has no states.
    setCSS(QStringLiteral("SegmentedControl {"
                          " background-color: $(gallery-pill-background);"
                          " border: 1px solid $(gallery-button-border); border-radius: 8px; }"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(2, 2, 2, 2);
    row->setSpacing(2);
    const QString unchecked = look("gallery-pill-background", "oxa-contentTabViewButton-text",
                                   "gallery-focus-border.normal");
    const QString checked = look("gallery-pill-checked-background",
                                 "oxa-contentTabViewButtonChecked-text",
                                 "gallery-focus-border.checked");
    for (int i = 0; i < texts.size(); ++i) {
        OxaToggleButton *button = Buttons::makeChoice(texts[i], unchecked, checked, this);
        button->setFontToken(OxaFont::Token::TagLabelSecondary);
        m_buttons->addButton(button, i);
        row->addWidget(button);
    }
    setCurrentIndex(0);
    connect(m_buttons, &QButtonGroup::idClicked, this, &SegmentedControl::chosen);
}

int SegmentedControl::currentIndex() const { return m_buttons->checkedId(); }

void SegmentedControl::setCurrentIndex(int index) { m_buttons->button(index)->setChecked(true); }
