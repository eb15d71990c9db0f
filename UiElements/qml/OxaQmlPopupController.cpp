// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlPopupController.h"

#include <UiElements/qml/OxaPopupQuickView.h>

OxaQmlPopupController::OxaQmlPopupController(QObject *parent) : OxaQmlController(parent) { }

OxaQmlPopupController::~OxaQmlPopupController()
{
    if (m_takesModelOwnership)
        m_model.deleteLater();
}

int OxaQmlPopupController::arrowOffset() const { return m_arrowOffset; }

void OxaQmlPopupController::setArrowOffset(int offset)
{
    if (m_arrowOffset == offset)
        return;
    m_arrowOffset = offset;
    Q_EMIT arrowOffsetChanged();
}

int OxaQmlPopupController::arrowSize() const { return m_arrowSize; }

void OxaQmlPopupController::setArrowSize(int size)
{
    if (m_arrowSize == size)
        return;
    m_arrowSize = size;
    Q_EMIT arrowSizeChanged();
}

OxaQmlBalloon::ArrowAlignment OxaQmlPopupController::arrowAlignment() const
{
    return m_arrowAlignment;
}

OxaQmlBalloon::ArrowAnchor OxaQmlPopupController::arrowAnchor() const { return m_arrowAnchor; }

void OxaQmlPopupController::setArrowAnchor(OxaQmlBalloon::ArrowAnchor anchor)
{
    if (m_arrowAnchor == anchor)
        return;
    m_arrowAnchor = anchor;
    Q_EMIT arrowAnchorChanged();
}

void OxaQmlPopupController::setModel(const QVariant &model)
{
    if (m_model.setValue(model))
        Q_EMIT modelChanged();
}

QVariant OxaQmlPopupController::_model() const { return m_model.value(); }

void OxaQmlPopupController::setThemeType(const QString &themeType)
{
    m_themeType = themeType;
    Q_EMIT themeTypeChanged();
}

void OxaQmlPopupController::setPopupQuickView(OxaPopupQuickView *view)
{
    if (m_popupQuickView == view)
        return;
    if (m_popupQuickView)
        m_popupQuickView->disconnect(this);
    m_popupQuickView = view;
    if (!view)
        return;
    connect(view, &OxaPopupQuickView::arrowFlipped, this, &OxaQmlPopupController::flipArrow);
    connect(view, &OxaPopupQuickView::arrowOrthogonalChanged, this,
            &OxaQmlPopupController::adjustArrowOffset);
}

void OxaQmlPopupController::flipArrow(Qt::ArrowType arrow)
{
    setArrowAnchor(OxaQmlBalloon::arrowAnchorFromArrowType(arrow));
}

void OxaQmlPopupController::adjustArrowOffset()
{
    if (!m_popupQuickView)
        return;
    const Qt::ArrowType arrow = OxaQmlBalloon::arrowTypeFromArrowAnchor(m_arrowAnchor);
    setArrowOffset(m_popupQuickView->adjustArrowOffset(arrow));
}
