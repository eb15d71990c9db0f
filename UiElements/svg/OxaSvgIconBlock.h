// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than other headers: the macro at its end declares for moc what the class does.

#include <UiElements/UiElementsExport.h>
#include <UiElements/svg/OxaSvgIcon.h>
#include <UiElements/theme/OxaEnum.h>

#include <QMargins>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QWidget>

#include <memory>

/// Keeps an icon beside a widget's text, and the places of both: the behaviour behind
/// UIELEMENTS_SVG_ICON_BLOCK.
///
/// A member of the widget that it serves. The icon is made when it is first needed. Without a
/// colour set of its own, or with one that the theme lacks, it takes the fallback colours. One
/// constant for each class holds the signals, in which the classes differ.
class UIELEMENTS_EXPORT OxaSvgIconBlock
{
    Q_DISABLE_COPY_MOVE(OxaSvgIconBlock)

public:
    /// Serves \a widget, whose icon falls back on \a fallbackColors, such as those of its text;
    /// both must outlive the block.
    template <typename Widget>
    OxaSvgIconBlock(Widget *widget, const OxaColorSet &fallbackColors)
        : m_widget(widget), m_class(classOf<Widget>), m_fallbackColors(fallbackColors)
    {
        lookAgainAfter(widget, &Widget::svgIconChanged, m_icon);
    }
    ~OxaSvgIconBlock();

    /// After each \a changed, checks \a icon, a member of \a widget, once more when the event loop
    /// runs: loads the path unless the icon shows it already, and repaints. So a path that fails to
    /// load is tried twice.
    template <typename Widget, typename Class>
    static void lookAgainAfter(Widget *widget, void (Class::*changed)(const QString &),
                               const std::unique_ptr<OxaSvgIcon> &icon)
    {
        QObject::connect(
                widget, changed, widget,
                [widget, &icon](const QString &path) { showPath(icon.get(), path, widget); },
                Qt::QueuedConnection);
    }

    /// Loads \a icon, which may be null, from \a path unless it shows that already, and repaints
    /// \a widget.
    static void showPath(OxaSvgIcon *icon, const QString &path, QWidget *widget);

    /// \name The icon, and the properties of its outer picture
    /// \{

    /// Gives the widget \a icon, not null, from the start.
    void setIcon(std::unique_ptr<OxaSvgIcon> icon);

    /// Implements the widget's properties of the same names, which begin with "svgIcon". The icon
    /// itself is null until it is needed. The setters emit the widget's signals; those of size and
    /// colours repaint it first.
    const std::unique_ptr<OxaSvgIcon> &icon() const { return m_icon; }
    QString path() const;
    void setPath(const QString &path);
    QSize size() const;
    void setSize(const QSize &size);
    QString colorSetName() const { return m_colorSetName; }
    void setColorSetName(const QString &name);
    /// \}

    /// \name The properties of its inner picture
    /// \{

    /// Implements the widget's properties that begin with "innerSvgIcon". The setters of size and
    /// colours repaint the widget.
    QString innerPath() const;
    void setInnerPath(const QString &path);
    QSize innerSize() const;
    void setInnerSize(const QSize &size);
    QString innerColorSetName() const { return m_innerColorSetName; }
    void setInnerColorSetName(const QString &name);
    /// \}

    /// \name The places of icon and text
    /// \{

    /// Implements the widget's properties of the same names. All setters but setPadding() repaint
    /// the widget.
    OxaEnum::Alignment alignment() const { return m_alignment; }
    void setAlignment(OxaEnum::Alignment alignment);
    OxaEnum::HorAlign textHorAlign() const { return m_textHorAlign; }
    void setTextHorAlign(OxaEnum::HorAlign align);
    int textLeftPadding() const { return m_textLeftPadding; }
    void setTextLeftPadding(int padding);
    int textRightPadding() const { return m_textRightPadding; }
    void setTextRightPadding(int padding);

    QMargins padding() const { return m_padding; }
    void setPadding(const QMargins &padding) { m_padding = padding; }
    QPoint topLeftPadding() const { return { m_padding.left(), m_padding.top() }; }
    void setTopLeftPadding(const QPoint &padding);
    QPoint bottomRightPadding() const { return { m_padding.right(), m_padding.bottom() }; }
    void setBottomRightPadding(const QPoint &padding);
    /// \}

