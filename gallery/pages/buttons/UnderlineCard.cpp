// SPDX-License-Identifier: Apache-2.0
#include "UnderlineCard.h"

#include "Metrics.h"
#include "widgets/ControlRow.h"
#include "widgets/SegmentedControl.h"
#include "widgets/Slider.h"

#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaUnderlineButton.h>

#include <QButtonGroup>
#include <QGridLayout>

namespace {

constexpr QSize tabSize(128, 36);
constexpr QSize imageSize(17, 17);
constexpr int pixelRatio = 2;

QImage imageOf(const char *name, const QColor &color)
{
    const OxaSvgRenderer renderer(OxaSvgRenderer::resourcePath(QString::fromLatin1(name)), nullptr);
    return renderer
            .renderPixmap(QRectF(QPointF(), imageSize), imageSize * pixelRatio, pixelRatio, color,
                          Qt::transparent)
            .toImage();
}

} // namespace

UnderlineCard::UnderlineCard(QWidget *parent)
    : Card(tr("Underline button"),
           tr("A tab that is underlined while it is checked or held down, with room for a dot or "
              "an image before its text and a small icon after it."),
           parent)
{
    for (const QString &text : { tr("All"), tr("Direct messages"), tr("Spaces") })
        addButton(text);
    m_buttons.front()->setChecked(true);

    auto *group = new QButtonGroup(this);
    auto *tabs = new QHBoxLayout;
    tabs->setSpacing(Metrics::small);
    for (OxaUnderlineButton *button : m_buttons) {
        group->addButton(button);
        tabs->addWidget(button);
    }
    tabs->addStretch(1);
    body()->addLayout(tabs);

    auto *images = new SegmentedControl({ tr("Off"), tr("On") }, this);
    connect(images, &SegmentedControl::chosen, this, [this](int i) {
        m_hasImages = i == 1;
        showImages();
    });
    auto *unread = makeSwitch(
            [](OxaUnderlineButton &button, bool on) { button.setShowUnreadIndicator(on); });
    auto *anchor = makeSwitch([](OxaUnderlineButton &button, bool on) {
        const QString name = QStringLiteral("arrow-down_8");
        button.setAnchorIcon(on ? OxaSvgRenderer::resourcePath(name) : QString());
    });
    body()->addWidget(new ControlRow(tr("Unread dot"), unread, this));
    body()->addWidget(new ControlRow(tr("Image"), images, this));
    body()->addWidget(new ControlRow(tr("Small icon"), anchor, this));
    setUpSliders();
}

void UnderlineCard::onThemeChanged()
{
    Card::onThemeChanged();
    showImages();
}

void UnderlineCard::addButton(const QString &text)
{
    auto *button = new OxaUnderlineButton(this);
    button->setText(text);
    button->setFontToken(OxaFont::Token::TagLabelPrimary);
    button->setCheckable(true);
    button->setElideMode(Qt::ElideRight);
    button->setFixedSize(tabSize);
    button->setUnderlineColorSet(QStringLiteral("gallery-accent"));
    m_buttons.push_back(button);
}

QWidget *UnderlineCard::makeSwitch(
        const std::function<void(OxaUnderlineButton &button, bool on)> &set)
{
    auto *control = new SegmentedControl({ tr("Off"), tr("On") }, this);
    const auto setAll = [this, set](int i) {
        for (OxaUnderlineButton *button : m_buttons)
            set(*button, i == 1);
    };
    connect(control, &SegmentedControl::chosen, this, setAll);
    control->setCurrentIndex(1);
    setAll(1);
    return control;
}

void UnderlineCard::setUpSliders()
{
    auto *width = new Slider(1, 8, m_buttons.front()->getBorderWidth(), this);
    connect(width, &Slider::valueChanged, this, &UnderlineCard::setLineWidth);
    auto *padding = new Slider(0, 16, m_buttons.front()->getBottomPadding(), this);
    connect(padding, &Slider::valueChanged, this, &UnderlineCard::setBottomPadding);
    body()->addWidget(new ControlRow(tr("Line"), width, this));
    body()->addWidget(new ControlRow(tr("Padding"), padding, this));
}

void UnderlineCard::setLineWidth(int width)
{
    for (OxaUnderlineButton *button : m_buttons) {
        button->setBorderWidth(width);
        // The line gets its width together with its colours.
        button->setUnderlineColorSet(QStringLiteral("gallery-accent"));
        button->update();
    }
}

void UnderlineCard::setBottomPadding(int padding)
{
    for (OxaUnderlineButton *button : m_buttons)
        button->setBottomPadding(padding);
}

void UnderlineCard::showImages()
{
    const QColor color = OxaThemeUtils::getColorSet("gallery-icon", getThemeType()).normal;
    for (OxaUnderlineButton *button : m_buttons)
        button->setLeftIcon(m_hasImages ? imageOf("chat_24", color) : QImage());
}
