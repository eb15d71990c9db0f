// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class History;
class MessageList;
class OxaLabel;
class OxaSvgPushButton;

/// The list of messages, and what lies above it: whether messages load or are missing, and the way
/// to the newest ones.
class MessagePane : public OxaWidget
{
    Q_OBJECT

public:
    MessagePane(MessageList *list, QWidget *parent);

    void setHistory(History *history);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showState();
    void showBanner();
    void place();

    MessageList *const m_list;
    OxaSvgPushButton *const m_banner;
    OxaSvgPushButton *const m_retry;
    OxaLabel *const m_loading;
    OxaLabel *const m_empty;
    bool m_isFailed = false;
};
