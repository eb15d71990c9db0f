// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than headers are here: list, arrow and field have properties of their own.

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/svg/OxaSvgIcon.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QComboBox>
#include <QPointer>

#include <string>

class QAbstractItemView;
class QStyleOptionComboBox;

/// What OxaComboBox::updateStyle() takes.
struct UTComboBoxConfig
{
    std::string textColorSetName;       ///< Also the arrow's colours.
    std::string backgroundColorSetName; ///< The field's, and the list's too.
    std::string borderColorSetName;     ///< The field's and the list's.
    int borderWidth = 0;                ///< Pixels, to 255; 0 counts as 1 if there is a border set,
                                        ///< and drops the radius.
    int borderRadius = 0;               ///< Pixels, 0 to 255.
};

/// A drop-down list that takes part in theming. It writes its own style text, and a sheet for its
/// list, from the sets "oxa-rills-combobox-background", "oxa-rills-combobox-border" and
/// "oxa-rills-combobox-text", or those given to updateStyle(); its arrow is an SVG icon in the set
/// "oxa-rills-combobox-dropdown-arrow".
///
/// **A combo box without an object name stays unstyled** and shows Qt's arrow under its own: the
/// selectors of its style text need a name, of letters, digits, "-" and "_". One given later takes
/// effect when the combo box is shown next. A sheet set by setStyleSheet() is replaced when the box
/// is styled next. Colour sets that don't exist leave their declarations out.
///
/// Its paddings are not mirrored in a right-to-left application.
///
/// The list can be moved by an offset, open upwards and without animation. With the popup off, the
/// combo box is one big button that emits contentAreaClicked(). Space in the list chooses the
/// highlighted row, and emits activated() also if it was the current one.
///
/// Its list scrolls by a bar, and takes the accessible name of the combo box when it opens unless
/// it has one.
///
/// Slots may delete the combo box, except where Qt goes on with it: in cssChanged() while the box
/// or its list is shown or hidden, in highlighted(), in currentIndexChanged(), and in activated(),
/// after which Qt emits textActivated(). There use deleteLater().
class UIELEMENTS_EXPORT OxaComboBox : public QComboBox
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QComboBox)
    UIELEMENTS_FONT_BLOCK
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable)
    Q_PROPERTY(QString svgDropdownIcon READ getSvgDropdownIcon WRITE setSvgDropdownIcon NOTIFY
                       svgDropdownIconChanged)
    Q_PROPERTY(QString svgDropDownIconExpanded READ getSvgDropDownIconExpanded WRITE
                       setSvgDropDownIconExpanded NOTIFY svgDropdownIconExpandedChanged)
    Q_PROPERTY(QSize svgDropdownIconSize READ getSvgDropdownIconSize WRITE setSvgDropdownIconSize
                       NOTIFY svgDropdownIconSizeChanged)
    Q_PROPERTY(int svgDropdownIconPadding READ getSvgDropdownIconPadding NOTIFY
                       svgDropdownIconPaddingChanged)
    Q_PROPERTY(int itemViewBorderRadius READ getItemViewBorderRadius WRITE setItemViewBorderRadius)
    Q_PROPERTY(QPoint itemViewDropdownOffset READ getItemViewDropdownOffset WRITE
                       setItemViewDropdownOffset)
    Q_PROPERTY(bool openedUpwards READ isOpenedUpwards WRITE setOpenedUpwards)
    Q_PROPERTY(QString selectedBackgroundColor READ getSelectedBackgroundColor WRITE
                       setSelectedBackgroundColor)
    Q_PROPERTY(
            QString popupBackgroundColor READ getPopupBackgroundColor WRITE setPopupBackgroundColor)
    Q_PROPERTY(bool showPopupEnabled READ isShowPopupEnabled WRITE setShowPopupEnabled)
    Q_PROPERTY(
            bool animateComboBox READ isComboBoxAnimationEnabled WRITE setComboBoxAnimationEnabled)

