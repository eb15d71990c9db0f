// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>
#include <UiElements/widgets/WidgetData.h>

#include <QPointer>

class OxaLabel;
class OxaSeparator;
class PopupWidget;
class QGraphicsDropShadowEffect;
class QVBoxLayout;

/// The body of a PopupWidget with its arrow, shadow, header and content.
class CentralWidget : public OxaWidget
{
    Q_OBJECT

public:
    CentralWidget(PopupWidget *popup, const WidgetData &widgetData);

    /// Returns the layout of the header and the content.
    QVBoxLayout *contentLayout() const { return m_layout; }

    /// Keeps room for an arrow at \a position and paints it there from the next repaint on.
    void setArrowPosition(WidgetData::ArrowPostion position);

    /// Shows \a text above the content; an empty text hides the header.
    void setHeaderText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void addHeader();
    QPainterPath outline() const;
    int radiusLimit(const QRect &body) const;

    QVBoxLayout *const m_layout;
    QPointer<OxaLabel> m_headerLabel;
    QPointer<OxaSeparator> m_separator;
    PopupWidget *const m_popup;
    QGraphicsDropShadowEffect *m_shadow = nullptr;
    WidgetData m_data; ///< With the arrow position in use.
    const int m_arrowWidth = 20;
    const int m_arrowHeight = 10;
};
