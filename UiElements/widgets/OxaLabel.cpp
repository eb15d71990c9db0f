// SPDX-License-Identifier: Apache-2.0
#include "OxaLabel.h"

#include "WidgetParts_p.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTextDocument>

namespace {

constexpr int focusFrameRadius = 4;

QString withLinkColors(const QString &text, const OxaColorSet &colors)
{
    // A colour set has no colour for visited links: they take the focused one.
    static const QString html = QStringLiteral(
            "<style type = \"text/css\">a:link{text-decoration: underline; color:%1;} "
            "a:visited{color:%2;} a:hover{color:%3;}</style>%4");
    return html.arg(colors.normal.name(), colors.focused.name(), colors.hovered.name(), text);
}

} // namespace

OxaLabel::OxaLabel(QWidget *parent) : OxaLabel(parent, QAccessible::NoRole) { }

OxaLabel::OxaLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags)
    : OxaLabel(QString(), parent, role, flags)
{
}

OxaLabel::OxaLabel(const QString &text, QWidget *parent, QAccessible::Role role,
                   Qt::WindowFlags flags)
    : QLabel(parent, flags),
      m_themeBlock(this, OxaThemeBlock::Form::Full, { &m_textColors, &m_backgroundColors }),
      m_accessibleRole(role)
{
    OxaLabel::setTextFormat(Qt::PlainText);
    OxaLabel::setText(text);
    setProperty("focusBorderRadius", focusFrameRadius);
    m_themeBlock.followTheme();
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this,
            &OxaLabel::onLayoutDirectionChanged);
    onLayoutDirectionChanged();
}

void OxaLabel::setTextFormat(Qt::TextFormat format)
{
    const bool changes = format != textFormat();
    QLabel::setTextFormat(format);
    if (changes && !m_rawText.isEmpty() && showsItsText())
        setText(m_rawText);
}

void OxaLabel::setTextInteractionFlags(Qt::TextInteractionFlags flags)
{
    QLabel::setTextInteractionFlags(flags);
    if (flags & (Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard))
        update();
}

void OxaLabel::updateWrapMode(QTextOption::WrapMode mode)
{
    m_wrapMode = mode;
    update();
}

void OxaLabel::setPixmapColor(const QColor &color)
{
    const QPixmap pixmap = QLabel::pixmap(Qt::ReturnByValue);
    if (!pixmap.isNull())
        setPixmap(WidgetParts::tinted(pixmap, color));
}

int OxaLabel::getLineWidth() const { return m_elision.lineWidth(); }

QString OxaLabel::getElidedText(const QString &text, int indent, int margin) const
{
    return m_elision.elidedText(text, 2 * margin + indent);
}

QPointF OxaLabel::getTextOffset() const
{
    const int flags = int(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0);
    const int top = fontMetrics().boundingRect(rect(), flags, text()).top();
    return { 0.0, qreal(qMax(0, top)) };
}

void OxaLabel::setText(const QString &text)
{
    m_rawText = text;
    const bool hasLinks = textFormat() == Qt::RichText && text.contains(QLatin1String("<a"));
    m_shownText = hasLinks ? withLinkColors(text, m_linkColors.colors()) : text;
    QLabel::setText(m_shownText);
    // QLabel does not repaint its margins, but an elided text reaches into them.
    if (getElideMode() != Qt::ElideNone)
        update();
}

void OxaLabel::onThemeChanged()
{
    m_linkColors.fetch(this);
    if (textFormat() != Qt::RichText || !showsItsText())
        return;
    // QLabel keeps the selection of an equal text, and of another one until it is laid out.
    if (hasSelectedText())
        setSelection(0, 0);
    setText(m_rawText);
}

const OxaColorSet &OxaLabel::textColors() const { return m_textColors; }

void OxaLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (isInteractive() && !hasSelectedText()) {
        if (event->button() == Qt::LeftButton && !emitClicked())
            return;
        if (event->button() == Qt::RightButton && !text().isEmpty())
            selectAllText();
    }
    QLabel::mouseReleaseEvent(event);
}

void OxaLabel::keyPressEvent(QKeyEvent *event)
{
    if (WidgetParts::isClickKey(event->key()) && isInteractive() && !emitClicked())
        return;
    QLabel::keyPressEvent(event);
}

void OxaLabel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event); // NOLINT(bugprone-parent-virtual-call): QLabel adds nothing to it
    Q_EMIT onVisibilityChanged(true);
}

void OxaLabel::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event); // NOLINT(bugprone-parent-virtual-call): QLabel adds nothing to it
    Q_EMIT onVisibilityChanged(false);
}

void OxaLabel::onLayoutDirectionChanged()
{
    setContentsMargins(WidgetParts::mirrored(contentsMargins()));

    // "TextDirection" gives the direction of the interface's language, which may differ from that
    // of its layout.
    const auto textDirection = static_cast<Qt::LayoutDirection>(
            qApp->property("TextDirection").toInt());
    const bool startsAtEnd = textDirection == Qt::LeftToRight && QGuiApplication::isRightToLeft();
    setAlignment((alignment() & Qt::AlignVertical_Mask)
                 | (startsAtEnd ? Qt::AlignRight : Qt::AlignLeft));
}

bool OxaLabel::isInteractive() const { return textInteractionFlags() != Qt::NoTextInteraction; }

/// Whether the label shows what setText() set, and not a number, a picture or nothing set since.
bool OxaLabel::showsItsText() const { return text() == m_shownText; }

/// Emits clicked() and returns whether the label is still there: a slot may delete it.
bool OxaLabel::emitClicked()
{
    const QPointer<OxaLabel> self(this);
    Q_EMIT clicked();
    return !self.isNull();
}

/// Selects all that the label shows, which for rich text is shorter than text().
void OxaLabel::selectAllText()
{
    // A selection makes QLabel fill its document, which it otherwise does late.
    setSelection(0, 0);
    const auto documents = findChildren<QTextDocument *>();
    for (const QTextDocument *document : documents) {
        // A document whose parent is the label belongs to a subclass, and may show only a part.
        if (document->parent() != this)
            setSelection(0, document->characterCount() - 1);
    }
}