public:
    /// Makes an empty combo box.
    explicit OxaComboBox(QWidget *parent = nullptr);
    ~OxaComboBox() override;

    /// Returns the path of the arrow's file, ":/Resources/arrow-down_8.svg" at first.
    QString getSvgDropdownIcon() const;

    /// Loads the arrow from \a path, emits svgDropdownIconChanged() and styles the box anew.
    void setSvgDropdownIcon(const QString &path);

    /// Returns the path of the arrow's file while the list shows, ":/Resources/arrow-up_8.svg" at
    /// first.
    QString getSvgDropDownIconExpanded() const;

    /// Loads the arrow that shows while the list does from \a path, emits
    /// svgDropdownIconExpandedChanged() and styles the box anew.
    void setSvgDropDownIconExpanded(const QString &path);

    /// Returns the size of both arrows in pixels, 12 by 12 at first.
    QSize getSvgDropdownIconSize() const;

    /// Sets the size of both arrows, emits svgDropdownIconSizeChanged(), styles the box anew and
    /// repaints it.
    void setSvgDropdownIconSize(const QSize &size);

    /// Returns the space on each side of the arrow in pixels, 5 at first.
    int getSvgDropdownIconPadding() const;

    /// Sets the space on each side of the arrow, emits svgDropdownIconPaddingChanged() and styles
    /// the box anew.
    void setSvgDropdownIconPaddingRight(int padding);

    /// Returns the radius of the list's corners in pixels, 0 at first.
    int getItemViewBorderRadius() const;

    /// Sets the radius of the list's corners and styles the box anew.
    void setItemViewBorderRadius(int radius);

    /// Returns how far the list stands from where Qt puts it, (0, 4) at first.
    QPoint getItemViewDropdownOffset() const;

    /// Sets how far the list stands from where Qt puts it, and styles the box anew.
    void setItemViewDropdownOffset(const QPoint &offset);

    /// True when the list opens above the box. Off by default.
    bool isOpenedUpwards() const;

    /// Stores whether the list opens above the box.
    void setOpenedUpwards(bool upwards);

    /// Returns the set of the selected row's background; empty, the style's own, at first.
    QString getSelectedBackgroundColor() const;

    /// Stores the set of the selected row's background. It shows when the box is styled next.
    void setSelectedBackgroundColor(const QString &colorSetName);

    /// Returns the set of the list's background; empty, the box's own, at first.
    QString getPopupBackgroundColor() const;

    /// Stores the set of the list's background. It shows when the box is styled next.
    void setPopupBackgroundColor(const QString &colorSetName);

    /// True when the list can be opened, as it can by default.
    bool isShowPopupEnabled() const;

    /// Stores whether the list can be opened. Where not, all of the box is content area.
    void setShowPopupEnabled(bool enabled);

    /// True when the list opens with the platform's animation, as it does by default.
    bool isComboBoxAnimationEnabled() const;

    /// Stores whether the list opens with the platform's animation.
    void setComboBoxAnimationEnabled(bool enabled);

    /// Sets the space in front of the text in pixels, truncated; 12 at first. What is not a number
    /// counts as 0. Styles the box anew.
    void setLeftPadding(double padding);

    /// Makes the text editable or not, as QComboBox, and styles the box anew.
    void setEditable(bool editable);

    /// Takes colour sets and border from \a config, and the arrows' colours from its text set, and
    /// styles the box anew. Does not repaint a box without an object name.
    void updateStyle(const UTComboBoxConfig &config);

    /// Opens the list, moved by the offset; upwards the offset counts upwards. Does nothing where
    /// it cannot be opened. A box without items has no list to open, but shows the arrow of an open
    /// one until hidePopup().
    void showPopup() override;

    void hidePopup() override;

public Q_SLOTS:
    /// Remembers \a index as the row that Space chooses.
    void highLightedIndex(int index);

Q_SIGNALS:
    /// For the properties' sake: nothing emits it.
    void svgDropdownBorderRadiusChanged(int radius);

    /// For the properties' sake: nothing emits it.
    void svgDropdownBorderWidthChanged(int borderWidth);

    /// The arrow has another file.
    void svgDropdownIconChanged(const QString &path);

    /// The arrow that shows while the list does has another file.
    void svgDropdownIconExpandedChanged(const QString &path);

    /// The arrows have another size.
    void svgDropdownIconSizeChanged(const QSize &size);

    /// The arrow has another space around it.
    void svgDropdownIconPaddingChanged(int padding);

    /// The left button went down beside the arrow, or anywhere with the popup off. With the popup
    /// off, any key that the list gets emits it too: then \a event is null.
    void contentAreaClicked(QMouseEvent *event);

protected Q_SLOTS:
    /// Looks the arrows' sets up again and styles the box anew. Runs at each change of the theme
    /// type.
    virtual void onThemeChanged();

protected:
    /// Writes the style text of the box and the sheet of its list, and emits cssChanged(). Without
    /// an object name it does nothing.
    virtual void applyCustomCSS();

    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void takeConfig();
    void restoreConfig();
    QString fieldStyleSheet() const;
    QString listStyleSheet() const;
    void styleList();
    void takeList();
    void followList();
    void placePopup(QWidget *frame) const;
    bool onListKeyPressed(int key);
    void drawDropdownIcon(QPainter *painter, const QStyleOptionComboBox &option);
    int dropDownWidth() const;

    UTComboBoxConfig m_config { "oxa-rills-combobox-text", "oxa-rills-combobox-background",
                                "oxa-rills-combobox-border", 1, 1 };
    OxaColorSet m_backgroundColors;
    OxaColorSet m_borderColors;
    OxaColorSet m_textColors;
    OxaSvgIcon m_dropdownIcon;
    OxaSvgIcon m_dropdownIconExpanded;
    QPointer<QAbstractItemView> m_list; ///< The one whose events arrive.
    QPoint m_itemViewDropdownOffset { 0, 4 };
    QString m_selectedBackgroundColor;
    QString m_popupBackgroundColor;
    int m_svgDropdownIconPadding = 5;
    int m_highlightedIndex = 0;
    int m_itemViewBorderRadius = 0;
    int m_leftPadding = 12;
    OxaCSSData m_border;     ///< Radius, width and sides alone count.
    bool m_isStyled = false; ///< By a style text of its own.
    bool m_isExpanded = false;
    bool m_isAnimated = true;
    bool m_isOpenedUpwards = false;
    bool m_isShowPopupEnabled = true;
};