    /// Sets the colour sets of both pictures again if they have names. A slot may delete the
    /// widget, and the block with it.
    void refreshColorSets();

    /// Returns the set called \a name in the widget's theme, or the fallback colours if that is not
    /// valid.
    OxaColorSet colorSetOrFallback(const QString &name) const;

private:
    /// One widget class's signals, as functions on the widget.
    struct WidgetClass
    {
        void (*emitPathChanged)(QWidget *, const QString &);
        void (*emitColorSetChanged)(QWidget *, const OxaColorSet &);
        void (*emitSizeChanged)(QWidget *, const QSize &);
    };
    template <typename Widget>
    static const WidgetClass classOf;

    OxaSvgIcon &ensureSvgIconExists();

    QWidget *const m_widget;
    const WidgetClass &m_class;
    const OxaColorSet &m_fallbackColors;
    std::unique_ptr<OxaSvgIcon> m_icon;
    OxaEnum::Alignment m_alignment = OxaEnum::Alignment::Left;
    OxaEnum::HorAlign m_textHorAlign = OxaEnum::HorAlign::CenterAlign;
    QMargins m_padding;
    QString m_colorSetName;
    QString m_innerColorSetName;
    int m_textLeftPadding = 0;
    int m_textRightPadding = 0;
};

template <typename Widget>
const OxaSvgIconBlock::WidgetClass OxaSvgIconBlock::classOf = {
    [](QWidget *widget, const QString &path) {
        Q_EMIT static_cast<Widget *>(widget)->svgIconChanged(path);
    },
    [](QWidget *widget, const OxaColorSet &colorSet) {
        Q_EMIT static_cast<Widget *>(widget)->svgIconColorSetChanged(colorSet);
    },
    [](QWidget *widget, const QSize &size) {
        Q_EMIT static_cast<Widget *>(widget)->svgIconSizeChanged(size);
    },
};

/// Declares the icon members of a themed widget class. Place it after the theme and font blocks,
/// without a semicolon; it leaves the access at private. The class initialises `m_iconBlock` in its
/// constructor.
///
/// Properties, in pixels and, if they have sides, in reading direction: `svgIcon`, the icon's path,
/// for example from OxaSvgRenderer::resourcePath(), with `svgIconSize` (16 by 16) and
/// `svgIconColorSet` (the fallback colours); the same of a second picture on its centre, which
/// begin with "inner"; `svgIconAlignment`, the side of the text on which the icon is placed (Left);
/// `textHorAlign`, where the two are placed in the widget (CenterAlign); `textLeftPadding` and
/// `textRightPadding` around the text (0); and `svgIconTopLeftPadding` and
/// `svgIconBottomRightPadding` around the icon (0), as points of left and top, right and bottom.
///
/// setSvgIcon() loads the file at a path and emits svgIconChanged(); the widget checks the path
/// once more, and repaints, when the event loop runs. setSvgIconColorSet() keeps the name, so that
/// a theme change can look it up again, and emits svgIconColorSetChanged(); setSvgIconSize() emits
/// svgIconSizeChanged(). The inner icon's setters emit nothing. Only setSvgIconPadding() does not
/// repaint. Without an icon, paths are empty and sizes (-1, -1).
#define UIELEMENTS_SVG_ICON_BLOCK                                                                  \
    Q_PROPERTY(QString svgIcon READ getSvgIcon WRITE setSvgIcon NOTIFY svgIconChanged)             \
    Q_PROPERTY(QString svgIconColorSet READ getSvgIconColorSet WRITE setSvgIconColorSet NOTIFY     \
                       svgIconColorSetChanged)                                                     \
    Q_PROPERTY(                                                                                    \
            QSize svgIconSize READ getSvgIconSize WRITE setSvgIconSize NOTIFY svgIconSizeChanged)  \
    Q_PROPERTY(OxaEnum::Alignment svgIconAlignment READ getSvgIconAlignment WRITE                  \
                       setSvgIconAlignment)                                                        \
    Q_PROPERTY(OxaEnum::HorAlign textHorAlign READ getTextHorAlign WRITE setTextHorAlign)          \
    Q_PROPERTY(int textLeftPadding READ getTextLeftPadding WRITE setTextLeftPadding)               \
    Q_PROPERTY(int textRightPadding READ getTextRightPadding WRITE setTextRightPadding)            \
    Q_PROPERTY(QPoint svgIconTopLeftPadding READ getSvgIconTopLeftPadding WRITE                    \
                       setSvgIconTopLeftPadding)                                                   \
    Q_PROPERTY(QPoint svgIconBottomRightPadding READ getSvgIconBottomRightPadding WRITE            \
                       setSvgIconBottomRightPadding)                                               \
    Q_PROPERTY(QString innerSvgIcon READ getInnerSvgIcon WRITE setInnerSvgIcon)                    \
    Q_PROPERTY(QString innerSvgIconColorSet READ getInnerSvgIconColorSet WRITE                     \
                       setInnerSvgIconColorSet)                                                    \
    Q_PROPERTY(QSize innerSvgIconSize READ getInnerSvgIconSize WRITE setInnerSvgIconSize)          \
                                                                                                   \
