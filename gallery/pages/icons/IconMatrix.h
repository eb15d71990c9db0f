// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <QColor>

class IconRenderers;

/// One icon at several sizes, each at several pixel ratios. A pixel of a picture is a pixel of the
/// screen, so that a picture for a higher ratio appears magnified.
class IconMatrix : public OxaWidget
{
    Q_OBJECT

public:
    /// Paints with \a renderers, which must outlive the widget.
    explicit IconMatrix(IconRenderers *renderers, QWidget *parent = nullptr);

    /// Shows the file at \a path in \a color.
    void setIcon(const QString &path, const QColor &color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void onThemeChanged() override { update(); }

private:
    QRect cell(int row, int column) const;
    void paintHeadings(QPainter &painter) const;
    void paintHeading(QPainter &painter, const QRect &cell, const QString &text) const;
    QImage picture(int size, qreal ratio) const;

    IconRenderers *const m_renderers;
    QString m_path;
    QColor m_color;
};
