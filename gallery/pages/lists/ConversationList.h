// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class ConversationModel;
class ListView;
class QStackedLayout;

/// A list of conversations, or the model's texts for the empty state.
class ConversationList : public OxaWidget
{
    Q_OBJECT

public:
    /// Shows \a model, which must outlive the list.
    explicit ConversationList(ConversationModel *model, QWidget *parent = nullptr);

    ListView *view() const { return m_view; }

Q_SIGNALS:
    /// The user wants the empty list filled.
    void fillRequested();

private:
    ListView *m_view;
    QStackedLayout *m_stack;
};
