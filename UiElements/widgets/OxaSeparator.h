// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <QColor>

/// A line of one pixel between other widgets, in the normal colour of a colour set. A set that does
/// not exist paints nothing.
class UIELEMENTS_EXPORT OxaSeparator : public OxaWidget
{
    Q_OBJECT
    Q_PROPERTY(QString colorSetName READ getColorSetName WRITE setColorSetName)

public:
    /// Makes a separator in the set "legacy-separator-primary". Its height is fixed to 1.
    explicit OxaSeparator(QWidget *parent = nullptr);

    /// Returns the name of the colour set.
    QString getColorSetName() const;

    /// Stores the name of the colour set. The colour stays until onThemeChanged() runs: call that,
    /// or set the name before a change of the theme type.
    void setColorSetName(const QString &name);

public Q_SLOTS:
    /// Looks the colour up again and repaints. Runs at each change of the theme type. Public, which
    /// it is in no other class, because setColorSetName() leaves it to the caller.
    void onThemeChanged() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color;
    QString m_colorSetName = QStringLiteral("legacy-separator-primary");
};
