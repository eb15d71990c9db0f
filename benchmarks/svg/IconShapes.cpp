// SPDX-License-Identifier: Apache-2.0
#include "IconShapes.h"

#include <QDir>
#include <qsvggraphics_p.h>
#include <qsvgtinydocument_p.h>

namespace {

QByteArray contentsOf(const QString &filePath)
{
    QFile file(filePath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Icons of other proportions are fitted into their square, which the peer knows nothing of.
bool isSquare(const QString &filePath)
{
    const std::unique_ptr<QSvgTinyDocument> document(QSvgTinyDocument::load(filePath));
    return document->viewBox().width() == document->viewBox().height();
}

IconShape loadShape(const QString &filePath, int size)
{
    IconShape shape { std::make_unique<OxaSvgIcon>(filePath), contentsOf(filePath), {}, {} };
    shape.icon->setIconSize(QSize(size, size));

    // Each of these files holds a single path, without a fill rule.
    const std::unique_ptr<QSvgTinyDocument> document(QSvgTinyDocument::load(filePath));
    auto *node = static_cast<QSvgPath *>(document->renderers().constFirst());
    shape.path = *node->qpath();
    shape.path.setFillRule(Qt::WindingFill);
    const qreal scale = size / document->viewBox().width();
    shape.place = QTransform::fromScale(scale, scale);
    return shape;
}

} // namespace

std::vector<IconShape> IconShapes::load(const QString &names, int size)
{
    std::vector<IconShape> shapes;
    const QDir folder(QStringLiteral(ICON_FOLDER));
    const QStringList files = folder.entryList({ names });
    for (const QString &name : files) {
        if (isSquare(folder.filePath(name)))
            shapes.push_back(loadShape(folder.filePath(name), size));
    }
    return shapes;
}
