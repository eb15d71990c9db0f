// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaStackedWidget.h>

class ConversationModel;
class ListView;

/// A list of conversations, or the model's texts for the empty state.
class ConversationList : public OxaStackedWidget
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
};
