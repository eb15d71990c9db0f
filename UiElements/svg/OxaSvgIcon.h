// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaColorSet.h>

#include <QObject>
#include <QSize>
#include <QStyle>

#include <memory>

class QPainter;

/// An outer picture and an optional inner one, each an SVG file with a size and a colour set,
/// painted in the colours of a style state.
///
/// The setters don't repaint: the widget that owns the icon does. GUI thread only.
class UIELEMENTS_EXPORT OxaSvgIcon : public QObject
{
    Q_OBJECT

public:
    /// Makes an icon without pictures.
    OxaSvgIcon();

    /// Makes an icon whose outer picture is the file at \a filePath. If the file fails to load, the
    /// icon is still valid, and each paint logs a warning.
    explicit OxaSvgIcon(const QString &filePath);
    ~OxaSvgIcon() override;

    /// True when there is an outer picture. One whose file failed in setFilePath() does not count.
    bool isValid() const;

    /// True when the icon is painted. False before any property of the outer picture was set.
    bool isVisible() const;

    /// Shows or hides both pictures. Does nothing before any property of the outer picture was set.
    void setVisible(bool visible);

    /// Returns the path of the outer picture as it was given, also when it failed to load.
    QString getFilePath() const;

    /// Loads the outer picture from \a filePath, with a warning when that fails. An empty path
    /// removes it.
    void setFilePath(const QString &filePath);

    /// Returns the size of the outer picture, 16 by 16 at first; (-1, -1) for an icon that is not
    /// visible or of which no property was set.
    QSize getIconSize() const;

    /// Sets the size of the outer picture in pixels.
    void setIconSize(const QSize &size);

    /// Returns the colours of the outer picture.
    OxaColorSet getColorSet() const;

    /// Sets the colours of the outer picture.
    void setColorSet(const OxaColorSet &colorSet);

    /// Returns the path of the inner picture as it was given, also when it failed to load.
    QString getInnerFilePath() const;

    /// Loads the inner picture from \a filePath, with a warning when that fails. An empty path
    /// removes it.
    void setInnerFilePath(const QString &filePath);

    /// Returns the size of the inner picture, 16 by 16 at first; (-1, -1) before any of its
    /// properties was set.
    QSize getInnerIconSize() const;

    /// Sets the size of the inner picture in pixels. It may exceed the outer one's.
    void setInnerIconSize(const QSize &size);

    /// Returns the colours of the inner picture.
    OxaColorSet getInnerColorSet() const;

    /// Sets the colours of the inner picture.
    void setInnerColorSet(const OxaColorSet &colorSet);

    /// Paints the outer picture at the painter's origin and the inner one at its centre, in the
    /// colours for \a state.
    void draw(QPainter *painter, const QFlags<QStyle::StateFlag> &state) const;

Q_SIGNALS:
    /// An animated picture shows its next frame.
    void repaintNeeded();

private:
    struct IconData;

    void _setFilePath(IconData &data, const QString &filePath);
    IconData &ensureIconDataExists();
    IconData &ensureInnerIconDataExists();

    std::unique_ptr<IconData> m_outer;
    std::unique_ptr<IconData> m_inner;
};
