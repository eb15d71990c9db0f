// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"

#include <UiElements/widgets/OxaWidget.h>

class QPainter;

/// A round picture with the initials of somebody, in a colour of their own, and their presence as
/// shape and colour: active is a disc, away a disc with a bite, busy a disc with a bar, offline a
/// ring.
class Avatar : public OxaWidget
{
    Q_OBJECT

public:
    /// A picture of \a size pixels of nobody. It needs no name: the name stands beside it.
    explicit Avatar(int size, QWidget *parent = nullptr);

    /// Shows \a person; without presence if \a isPresenceShown is false.
    void setPerson(const Person &person, bool isPresenceShown = true);

    /// Paints the picture of \a person into the square \a rect, for delegates, with their presence
    /// at its lower trailing corner if \a isPresenceShown.
    static void paint(QPainter *painter, const QRect &rect, const Person &person,
                      bool isPresenceShown);

    /// The number of the colour set of \a id, "person-1" to "person-6".
    static int colorNumber(const QString &id);

    /// The initials of \a name: of the first and the last word.
    static QString initials(const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Person m_person;
    bool m_isPresenceShown = false;
};
