// SPDX-License-Identifier: Apache-2.0
#include "Menus.h"

#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/UTContextMenuUtils.h>

namespace {

constexpr QSize iconSize(16, 16);

OxaMenu *setUp(OxaMenu *menu)
{
    menu->setFontToken(OxaFont::Token::BodySecondary);
    menu->setCSS(UTContextMenuUtils::getContextMenuStyleSheet()
                 + QStringLiteral("QMenu { border: 1px solid $(gallery-card-border); }"
                                  "QMenu::icon, QMenu::indicator { left: 8px; }"
                                  "QMenu::right-arrow { right: 8px; }"));
    return menu;
}

QPixmap pixmap(const OxaSvgRenderer &renderer, const QColor &color)
{
    constexpr int pixelRatio = 2;
    return renderer.renderPixmap(QRectF(QPointF(), iconSize), iconSize * pixelRatio, pixelRatio,
                                 color, Qt::transparent);
}

} // namespace

OxaMenu *Menus::make(QWidget *parent) { return setUp(new OxaMenu(parent)); }

OxaMenu *Menus::makeCopy(QMenu *other, QWidget *parent)
{
    return setUp(new OxaMenu(other, parent));
}

void Menus::setIcon(QAction *action, OxaMenu *menu, const char *name)
{
    const QString path = OxaSvgRenderer::resourcePath(QString::fromLatin1(name));
    const auto tint = [action, menu, path] {
        const OxaColorSet colors = OxaThemeUtils::getColorSet("listitem-textprimary",
                                                              menu->getThemeType());
        const OxaSvgRenderer renderer(path, nullptr);
        QIcon icon(pixmap(renderer, colors.normal));
        icon.addPixmap(pixmap(renderer, colors.hovered), QIcon::Active);
        icon.addPixmap(pixmap(renderer, colors.disabled), QIcon::Disabled);
        action->setIcon(icon);
    };
    QObject::connect(menu, &OxaMenu::themeTypeChanged, action, tint);
    tint();
}

void Menus::openBelow(OxaMenu *menu, const QWidget *button)
{
    QPoint corner(0, button->height());
    if (button->isRightToLeft())
        corner.setX(button->width() - menu->sizeHint().width());
    menu->popupAt(button->mapToGlobal(corner));
}
