// SPDX-License-Identifier: Apache-2.0
#include "MessagePane.h"

#include "MessageList.h"
#include "data/History.h"
#include "shell/Looks.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaLabel.h>

namespace {

constexpr int bannerHeight = 36;

QString newText(int count)
{
    return count == 1 ? MessagePane::tr("1 new message")
                      : MessagePane::tr("%1 new messages").arg(QLocale().toString(count));
}

} // namespace

MessagePane::MessagePane(MessageList *list, QWidget *parent)
    : OxaWidget(parent),
      m_list(list),
      m_banner(Looks::makeButton(QString(), Looks::Button::Accent, this)),
      m_retry(Looks::makeButton(tr("Messages could not be loaded. Try again"),
                                Looks::Button::Outline, this)),
      m_loading(Looks::makeLabel(tr("Loading earlier messages\u2026"), OxaFont::Token::BodyTertiary,
                                 QStringLiteral("toast-text"), this)),
      m_empty(Looks::makeLabel(QString(), OxaFont::Token::BodySecondary,
                               QStringLiteral("text-secondary"), this))
{
    list->setParent(this);
    list->lower();
    m_banner->setSvgIcon(OxaSvgRenderer::resourcePath(QStringLiteral("arrow-down")));
    m_banner->setSvgIconPadding(QMargins(12, 0, 0, 0));
    m_banner->setTextLeftPadding(8);
    m_banner->setCSS(Looks::buttonStyle(Looks::Button::Accent, bannerHeight / 2));
    Looks::centre(m_loading);
    m_loading->setCSS(QStringLiteral("$backgroundColors: toast; $textColors: toast-text; "
                                     "$borderRadius: 12;"));
    Looks::centre(m_empty);
    m_empty->setWordWrap(true);
    connect(m_banner, &OxaSvgPushButton::clicked, list, &MessageList::goToBottom);
    connect(list, &MessageList::placeChanged, this, &MessagePane::showBanner);
    connect(m_retry, &OxaSvgPushButton::clicked, this, [this] {
        m_isFailed = false;
        m_list->history()->loadEarlier();
        showState();
    });
    showBanner();
    showState();
}

void MessagePane::setHistory(History *history)
{
    if (m_list->history())
        m_list->history()->disconnect(this);
    m_isFailed = false;
    connect(history, &History::loadingChanged, this, &MessagePane::showState);
    connect(history, &History::inserted, this, &MessagePane::showState);
    connect(history, &History::loadingFailed, this, [this](const QString &reason) {
        m_isFailed = true;
        m_retry->setToolTip(reason);
        showState();
    });
    m_list->setHistory(history);
    showState();
}

void MessagePane::showState()
{
    const History *history = m_list->history();
    const bool isLoading = history && history->isLoading();
    const bool isEmpty = !history || history->count() == 0;
    m_isFailed &= !isLoading;
    m_retry->setVisible(m_isFailed);
    m_loading->setVisible(isLoading && !isEmpty);
    m_empty->setVisible(isEmpty && !m_isFailed);
    if (!history)
        m_empty->setText(tr("Choose a conversation to read it here."));
    else
        m_empty->setText(isLoading ? tr("Loading messages\u2026")
                                   : tr("No messages yet.\nWrite the first one."));
    place();
}

void MessagePane::showBanner()
{
    const int count = m_list->unseen();
    m_banner->setVisible(m_list->history() && !m_list->isAtBottom());
    m_banner->setText(count > 0 ? newText(count) : tr("Newest messages"));
    m_banner->setAccessibleName(m_banner->text());
    place();
}

void MessagePane::resizeEvent(QResizeEvent *event)
{
    OxaWidget::resizeEvent(event);
    place();
}

void MessagePane::place()
{
    m_list->setGeometry(rect());
    const auto centre = [this](QWidget *widget, const QSize &size, int y) {
        const int width = qMin(size.width(), this->width() - 32);
        widget->setGeometry((this->width() - width) / 2, y, width, size.height());
    };
    centre(m_banner, { m_banner->sizeHint().width(), bannerHeight }, height() - bannerHeight - 12);
    centre(m_retry, m_retry->sizeHint().expandedTo({ 0, 32 }), 12);
    centre(m_loading, m_loading->sizeHint() + QSize(24, 8), 8);
    centre(m_empty, { 320, 80 }, qMax(0, height() / 2 - 40));
}
