// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class ArtworkModel;

/// The artwork of the application: how much there is of each kind, and all pictures.
class ArtworkCard : public Card
{
    Q_OBJECT

public:
    explicit ArtworkCard(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user chose \a emoji.
    void chosen(const QString &emoji);

private:
    QWidget *makeKinds();
    QWidget *makeView();

    ArtworkModel *m_model;
};
