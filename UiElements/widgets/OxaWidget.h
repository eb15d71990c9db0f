// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>
#include <UiElements/widgets/OxaElementBlock.h>

#include <QPixmap>
#include <QWidget>

/// A plain container that takes part in theming and paints the rules of its style text.
///
/// Contents margins are in reading direction: "left" means the start of a line, and in a
/// right-to-left application the two sides are swapped before Qt gets them. When a running
/// application changes its direction, the current margins are swapped.
class UIELEMENTS_EXPORT OxaWidget : public QWidget
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QWidget)
    UIELEMENTS_FONT_BLOCK
    UIELEMENTS_ELEMENT_ID_BLOCK
    Q_PROPERTY(QString pixmap READ getPixmapSrc WRITE setPixmapSrc)

public:
    /// Makes an empty container.
    explicit OxaWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    /// Returns the path of the background picture. Empty by default.
    QString getPixmapSrc() const;

    /// Loads the picture at \a path, which is painted stretched over the whole widget. A path
    /// without a picture paints none. Does not repaint.
    void setPixmapSrc(const QString &path);

    /// Sets the widget's contents margins, in reading direction.
    void setContentsMargins(const QMargins &margins);

    /// Sets the widget's contents margins, in reading direction.
    void setContentsMargins(int left, int top, int right, int bottom);

    /// Sets the contents margins of the widget's layout, in reading direction. Without a layout it
    /// does nothing.
    void setLayoutContentsMargins(const QMargins &margins);

    /// Sets the contents margins of the widget's layout, in reading direction. Without a layout it
    /// does nothing.
    void setLayoutContentsMargins(int left, int top, int right, int bottom);

public Q_SLOTS:
    /// Swaps the left and right contents margins of the widget and of its layout.
    void onLayoutDirectionChanged();

protected:
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();

private:
    QString m_pixmapPath;
    QPixmap m_pixmap;
};
