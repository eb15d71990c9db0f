// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/AlignedLabel.h"

/// A label that shows a star in the colour of a set, and keeps it when the theme changes.
class TintedStar : public AlignedLabel
{
    Q_OBJECT

public:
    explicit TintedStar(QWidget *parent = nullptr);

    /// Paints the star in the normal colour of the set called \a name.
    void setColorSetName(const QString &name);

protected:
    void onThemeChanged() override;

private:
    QString m_colorSetName;
};
