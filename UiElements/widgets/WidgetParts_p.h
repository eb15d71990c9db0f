// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QColor>
#include <QMargins>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

/// Small rules that several widgets follow.
namespace WidgetParts {

/// True when \a key, a Qt::Key, clicks a focused widget.
inline bool isClickKey(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Returns \a margins with left and right swapped.
inline QMargins mirrored(const QMargins &margins)
{
    return { margins.right(), margins.top(), margins.left(), margins.bottom() };
}

/// Returns \a pixmap, which must not be null, painted over with \a color in its own shape; itself
/// for a colour that is not valid.
inline QPixmap tinted(const QPixmap &pixmap, const QColor &color)
{
    if (!color.isValid())
        return pixmap;
    QPixmap tinted = pixmap;
    QPainter painter(&tinted);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.setBrush(color);
    painter.setPen(color);
    painter.drawRect(pixmap.rect());
    painter.end();
    return tinted;
}

/// Returns \a pixmap scaled into \a size, which is in pixels of a screen of 1:1, for a screen of
/// \a devicePixelRatio. Keeps the aspect ratio. Null where there is nothing to show.
inline QPixmap fitted(const QPixmap &pixmap, const QSize &size, qreal devicePixelRatio)
{
    if (pixmap.isNull())
        return {}; // QPixmap::scaled() would warn.
    QPixmap fitted = pixmap.scaled(size * devicePixelRatio, Qt::KeepAspectRatio,
                                   Qt::SmoothTransformation);
    fitted.setDevicePixelRatio(devicePixelRatio);
    return fitted;
}

/// Tells assistive technology of \a event in \a widget, for what Qt does not know of.
void tellAccessibility(QWidget *widget, QAccessible::Event event);

} // namespace WidgetParts
