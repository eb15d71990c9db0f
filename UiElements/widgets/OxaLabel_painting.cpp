// SPDX-License-Identifier: Apache-2.0
#include "OxaLabel.h"

#include <UiElements/svg/DrawUtils.h>
#include <UiElements/theme/StateColor_p.h>

#include <QPainter>
#include <QStyleOptionFrame>
#include <QTextLayout>

namespace {

/// Whether Qt has painted the rule of \a widget's style sheet before it sent the paint event.
bool isFramePainted(const QWidget &widget)
{
    return widget.testAttribute(Qt::WA_StyledBackground)
            && !widget.testAttribute(Qt::WA_OpaquePaintEvent)
            && !widget.testAttribute(Qt::WA_NoSystemBackground);
}

} // namespace

void OxaLabel::paintEvent(QPaintEvent *event)
{
    const bool paintsByItself = getElideMode() != Qt::ElideNone && !hasSelectedText();
    if (!paintsByItself)
        QLabel::paintEvent(event);

    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    if (paintsByItself)
        paintText(painter, option);
    DrawUtils::drawFocusRect(&painter, option.state, option.rect, frameGround(), this);
}

void OxaLabel::paintText(QPainter &painter, const QStyleOptionFrame &option) const
{
    // Painted only once: a second time would show through a translucent background.
    if (!isFramePainted(*this))
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    if (m_textColors.isValid())
        painter.setPen(colorForStyleState(m_textColors, option.state));
    if (wordWrap())
        paintWrappedLines(painter);
    else
        paintElidedLine(painter);
}

void OxaLabel::paintElidedLine(QPainter &painter) const
{
    painter.drawText(rect().adjusted(margin(), margin(), -margin(), -margin()), int(alignment()),
                     getElidedText(text(), indent(), margin()));
}

void OxaLabel::paintWrappedLines(QPainter &painter) const
{
    painter.translate(getTextOffset());
    int y = margin();
    const QStringList paragraphs = text().split(QChar::LineSeparator, Qt::SkipEmptyParts);
    for (const QString &paragraph : paragraphs)
        y = paintParagraph(painter, paragraph, y);
    painter.resetTransform();
}

/// Paints \a paragraph from \a y downwards and returns where the next one begins. The last line
/// that fits is elided; a paragraph that begins below it is one elided line.
int OxaLabel::paintParagraph(QPainter &painter, const QString &paragraph, int y) const
{
    const int spacing = painter.fontMetrics().lineSpacing();
    const int lineWidth = width() - 2 * margin() - indent();
    // Not mirrored in a right-to-left label: Latin text is placed as in a single line.
    QTextOption option(alignment());
    option.setWrapMode(m_wrapMode);

    QTextLayout layout(paragraph, painter.font());
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    while (line.isValid()) {
        const int next = y + spacing;
        const bool isLast = height() < margin() + next + spacing;
        if (isLast) {
            const QString rest = paragraph.mid(line.textStart());
            layout.endLayout();
            layout.setText(painter.fontMetrics().elidedText(rest, Qt::ElideRight, lineWidth));
            layout.setTextOption(option);
            layout.beginLayout();
            line = layout.createLine();
        }
        line.setLineWidth(lineWidth);
        line.draw(&painter, QPointF(indent() + margin(), y));
        line = isLast ? QTextLine() : layout.createLine();
        y = next;
    }
    layout.endLayout();
    return y;
}

/// Returns the background of the focus frame, which is drawn in the inverse colour. A label without
/// one shows what is behind it; a style sheet then makes its palette transparent.
QColor OxaLabel::frameGround() const
{
    const auto isSeen = [](const QColor &color) { return color.isValid() && color.alpha() > 0; };
    QColor ground = m_backgroundColors.normal;
    for (const QWidget *widget = this; widget && !isSeen(ground); widget = widget->parentWidget())
        ground = widget->palette().color(widget->backgroundRole());
    return ground;
}