public:                                                                                            \
    QString getSvgIcon() const { return m_iconBlock.path(); }                                      \
    void setSvgIcon(const QString &path) { m_iconBlock.setPath(path); }                            \
    QString getSvgIconColorSet() const { return m_iconBlock.colorSetName(); }                      \
    void setSvgIconColorSet(const QString &name) { m_iconBlock.setColorSetName(name); }            \
    QSize getSvgIconSize() const { return m_iconBlock.size(); }                                    \
    void setSvgIconSize(const QSize &iconSize) { m_iconBlock.setSize(iconSize); }                  \
    OxaEnum::Alignment getSvgIconAlignment() const { return m_iconBlock.alignment(); }             \
    void setSvgIconAlignment(OxaEnum::Alignment side) { m_iconBlock.setAlignment(side); }          \
    OxaEnum::HorAlign getTextHorAlign() const { return m_iconBlock.textHorAlign(); }               \
    void setTextHorAlign(OxaEnum::HorAlign align) { m_iconBlock.setTextHorAlign(align); }          \
    int getTextLeftPadding() const { return m_iconBlock.textLeftPadding(); }                       \
    void setTextLeftPadding(int padding) { m_iconBlock.setTextLeftPadding(padding); }              \
    int getTextRightPadding() const { return m_iconBlock.textRightPadding(); }                     \
    void setTextRightPadding(int padding) { m_iconBlock.setTextRightPadding(padding); }            \
    QMargins getSvgIconPadding() const { return m_iconBlock.padding(); }                           \
    void setSvgIconPadding(const QMargins &padding) { m_iconBlock.setPadding(padding); }           \
    QPoint getSvgIconTopLeftPadding() const { return m_iconBlock.topLeftPadding(); }               \
    void setSvgIconTopLeftPadding(const QPoint &space) { m_iconBlock.setTopLeftPadding(space); }   \
    QPoint getSvgIconBottomRightPadding() const { return m_iconBlock.bottomRightPadding(); }       \
    void setSvgIconBottomRightPadding(const QPoint &padding)                                       \
    {                                                                                              \
        m_iconBlock.setBottomRightPadding(padding);                                                \
    }                                                                                              \
    QString getInnerSvgIcon() const { return m_iconBlock.innerPath(); }                            \
    void setInnerSvgIcon(const QString &path) { m_iconBlock.setInnerPath(path); }                  \
    QString getInnerSvgIconColorSet() const { return m_iconBlock.innerColorSetName(); }            \
    void setInnerSvgIconColorSet(const QString &name) { m_iconBlock.setInnerColorSetName(name); }  \
    QSize getInnerSvgIconSize() const { return m_iconBlock.innerSize(); }                          \
    void setInnerSvgIconSize(const QSize &iconSize) { m_iconBlock.setInnerSize(iconSize); }        \
    void refreshSvgIconColorSet() { m_iconBlock.refreshColorSets(); }                              \
                                                                                                   \
Q_SIGNALS:                                                                                         \
    void svgIconChanged(const QString &path);                                                      \
    void svgIconColorSetChanged(const OxaColorSet &colorSet);                                      \
    void svgIconSizeChanged(const QSize &size);                                                    \
                                                                                                   \
private:                                                                                           \
    OxaSvgIconBlock m_iconBlock;
