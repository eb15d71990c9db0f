// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Blocks.h"

#include <QLabel>

/// A FlowLayout that lays nothing out, and records what it was asked for.
class PlainFlow : public FlowLayout
{
public:
    using FlowLayout::FlowLayout;
    using FlowLayout::smartSpacing;

    void invalidate() override
    {
        ++invalidations;
        FlowLayout::invalidate();
    }

    int invalidations = 0;
    mutable QStringList passes;

private:
    int doLayout(const QRect &rect, bool apply) const override
    {
        passes += (apply ? QStringLiteral("apply ") : QStringLiteral("measure "))
                + Blocks::text(rect);
        return 42;
    }
};

/// A widget with a PlainFlow of labels, one for each letter.
class Letters : public QWidget
{
public:
    explicit Letters(const QString &letters)
    {
        for (const QChar letter : letters)
            layout.addWidget(new QLabel(letter));
    }

    /// Returns the letters in the order of the layout, "-" for what is no label.
    QString order() const
    {
        QString letters;
        for (int i = 0; i < layout.count(); ++i) {
            const auto *label = qobject_cast<QLabel *>(layout.widgetAt(i));
            letters += label ? label->text() : QStringLiteral("-");
        }
        return letters;
    }

    PlainFlow layout { this, QMargins(), 0, 0 };
};
