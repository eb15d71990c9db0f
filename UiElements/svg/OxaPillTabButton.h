// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgPushButton.h>

/// A checkable pill: fully round at any height, with one set of colours while it is checked and
/// another while it is not. It sets its own style text whenever it is toggled or resized.
///
/// It never grows beyond its content. The width is computed when the icon changes, not when the
/// text does.
class UIELEMENTS_EXPORT OxaPillTabButton : public OxaSvgPushButton
{
    Q_OBJECT
    Q_PROPERTY(QString backgroundColorSet READ getBackgroundColorSet WRITE setBackgroundColorSet)
    Q_PROPERTY(QString textColorSet READ getTextColorSet WRITE setTextColorSet)
    Q_PROPERTY(QString iconColorSet READ getIconColorSet WRITE setIconColorSet)
    Q_PROPERTY(QString backgroundColorSetChecked READ getBackgroundColorSetChecked WRITE
                       setBackgroundColorSetChecked)
    Q_PROPERTY(QString textColorSetChecked READ getTextColorSetChecked WRITE setTextColorSetChecked)
    Q_PROPERTY(QString iconColorSetChecked READ getIconColorSetChecked WRITE setIconColorSetChecked)

public:
    /// Makes an unchecked pill without a text and an icon.
    explicit OxaPillTabButton(QWidget *parent = nullptr);

    /// Makes an unchecked pill with \a text and no icon.
    explicit OxaPillTabButton(const QString &text, QWidget *parent = nullptr);

    /// Returns the name of the unchecked pill's fill. Empty by default.
    QString getBackgroundColorSet() const;

    /// Sets the unchecked pill's fill, and its border to the set "oxa-defaultBorderForButton".
    void setBackgroundColorSet(const QString &name);

    /// Returns the name of the unchecked pill's text colours.
    QString getTextColorSet() const;

    /// Sets the unchecked pill's text colours.
    void setTextColorSet(const QString &name);

    /// Returns the name of the unchecked pill's icon colours.
    QString getIconColorSet() const;

    /// Sets the unchecked pill's icon colours.
    void setIconColorSet(const QString &name);

    /// Returns the name of the checked pill's fill. Empty by default.
    QString getBackgroundColorSetChecked() const;

    /// Sets the fill of the checked pill, and its border to the same set.
    void setBackgroundColorSetChecked(const QString &name);

    /// Returns the name of the checked pill's text colours.
    QString getTextColorSetChecked() const;

    /// Sets the checked pill's text colours.
    void setTextColorSetChecked(const QString &name);

    /// Returns the name of the checked pill's icon colours.
    QString getIconColorSetChecked() const;

    /// Sets the checked pill's icon colours.
    void setIconColorSetChecked(const QString &name);

protected:
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void onApplyCSS(bool isChecked);
    void onSvgIconChanged(const QString &path);

private:
    struct Colors
    {
        QString background;
        QString border;
        QString text;
        QString icon;
    };

    void roundToHeight();

    Colors m_unchecked;
    Colors m_checked;
    OxaCSSData m_style;
};
