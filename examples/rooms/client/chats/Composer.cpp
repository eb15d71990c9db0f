// SPDX-License-Identifier: Apache-2.0
#include "Composer.h"

#include "EmojiPicker.h"
#include "FileDrop.h"
#include "GifView.h"
#include "SlowMovies.h"
#include "data/Backend.h"
#include "shell/Looks.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/svg/OxaSvgPushButton.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QtMath>

namespace {

constexpr int mostLines = 6;
constexpr int verticalMargin = 6;
constexpr int longestText = 20000;
constexpr int gifColumns = 2;

} // namespace

ComposerField::ComposerField(QWidget *parent) : OxaTextEdit(parent)
{
    setAcceptRichText(false);
    setFontType(FontManagerEnum::FontType::MessagingView);
    setFontToken(OxaFont::Token::BodySecondary);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    connect(this, &OxaTextEdit::cssChanged, this, &ComposerField::colorPlaceholder);
    connect(this, &QTextEdit::textChanged, this, &ComposerField::fitHeight);
    setCSS(QStringLiteral("$textColors: field-text; OxaTextEdit, ComposerField { "
                          "background: transparent; border: none; outline: none; }"));
}

void ComposerField::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !(event->modifiers() & Qt::ShiftModifier))
        Q_EMIT submitted();
    else if (event->key() == Qt::Key_Up && document()->isEmpty())
        Q_EMIT leftUpwards();
    else
        OxaTextEdit::keyPressEvent(event);
}

void ComposerField::changeEvent(QEvent *event)
{
    OxaTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colorPlaceholder(); // The style sheet sets it again with each sheet above.
}

void ComposerField::resizeEvent(QResizeEvent *event)
{
    OxaTextEdit::resizeEvent(event);
    fitHeight();
}

void ComposerField::insertFromMimeData(const QMimeData *source)
{
    const int room = longestText - document()->characterCount();
    if (source->hasText() && room > 0)
        insertPlainText(source->text().left(room));
}

void ComposerField::fitHeight()
{
    const int line = qCeil(QFontMetricsF(font()).lineSpacing());
    const int text = qCeil(document()->size().height());
    const int height = qBound(line, text, mostLines * line) + 2 * verticalMargin;
    setViewportMargins(0, verticalMargin, 0, verticalMargin);
    setVerticalScrollBarPolicy(text > mostLines * line ? Qt::ScrollBarAsNeeded
                                                       : Qt::ScrollBarAlwaysOff);
    if (height != this->height())
        setFixedHeight(height);
    ensureCursorVisible();
}

void ComposerField::colorPlaceholder()
{
    QPalette colors = palette();
    const QColor color = Looks::color("field-placeholder");
    if (colors.color(QPalette::PlaceholderText) == color)
        return;
    colors.setColor(QPalette::PlaceholderText, color);
    setPalette(colors);
}

Composer::Composer(Backend *backend, QWidget *parent)
    : OxaWidget(parent), m_backend(backend), m_field(new ComposerField(this))
{
    setObjectName(QStringLiteral("composer"));
    m_emoji = Looks::makeIconButton(QStringLiteral("emoji"), tr("Emoji"), this);
    m_gif = Looks::makeIconButton(QStringLiteral("gif"), tr("GIF"), this);
    m_send = Looks::makeIconButton(QStringLiteral("send"), tr("Send"), this);
    auto *row = new QHBoxLayout(this);
    setLayoutContentsMargins(12, 4, 4, 4);
    row->setSpacing(4);
    row->addWidget(m_field, 1);
    for (OxaSvgPushButton *button : { m_emoji, m_gif, m_send })
        row->addWidget(button, 0, Qt::AlignBottom);
    connect(m_emoji, &OxaSvgPushButton::clicked, this, &Composer::pickEmoji);
    connect(m_gif, &OxaSvgPushButton::clicked, this, &Composer::pickGif);
    const OxaAppSignals *hub = OxaAppSignals::get();
    connect(hub, &OxaAppSignals::addGif, this, [this] {
        if (isVisible())
            pickGif();
    });
    connect(hub, &OxaAppSignals::focusMainInputBox, m_field,
            [this] { m_field->setFocus(Qt::ShortcutFocusReason); });
    connect(m_send, &OxaSvgPushButton::clicked, this, &Composer::send);
    connect(m_field, &ComposerField::submitted, this, &Composer::send);
    connect(m_field, &QTextEdit::textChanged, this, &Composer::follow);
    m_field->installEventFilter(this);
    for (QWidget *target : { static_cast<QWidget *>(this), m_field->viewport() })
        connect(new FileDrop(target), &FileDrop::dropped, this, &Composer::filesDropped);
    showFocus(false);
    follow();
}

