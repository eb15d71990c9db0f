// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeBlock.h>

#include <QFrame>

#include <memory>

/// A widget as a client may write one: it is made by a factory, has no fonts, asks for colours
/// itself, and does not follow the theme type of its first parent.
class ClientPanel : public QFrame
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QFrame)

public:
    static std::unique_ptr<ClientPanel> make(QWidget *parent)
    {
        return std::unique_ptr<ClientPanel>(new ClientPanel(parent));
    }

protected Q_SLOTS:
    virtual void onThemeChanged()
    {
        m_frameColor = OxaThemeUtils::getColorSet("client-frame", this).normal;
    }

private:
    explicit ClientPanel(QWidget *parent) : QFrame(parent) { ClientPanel::onThemeChanged(); }

    QColor m_frameColor;
};
