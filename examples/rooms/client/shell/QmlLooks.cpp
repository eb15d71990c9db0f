// SPDX-License-Identifier: Apache-2.0
#include "QmlLooks.h"

#include "RoomsApplication.h"
#include "protocol/Literal.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/svg/OxaSvgRenderer.h>

#include <QMetaEnum>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickImageProvider>

namespace {

/// Icons in any colour: the id is the icon's name, a slash and the colour.
class Icons : public QQuickImageProvider
{
public:
    Icons() : QQuickImageProvider(QQuickImageProvider::Pixmap) { }

    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &requested) override
    {
        const OxaSvgRenderer icon(OxaSvgRenderer::resourcePath(id.section(u'/', 0, 0)));
        const QPixmap pixmap = icon.renderPixmap(requested.isValid() ? requested : QSize(16, 16), 1,
                                                 QColor(id.section(u'/', 1)));
        *size = pixmap.size();
        return pixmap;
    }
};

} // namespace

QmlLooks::QmlLooks(QQmlEngine *engine) : QObject(engine)
{
    engine->addImageProvider(u"icons"_s, new Icons);
    engine->rootContext()->setContextProperty(u"looks"_s, this);
    connect(RoomsApplication::get(), &RoomsApplication::settingsChanged, this, &QmlLooks::read);
    read();
}

void QmlLooks::read()
{
    const RoomsApplication *application = RoomsApplication::get();
    for (const auto &[name, set] : application->getColorSets()) {
        const QString key = QString::fromStdString(name);
        m_colors.insert(key, set.normal);
        m_colors.insert(key + u".hovered"_s, set.hovered);
        m_colors.insert(key + u".pressed"_s, set.pressed);
        m_colors.insert(key + u".focused"_s, set.focused);
    }
    const auto tokens = QMetaEnum::fromType<OxaFont::Token>();
    for (int index = 0; index < tokens.keyCount(); ++index) {
        const QFont font = OxaFont(OxaFont::Token(tokens.value(index)));
        m_fonts.insert(QString::fromLatin1(tokens.key(index)), font);
    }
    m_isRightToLeft = QGuiApplication::isRightToLeft();
    m_animationsDisabled = application->animationsDisabled();
    Q_EMIT changed();
}
