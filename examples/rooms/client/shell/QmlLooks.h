// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QQmlPropertyMap>

class QQmlEngine;

/// The colours, fonts and icons of this client for its QML, where it is called "looks". An icon is
/// an image: "image://icons/NAME/COLOUR".
class QmlLooks : public QObject
{
    Q_OBJECT
    /// The colours of all sets, by the set's name, and with ".hovered" and the like behind it.
    Q_PROPERTY(QObject *colors READ colors CONSTANT)
    /// The fonts of all tokens, by the token's name.
    Q_PROPERTY(QObject *fonts READ fonts CONSTANT)
    Q_PROPERTY(bool isRightToLeft MEMBER m_isRightToLeft NOTIFY changed)
    Q_PROPERTY(bool animationsDisabled MEMBER m_animationsDisabled NOTIFY changed)

public:
    /// Makes those of \a engine, which owns them.
    explicit QmlLooks(QQmlEngine *engine);

    QObject *colors() { return &m_colors; }
    QObject *fonts() { return &m_fonts; }

Q_SIGNALS:
    void changed();

private:
    void read();

    // Not a QVariantMap: each use of one makes all of it anew for JavaScript.
    QQmlPropertyMap m_colors;
    QQmlPropertyMap m_fonts;
    bool m_isRightToLeft = false;
    bool m_animationsDisabled = false;
};
