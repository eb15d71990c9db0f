// SPDX-License-Identifier: Apache-2.0
#include "QmlLooks.h"

#include "RoomsApplication.h"
#include "protocol/Literal.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/svg/OxaSvgRenderer.h>

#include <QMetaEnum>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlPropertyMap>
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

void provideLooks(QQmlEngine *engine)
{
    // Not QVariantMaps: each use of one makes all of it anew for JavaScript.
    auto *looks = new QQmlPropertyMap(engine);
    auto *colors = new QQmlPropertyMap(looks);
    auto *fonts = new QQmlPropertyMap(looks);
    looks->insert(u"colors"_s, QVariant::fromValue<QObject *>(colors));
    looks->insert(u"fonts"_s, QVariant::fromValue<QObject *>(fonts));
    const auto read = [looks, colors, fonts] {
        for (const auto &[name, set] : RoomsApplication::get()->getColorSets()) {
            const QString key = QString::fromStdString(name);
            colors->insert(key, set.normal);
            colors->insert(key + u".hovered"_s, set.hovered);
            colors->insert(key + u".pressed"_s, set.pressed);
            colors->insert(key + u".focused"_s, set.focused);
        }
        const auto tokens = QMetaEnum::fromType<OxaFont::Token>();
        for (int index = 0; index < tokens.keyCount(); ++index)
            fonts->insert(QString::fromLatin1(tokens.key(index)),
                          QFont(OxaFont(OxaFont::Token(tokens.value(index)))));
        looks->insert(u"isRightToLeft"_s, QGuiApplication::isRightToLeft());
    };
    read();
    QObject::connect(RoomsApplication::get(), &RoomsApplication::settingsChanged, looks, read);
    engine->addImageProvider(u"icons"_s, new Icons);
    engine->rootContext()->setContextProperty(u"looks"_s, looks);
}
