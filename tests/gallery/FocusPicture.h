// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractSpinBox>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollArea>
#include <QTextEdit>

#include <support/Contrast.h>

/// A picture of where the focus is shown: of a widget and a little around it, whether it is
/// scrolled into view or not.
class FocusPicture
{
public:
    explicit FocusPicture(QWidget &widget) : m_widget(&widget), m_image(painted()) { }

    /// Returns whether the widget looks different now, in pixels that have a contrast of 3 : 1 to
    /// what they were. True if it is gone or has another size.
    bool hasChanged() const
    {
        if (!m_widget)
            return true;
        const QImage now = painted();
        if (now.size() != m_image.size())
            return true;
        int changed = 0;
        for (int y = 0; y < now.height(); ++y) {
            for (int x = 0; x < now.width(); ++x) {
                const QRgb a = m_image.pixel(x, y);
                const QRgb b = now.pixel(x, y);
                if (a != b && Contrast::between(a, b) >= wantedContrast)
                    ++changed;
            }
        }
        return changed >= leastPixels;
    }

private:
    static constexpr qreal wantedContrast = 3;
    static constexpr int leastPixels = 20; ///< More than a text cursor has.
    static constexpr int margin = 4;

    static bool isField(const QWidget &widget)
    {
        return qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QTextEdit *>(&widget)
                || qobject_cast<const QPlainTextEdit *>(&widget)
                || qobject_cast<const QAbstractSpinBox *>(&widget);
    }

    /// Returns the widget that scrolls with \a widget, or the window.
    static QWidget *pageOf(const QWidget &widget)
    {
        QWidget *page = widget.parentWidget();
        while (!page->isWindow()) {
            QWidget *viewport = page->parentWidget();
            if (qobject_cast<QScrollArea *>(viewport->parentWidget()))
                break;
            page = viewport;
        }
        return page;
    }

    static QRect areaOf(const QWidget &widget)
    {
        const QPoint place = widget.mapTo(pageOf(widget), QPoint());
        return QRect(place, widget.size()).adjusted(-margin, -margin, margin, margin);
    }

    QImage painted() const
    {
        QWidget *page = pageOf(*m_widget);
        const QRect area = areaOf(*m_widget);
        QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(page->palette().color(QPalette::Window));
        QPainter painter(&image);
        page->render(&painter, QPoint(), QRegion(area), QWidget::DrawChildren);
        // Its cursor and its selection alone do not show where the focus is: a field may be empty.
        if (isField(*m_widget))
            painter.fillRect(image.rect().adjusted(2 * margin, 2 * margin, -2 * margin,
                                                   -2 * margin),
                             Qt::white);
        return image;
    }

    QPointer<QWidget> m_widget;
    QImage m_image;
};
