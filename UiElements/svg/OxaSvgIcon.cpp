// SPDX-License-Identifier: Apache-2.0
#include "OxaSvgIcon.h"

#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/theme/StateColor_p.h>

#include <QPainter>

/// One picture.
struct OxaSvgIcon::IconData
{
    Q_DISABLE_COPY_MOVE(IconData)

    IconData() = default;
    explicit IconData(const QString &path) : renderer(new OxaSvgRenderer(path)), filePath(path) { }
    ~IconData() { delete renderer; }

    void draw(QPainter *painter, QStyle::State state) const
    {
        renderer->draw(painter, QRectF(QPointF(), iconSize), colorForStyleState(colorSet, state),
                       1.0);
    }

    QPointer<OxaSvgRenderer> renderer;
    QString filePath;
    QSize iconSize { 16, 16 };
    OxaColorSet colorSet;
    bool isVisible = true;
};

OxaSvgIcon::OxaSvgIcon() = default;

OxaSvgIcon::OxaSvgIcon(const QString &filePath) : m_outer(std::make_unique<IconData>(filePath))
{
    connect(m_outer->renderer, &OxaSvgRenderer::repaintNeeded, this, &OxaSvgIcon::repaintNeeded);
}

OxaSvgIcon::~OxaSvgIcon() = default;

bool OxaSvgIcon::isValid() const { return m_outer && m_outer->renderer; }

bool OxaSvgIcon::isVisible() const { return m_outer && m_outer->isVisible; }

void OxaSvgIcon::setVisible(bool visible)
{
    if (m_outer)
        m_outer->isVisible = visible;
}

QString OxaSvgIcon::getFilePath() const { return m_outer ? m_outer->filePath : QString(); }

void OxaSvgIcon::setFilePath(const QString &filePath)
{
    _setFilePath(ensureIconDataExists(), filePath);
}

QSize OxaSvgIcon::getIconSize() const { return isVisible() ? m_outer->iconSize : QSize(); }

void OxaSvgIcon::setIconSize(const QSize &size) { ensureIconDataExists().iconSize = size; }

OxaColorSet OxaSvgIcon::getColorSet() const { return m_outer ? m_outer->colorSet : OxaColorSet(); }

void OxaSvgIcon::setColorSet(const OxaColorSet &colorSet)
{
    ensureIconDataExists().colorSet = colorSet;
}

QString OxaSvgIcon::getInnerFilePath() const { return m_inner ? m_inner->filePath : QString(); }

void OxaSvgIcon::setInnerFilePath(const QString &filePath)
{
    _setFilePath(ensureInnerIconDataExists(), filePath);
}

QSize OxaSvgIcon::getInnerIconSize() const { return m_inner ? m_inner->iconSize : QSize(); }

void OxaSvgIcon::setInnerIconSize(const QSize &size)
{
    ensureInnerIconDataExists().iconSize = size;
}

OxaColorSet OxaSvgIcon::getInnerColorSet() const
{
    return m_inner ? m_inner->colorSet : OxaColorSet();
}

void OxaSvgIcon::setInnerColorSet(const OxaColorSet &colorSet)
{
    ensureInnerIconDataExists().colorSet = colorSet;
}

void OxaSvgIcon::draw(QPainter *painter, const QFlags<QStyle::StateFlag> &state) const
{
    if (!painter || !isVisible())
        return;
    if (m_outer->renderer)
        m_outer->draw(painter, state);
    if (!m_inner || !m_inner->renderer)
        return;

    const QSize outer = m_outer->iconSize;
    const QSize inner = m_inner->iconSize;
    painter->save();
    painter->translate(double(float(outer.width() - inner.width()) * 0.5F),
                       double(float(outer.height() - inner.height()) * 0.5F));
    m_inner->draw(painter, state);
    painter->restore();
}

void OxaSvgIcon::_setFilePath(IconData &data, const QString &filePath)
{
    data.filePath = filePath;
    if (!filePath.isEmpty()) {
        if (!data.renderer) {
            data.renderer = new OxaSvgRenderer(nullptr);
            connect(data.renderer, &OxaSvgRenderer::repaintNeeded, this,
                    &OxaSvgIcon::repaintNeeded);
        }
        if (data.renderer->load(filePath))
            return;
    }
    delete data.renderer;
}

OxaSvgIcon::IconData &OxaSvgIcon::ensureIconDataExists()
{
    if (!m_outer)
        m_outer = std::make_unique<IconData>();
    return *m_outer;
}

OxaSvgIcon::IconData &OxaSvgIcon::ensureInnerIconDataExists()
{
    if (!m_inner)
        m_inner = std::make_unique<IconData>();
    return *m_inner;
}
