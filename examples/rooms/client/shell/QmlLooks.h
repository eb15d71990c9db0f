// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QVariantMap>

class QQmlEngine;

/// The colours, fonts and icons of this client for its QML, where it is called "looks". An icon is
/// an image: "image://icons/NAME/COLOUR".
class QmlLooks : public QObject
{
    Q_OBJECT
    /// The colours of all sets, by the set's name, and with ".hovered" and the like behind it.
    Q_PROPERTY(QVariantMap colors MEMBER m_colors NOTIFY changed)
    /// The fonts of all tokens, by the token's name.
    Q_PROPERTY(QVariantMap fonts MEMBER m_fonts NOTIFY changed)
    Q_PROPERTY(bool isRightToLeft MEMBER m_isRightToLeft NOTIFY changed)
    Q_PROPERTY(bool animationsDisabled MEMBER m_animationsDisabled NOTIFY changed)

public:
    /// Makes those of \a engine, which owns them.
    explicit QmlLooks(QQmlEngine *engine);

Q_SIGNALS:
    void changed();

private:
    void read();

    QVariantMap m_colors;
    QVariantMap m_fonts;
    bool m_isRightToLeft = false;
    bool m_animationsDisabled = false;
};
