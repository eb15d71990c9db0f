// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaNamedColorSet.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QProgressBar>

#include <string>

/// A progress bar that takes part in theming: a row of small upright bars, the first of which are
/// filled. It has neither text nor font token, and the style paints nothing of it.
///
/// The value is a percentage, whatever the range is: of 20 bars, a value of 50 fills 10. A value
/// above 100 fills bars beyond the last one, as far as the width has room for them. Filled and idle
/// bars have the normal colours of two sets. A set that does not exist paints nothing.
///
/// In a right-to-left application the row begins at the right. A change of the direction shows at
/// the next change of the theme type.
class UIELEMENTS_EXPORT OxaProgressBar : public QProgressBar
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QProgressBar)
    Q_PROPERTY(int barWidth READ getBarWidth WRITE setBarWidth)
    Q_PROPERTY(int barHeight READ getBarHeight WRITE setBarHeight)
    Q_PROPERTY(int idleBarHeight READ getIdleBarHeight WRITE setIdleBarHeight)

public:
    /// Makes a row of \a barCount bars in the sets "oxa-percentage-indicator-possessive" and
    /// "oxa-progressbar". Below 1 it has none.
    OxaProgressBar(QWidget *parent, int barCount);

    /// Sets the colour set of filled bars to the one called \a name (UTF-8), and repaints.
    void setBarColorSetName(const std::string &name);

    /// Sets the colour set of idle bars to the one called \a name (UTF-8), and repaints.
    void setTrackColorSetName(const std::string &name);

    /// Returns the width of each bar in pixels, 2 at first.
    int getBarWidth() const;

    /// Sets the width of each bar in pixels and repaints. Below 1 there is nothing to see.
    void setBarWidth(int width);

    /// Returns the height of filled bars in pixels, 8 at first.
    int getBarHeight() const;

    /// Sets the height of filled bars in pixels and repaints. Below 1 they are not painted.
    void setBarHeight(int height);

    /// Returns the height of idle bars in pixels, 6 at first.
    int getIdleBarHeight() const;

    /// Sets the height of idle bars in pixels and repaints. Below 1 they are not painted.
    void setIdleBarHeight(int height);

protected Q_SLOTS:
    /// Looks both colour sets and the application's direction up again, and repaints. Runs at each
    /// change of the theme type.
    virtual void onThemeChanged();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintBars(QPainter &painter, qint64 first, qint64 end, int height,
                   const QColor &color) const;

    OxaNamedColorSet m_barColors { QStringLiteral("oxa-percentage-indicator-possessive") };
    OxaNamedColorSet m_trackColors { QStringLiteral("oxa-progressbar") };
    bool m_isRightToLeft = false;
    const int m_barCount;
    int m_barWidth = 2;
    int m_barHeight = 8;
    int m_idleBarHeight = 6;
};
