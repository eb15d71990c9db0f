// SPDX-License-Identifier: Apache-2.0
#include "SegmentedControl.h"

#include "widgets/ToggleButton.h"

#include <QButtonGroup>
#include <QHBoxLayout>

namespace {

ToggleButton::Look segmentLook()
{
    const QString shape = QStringLiteral("$borderWidth: 2; $borderRadius: 6;"
                                         "ToggleButton { padding: 3px 10px; }");
    return { QStringLiteral("$backgroundColors: gallery-pill-background;"
                            "$borderColors: gallery-quiet-button-border;"
                            "$textColors: oxa-contentTabViewButton-text;")
                     + shape,
             QStringLiteral("$backgroundColors: gallery-pill-checked-background;"
                            "$borderColors: gallery-accent-button-border;"
                            "$textColors: oxa-contentTabViewButtonChecked-text;")
                     + shape };
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
    const ToggleButton::Look look = segmentLook();
    for (int i = 0; i < texts.size(); ++i) {
        auto *button = new ToggleButton(texts[i], look, this);
        button->setFontToken(OxaFont::Token::TagLabelSecondary);
        m_buttons->addButton(button, i);
        row->addWidget(button);
    }
    setCurrentIndex(0);
    connect(m_buttons, &QButtonGroup::idClicked, this, &SegmentedControl::chosen);
}

int SegmentedControl::currentIndex() const { return m_buttons->checkedId(); }

void SegmentedControl::setCurrentIndex(int index) { m_buttons->button(index)->setChecked(true); }
