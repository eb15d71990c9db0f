// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"

#include <UiElements/widgets/OxaWidget.h>

/// The emoji below a message, all of one width. A click puts the user's own there or takes it away.
class ReactionBar : public OxaWidget
{
    Q_OBJECT

public:
    using OxaWidget::OxaWidget;

    /// The room that \a count reactions take where there is \a width.
    static QSize room(int count, int width);

    void setReactions(const QVector<Reaction> &reactions);

Q_SIGNALS:
    void toggled(const QString &emoji);

private:
    void addChip(const Reaction &reaction);

    QVector<Reaction> m_reactions;
};
