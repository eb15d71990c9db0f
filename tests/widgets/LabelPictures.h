// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ColorSets.h"
#include "support/Pixels.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QPainter>
#include <QTest>

/// Helpers for the tests of OxaLabel's painting.
namespace LabelPictures {

/// The ways in which a label paints its text.
enum class Path {
    Qts,   ///< As QLabel does: without an ellipsis.
    Line,  ///< One elided line.
    Lines, ///< Wrapped lines, the last of them elided.
};

inline void use(Path path, OxaLabel &label)
{
    label.setElideMode(path == Path::Qts ? Qt::ElideNone : Qt::ElideRight);
    label.setWordWrap(path == Path::Lines);
}

/// Calls \a addRow with each path and its name.
template <typename AddRow>
void forEachPath(AddRow addRow)
{
    addRow("as QLabel does", Path::Qts);
    addRow("in one line", Path::Line);
    addRow("in wrapped lines", Path::Lines);
}

/// Adds a data row for each path, under the column "path".
inline void addPaths()
{
    QTest::addColumn<Path>("path");
    forEachPath([](const char *name, Path path) { QTest::newRow(name) << path; });
}

/// Colours that nothing else uses.
const QColor ground(0xd8, 0xf0, 0x10);
const QColor thinGround(0x10, 0x80, 0x30, 0x60);
const QColor line(0x08, 0x10, 0xf0);

inline OxaColorSetMap store()
{
    return ColorSets::storeOf({
            OxaColorSet(QStringLiteral("button-hyperlink-text"), Qt::black),
            OxaColorSet(QStringLiteral("ground"), ground),
            OxaColorSet(QStringLiteral("thin ground"), thinGround),
            OxaColorSet(QStringLiteral("line"), line),
            ColorSets::make(QStringLiteral("ink"),
                            { "#f000a8", "#00a8f0", "#a87800", "#9000f0", "#f07800", "#007848" }),
    });
}

/// Returns an empty picture of \a label.
inline QImage paper(const OxaLabel &label) { return Pixels::paper(label.size()); }

/// Sets \a painter up to draw text as \a label does.
inline void takePen(QPainter &painter, const OxaLabel &label)
{
    painter.setFont(label.font());
    painter.setPen(label.palette().color(QPalette::WindowText));
    painter.setLayoutDirection(label.layoutDirection());
}

} // namespace LabelPictures

Q_DECLARE_METATYPE(LabelPictures::Path)
Q_DECLARE_METATYPE(QTextOption::WrapMode)
