// SPDX-License-Identifier: Apache-2.0
#include "OxaEmojiLabel.h"

#include "EmojiTextConverter.h"
#include "Newlines_p.h"

#include <UiElements/theme/FocusFrame_p.h>
#include <UiElements/widgets/WidgetParts_p.h>

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextFrame>

namespace {

constexpr int extraWidthPerEmoji = 3;
constexpr Qt::TextInteractionFlags selectableFlags = Qt::TextSelectableByMouse
        | Qt::TextSelectableByKeyboard;

QRectF frameOf(const QTextDocument &document)
{
    return document.documentLayout()->frameBoundingRect(document.rootFrame());
}

} // namespace

OxaEmojiLabel::OxaEmojiLabel(QWidget *parent) : OxaEmojiLabel(parent, QAccessible::NoRole) { }

OxaEmojiLabel::OxaEmojiLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags)
    : OxaEmojiLabel(QString(), parent, role, flags)
{
}

OxaEmojiLabel::OxaEmojiLabel(const QString &text, QWidget *parent, QAccessible::Role role,
                             Qt::WindowFlags flags)
    : OxaLabel(text, parent, role, flags), m_document(new QTextDocument(this))
{
    m_document->setUndoRedoEnabled(false);
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this,
            &OxaEmojiLabel::onLayoutDirectionChanged);
    connect(this, &OxaEmojiLabel::cssChanged, this, &OxaEmojiLabel::onCssChanged);
    updateText();
}

int OxaEmojiLabel::getTextLeftPadding() const { return m_textLeftPadding; }

void OxaEmojiLabel::setTextLeftPadding(int padding)
{
    m_textLeftPadding = padding;
    update();
}

int OxaEmojiLabel::getTextRightPadding() const { return m_textRightPadding; }

void OxaEmojiLabel::setTextRightPadding(int padding)
{
    m_textRightPadding = padding;
    update();
}

QString OxaEmojiLabel::getElidedText() const
{
    return shouldDrawSvgEmojis() ? EmojiTextConverter::restore(m_elidedHtml) : m_elidedHtml;
}

bool OxaEmojiLabel::isTextMoreThanOneLine() const { return m_moreThanOneLine; }

void OxaEmojiLabel::setMirrorParentFocus(bool mirrors) { m_mirrorsParentFocus = mirrors; }

void OxaEmojiLabel::setTextInteractionFlags(Qt::TextInteractionFlags flags)
{
    OxaLabel::setTextInteractionFlags(flags);
    if (flags & selectableFlags) {
        updateText();
        update();
    }
}

QSize OxaEmojiLabel::sizeHint() const
{
    const QSizeF frame = frameOf(*m_document).size();
    EmojiTextConverter counter(0, 0.0);
    if (shouldDrawSvgEmojis())
        counter.convert(text());
    return { int(frame.width()) + extraWidthPerEmoji * counter.svgFiles().size(),
             int(frame.height()) };
}

QPointF OxaEmojiLabel::getTextOffset() const
{
    if (m_document->isEmpty())
        return OxaLabel::getTextOffset();
    const QSizeF room = QSizeF(size()) - frameOf(*m_document).size();
    QPointF offset;
    if (alignment() & Qt::AlignHCenter)
        offset.setX(room.width() * 0.5);
    else if (QGuiApplication::isRightToLeft())
        offset.setX(room.width());
    if (alignment() & Qt::AlignVCenter)
        offset.setY(room.height() * 0.5);
    return offset;
}

void OxaEmojiLabel::setText(const QString &text)
{
    OxaLabel::setText(text);
    updateText();
    update();
}

QRegularExpression OxaEmojiLabel::getNewlineCharactersRegEx() { return Newlines::expression(); }

bool OxaEmojiLabel::containsNewline(const QString &text) { return Newlines::isIn(text); }

QSet<QChar> OxaEmojiLabel::getNewlineCharacters() { return Newlines::characters(); }

QStringList OxaEmojiLabel::splitStringAtNewlines(const QString &text)
{
    return Newlines::split(text);
}

bool OxaEmojiLabel::shouldDrawSvgEmojis() const
{
    if (textInteractionFlags() & selectableFlags)
        return false;
    if (text().contains(QLatin1Char('\n')) && (alignment() & Qt::AlignCenter))
        return false;
    if (m_moreThanOneLine && (alignment() & Qt::AlignHCenter))
        return false;
    return !text().isEmpty();
}

void OxaEmojiLabel::updateTextColor(const QColor &color)
{
    QPalette colored = palette();
    colored.setColor(QPalette::WindowText, color);
    setPalette(colored);
}

bool OxaEmojiLabel::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Enter:
    case QEvent::Leave:
        if (!m_mirrorsParentFocus)
            showState();
        break;
    case QEvent::FontChange:
        updateText();
        break;
    default:
        break;
    }
    return OxaLabel::event(event);
}

/// Sets the text's colour for the hovered or normal state.
void OxaEmojiLabel::showState()
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
    // A style text that names no set leaves the colour to the palette.
    if (textColors().isValid())
        updateTextColor(isHovered ? textColors().hovered : textColors().normal);
    updateText();
}

void OxaEmojiLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<OxaEmojiLabel> self(this); // A slot may delete the label.
    if (event->button() == Qt::LeftButton && textInteractionFlags() != Qt::NoTextInteraction
        && !hasSelectedText())
        Q_EMIT clicked();
    if (self)
        OxaLabel::mouseReleaseEvent(event);
}

void OxaEmojiLabel::keyPressEvent(QKeyEvent *event)
{
    const QPointer<OxaEmojiLabel> self(this); // A slot may delete the label.
    if (textInteractionFlags() != Qt::NoTextInteraction && WidgetParts::isClickKey(event->key()))
        Q_EMIT clicked();
    if (self)
        OxaLabel::keyPressEvent(event);
}

void OxaEmojiLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, this);

    painter.save();
    painter.translate(getTextOffset());
    m_document->drawContents(&painter, QRectF());
    painter.restore();

    if (FocusFrame::isShown(option.state))
        FocusFrame::draw(&painter, FocusFrame::optionFor(this), this, style());
}

void OxaEmojiLabel::resizeEvent(QResizeEvent *event)
{
    OxaLabel::resizeEvent(event);
    updateText();
}

void OxaEmojiLabel::onCssChanged()
{
    if (textColors().isValid())
        updateTextColor(textColors().normal);
    updateText();
}

void OxaEmojiLabel::onLayoutDirectionChanged() { updateText(); }
