// SPDX-License-Identifier: Apache-2.0
#include "IconRenderers.h"

#include <UiElements/svg/OxaSvgRenderer.h>

namespace {

constexpr int mostRenderers = 256;

} // namespace

IconRenderers::IconRenderers(QObject *parent) : QObject(parent), m_renderers(mostRenderers) { }

IconRenderers::~IconRenderers() = default;

const OxaSvgRenderer *IconRenderers::get(const QString &path)
{
    if (const OxaSvgRenderer *known = m_renderers.object(path))
        return known;
    auto *renderer = new OxaSvgRenderer(path);
    connect(renderer, &OxaSvgRenderer::repaintNeeded, this, &IconRenderers::repaintNeeded);
    m_renderers.insert(path, renderer);
    return renderer;
}