void Composer::setConversation(const QString &conversation, const QString &title)
{
    m_conversation.clear(); // What follows is nobody's draft.
    m_field->setPlainText(m_backend->draft(conversation));
    m_field->moveCursor(QTextCursor::End);
    m_field->setPlaceholderText(tr("Write to %1").arg(title));
    m_field->setAccessibleName(m_field->placeholderText());
    m_conversation = conversation;
}

void Composer::quote(const QString &author, const QString &text)
{
    m_field->moveCursor(QTextCursor::Start);
    m_field->insertPlainText(QStringLiteral("> %1: %2\n").arg(author, text));
    m_field->moveCursor(QTextCursor::End);
    m_field->setFocus(Qt::OtherFocusReason);
}

void Composer::follow()
{
    const QString text = m_field->toPlainText();
    const bool canSend = !text.trimmed().isEmpty();
    m_send->setEnabled(canSend);
    m_send->setCSS(Looks::buttonStyle(canSend ? Looks::Button::Accent : Looks::Button::Quiet));
    if (m_conversation.isEmpty())
        return;
    m_backend->setDraft(m_conversation, text);
    if (canSend)
        m_backend->tellTyping(m_conversation);
}

void Composer::send()
{
    const QString text = m_field->toPlainText().trimmed().left(longestText);
    if (text.isEmpty() || m_conversation.isEmpty())
        return;
    m_field->clear();
    m_backend->send(m_conversation, Message::Kind::Text, text);
    Q_EMIT sent();
}

void Composer::pickEmoji()
{
    auto *picker = new EmojiPicker;
    Looks::popUp(m_emoji, picker);
    connect(picker, &EmojiPicker::picked, this, [this, picker](const QString &emoji) {
        m_field->insertPlainText(emoji);
        picker->window()->hide();
        m_field->setFocus(Qt::OtherFocusReason);
    });
}

void Composer::pickGif()
{
    auto *picker = new OxaWidget;
    picker->setAccessibleName(tr("Moving pictures"));
    auto *grid = new QGridLayout(picker);
    grid->setContentsMargins(8, 8, 8, 8);
    grid->setSpacing(8);
    const QStringList names = SlowMovies::names();
    for (int i = 0; i < names.size(); ++i) {
        auto *movie = new GifView(names.at(i), picker);
        movie->setAccessibleRole(QAccessible::Button);
        movie->setFocusPolicy(Qt::StrongFocus);
        movie->setCursor(Qt::PointingHandCursor);
        connect(movie, &GifView::clicked, this, [this, movie] { sendGif(movie); });
        grid->addWidget(movie, i / gifColumns, i % gifColumns);
    }
    picker->setFocusProxy(picker->findChild<GifView *>());
    Looks::popUp(m_gif, picker);
}

void Composer::sendGif(const GifView *movie)
{
    m_backend->send(m_conversation, Message::Kind::Gif, movie->name());
    movie->window()->hide();
    m_field->setFocus(Qt::OtherFocusReason);
    Q_EMIT sent();
}

void Composer::showFocus(bool hasFocus)
{
    setCSS(QStringLiteral("$backgroundColors: field-background; $borderColors: %1; $borders: all; "
                          "$borderWidth: 1; $borderRadius: 10;")
                   .arg(hasFocus ? QStringLiteral("field-focus-border")
                                 : QStringLiteral("field-border")));
}

bool Composer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        showFocus(event->type() == QEvent::FocusIn);
    return OxaWidget::eventFilter(watched, event);
}
