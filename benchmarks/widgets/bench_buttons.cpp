// SPDX-License-Identifier: Apache-2.0
#include "ButtonWindow.h"
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/svg/OxaSvgPushButton.h>

#include <QPainter>
#include <QTextOption>

namespace {

constexpr int buttonCount = 1000;
const QString caption = QStringLiteral("Answer");
const QString styleText = QStringLiteral("$backgroundColors: set-1; $borderColors: set-2; "
                                         "$textColors: set-3; $borderRadius: 6;");

/// The finished sheets select a button by its object name, so that they fit any class.
void name(QPushButton &button) { button.setObjectName(QStringLiteral("answer")); }

void prepareThemed(OxaPushButton &button)
{
    name(button);
    button.setText(caption);
    button.setCSS(styleText);
}

void prepareSvg(OxaSvgPushButton &button)
{
    prepareThemed(button);
    button.setSvgIcon(QStringLiteral(ICON_FILE));
}

/// Makes a QPushButton like \a other.
auto preparePlainLike(const OxaPushButton &other, const QString &buttonText)
{
    return [sheet = other.styleSheet(), buttonText](QPushButton &button) {
        name(button);
        button.setText(buttonText);
        button.setAutoDefault(true);
        button.setStyleSheet(sheet);
    };
}

void themedButtons(benchmark::State &state)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    ButtonWindow<OxaPushButton> ours(buttonCount, prepareThemed);
    ButtonWindow<QPushButton> peer(buttonCount, preparePlainLike(ours.button(), caption));
    if (ours.picture() != peer.picture())
        state.SkipWithError("the buttons don't look the same");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&ours] { ours.repaint(); }, [&peer] { peer.repaint(); });
    comparison.ratioAtMost(1.15);
}
BENCHMARK(themedButtons)
        ->Name("repainting 1,000 themed buttons/QPushButton with the finished sheet")
        ->Iterations(200)
        ->UseManualTime();

/// A QPushButton that paints its own icon and text at fixed positions.
class IconAndTextButton : public QPushButton
{
public:
    explicit IconAndTextButton(QWidget *parent) : QPushButton(parent) { }

    void showLike(const OxaSvgPushButton &other)
    {
        m_colors = OxaThemeUtils::getColorSet("set-3", other.getThemeType());
        m_icon.setFilePath(other.getSvgIcon());
        m_icon.setColorSet(m_colors);
        const QSize textSize(fontMetrics().horizontalAdvance(caption), fontMetrics().height());
        const auto [iconOffset, textOffset,
                    total] = DrawUtils::calculateIconTextOffset(m_icon.getIconSize(), textSize, {},
                                                                {}, OxaEnum::Alignment::Left);
        const QPointF place = (QPointF(buttonSize.width(), buttonSize.height()) - total) * 0.5;
        m_iconPlace = place.toPoint() + iconOffset;
        m_textRect = QRectF(place.toPoint() + textOffset,
                            QSizeF(buttonSize.width(), textSize.height()));
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPushButton::paintEvent(event);
        QPainter painter(this);
        painter.setPen(m_colors.normal);
        painter.drawText(m_textRect, caption, QTextOption());
        painter.translate(m_iconPlace);
        m_icon.draw(&painter, QStyle::State_Enabled);
    }

private:
    OxaSvgIcon m_icon;
    OxaColorSet m_colors;
    QPointF m_iconPlace;
    QRectF m_textRect;
};

/// What a button of Qt's may be exceeded by is 0.15 of it, the icon and the text left out: here
/// there are so many more of those.
void svgButtons(benchmark::State &state)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    ButtonWindow<OxaSvgPushButton> ours(buttonCount, prepareSvg);
    const auto prepareFrame = preparePlainLike(ours.button(), QString());
    ButtonWindow<IconAndTextButton> peer(buttonCount, [&](IconAndTextButton &button) {
        prepareFrame(button);
        button.showLike(ours.button());
    });
    ButtonWindow<QPushButton> more(buttonCount * 15 / 100, prepareFrame);
    if (ours.picture() != peer.picture())
        state.SkipWithError("the buttons don't look the same");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&ours] { ours.repaint(); },
                         [&peer, &more] {
                             peer.repaint();
                             more.repaint();
                         });
    comparison.ratioAtMost(1.0);
}
BENCHMARK(svgButtons)
        ->Name("repainting 1,000 SVG buttons/1.15 of QPushButton, an icon and a text")
        ->Iterations(200)
        ->UseManualTime();

} // namespace
