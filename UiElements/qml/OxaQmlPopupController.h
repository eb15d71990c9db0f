// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/qml/OxaControllerModel.h>
#include <UiElements/qml/OxaQmlBalloon.h>
#include <UiElements/qml/OxaQmlController.h>

#include <QPointer>
#include <QString>

class OxaPopupQuickView;

/// The controller of a popup: tells the balloon in the popup's QML where its arrow is, and holds a
/// model and a theme. The QML binds the properties of its OxaBalloon to those of the same names
/// here.
class UIELEMENTS_EXPORT OxaQmlPopupController : public OxaQmlController
{
    Q_OBJECT
    /// Whether the model is deleted with the controller. False by default.
    Q_PROPERTY(
            bool takesModelOwnership MEMBER m_takesModelOwnership NOTIFY takesModelOwnershipChanged)
    Q_PROPERTY(int arrowOffset READ arrowOffset WRITE setArrowOffset NOTIFY arrowOffsetChanged)
    Q_PROPERTY(int arrowSize READ arrowSize WRITE setArrowSize NOTIFY arrowSizeChanged)
    Q_PROPERTY(OxaQmlBalloon::ArrowAlignment arrowAlignment MEMBER m_arrowAlignment READ
                       arrowAlignment NOTIFY arrowAlignmentChanged)
    Q_PROPERTY(OxaQmlBalloon::ArrowAnchor arrowAnchor READ arrowAnchor WRITE setArrowAnchor NOTIFY
                       arrowAnchorChanged)
    /// What the popup shows. Invalid by default, and after the death of a model that is an object,
    /// of which no signal tells.
    Q_PROPERTY(QVariant model READ _model WRITE setModel NOTIFY modelChanged)
    /// The name of the popup's theme: "global", "light", "dark" or "inverted". "global" by default.
    Q_PROPERTY(QString themeType MEMBER m_themeType WRITE setThemeType NOTIFY themeTypeChanged)

public:
    /// Makes a controller without a view.
    explicit OxaQmlPopupController(QObject *parent = nullptr);

    /// Deletes the model if it is owned, is an object and is alive, but only when control returns
    /// to the event loop.
    ~OxaQmlPopupController() override;

    /// Returns how far the arrow is from where its alignment puts it, in pixels to the right or
    /// downwards. 0 by default.
    int arrowOffset() const;

    /// Stores \a offset and emits arrowOffsetChanged(); does nothing if it is the same.
    void setArrowOffset(int offset);

    /// Returns the height of the arrow. 0 by default.
    int arrowSize() const;

    /// Stores \a size and emits arrowSizeChanged(); does nothing if it is the same.
    void setArrowSize(int size);

    /// Returns where on its side the arrow is. OxaQmlBalloon::CenterAlignment by default.
    OxaQmlBalloon::ArrowAlignment arrowAlignment() const;

    /// Returns the side that has the arrow. OxaQmlBalloon::Top by default.
    OxaQmlBalloon::ArrowAnchor arrowAnchor() const;

    /// Stores \a anchor and emits arrowAnchorChanged(); does nothing if it is the same.
    void setArrowAnchor(OxaQmlBalloon::ArrowAnchor anchor);

    /// Stores \a model and emits modelChanged(); does nothing if it is the same. The previous model
    /// is not deleted, even if it is owned.
    void setModel(const QVariant &model);

    /// Stores \a themeType and emits themeTypeChanged(), also if it is the same.
    void setThemeType(const QString &themeType);

    /// Follows \a view, which may be null, and no longer the previous one: when its arrow flips,
    /// the anchor does, and when it moves along its side, the offset follows. Nothing is asked of
    /// the view before that.
    void setPopupQuickView(OxaPopupQuickView *view);

Q_SIGNALS:
    /// takesModelOwnership was set to another value.
    void takesModelOwnershipChanged();
    /// arrowOffset was set to another value.
    void arrowOffsetChanged();
    /// arrowSize was set to another value.
    void arrowSizeChanged();
    /// arrowAlignment was set to another value.
    void arrowAlignmentChanged();
    /// arrowAnchor was set to another value.
    void arrowAnchorChanged();
    /// The model was set to another value.
    void modelChanged();
    /// The theme was set.
    void themeTypeChanged();

private Q_SLOTS:
    void adjustArrowOffset();
    void flipArrow(Qt::ArrowType arrow);

private:
    QVariant _model() const;

    bool m_takesModelOwnership = false;
    int m_arrowOffset = 0;
    int m_arrowSize = 0;
    OxaQmlBalloon::ArrowAlignment m_arrowAlignment = OxaQmlBalloon::CenterAlignment;
    OxaQmlBalloon::ArrowAnchor m_arrowAnchor = OxaQmlBalloon::Top;
    OxaControllerModel m_model;
    QPointer<OxaPopupQuickView> m_popupQuickView;
    QString m_themeType = QStringLiteral("global");
};
