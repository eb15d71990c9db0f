// SPDX-License-Identifier: Apache-2.0
#include "OxaKeySequenceInfo.h"

#include <QKeySequence>

namespace {

/// The bits of a key code that are the key; the others are its modifiers.
constexpr int keyMask = 0x1ffffff;

} // namespace

OxaKeySequenceInfo::OxaKeySequenceInfo(QObject *parent) : OxaObject(parent) { }

QString OxaKeySequenceInfo::keySequence() const { return m_keySequence; }

void OxaKeySequenceInfo::setKeySequence(const QString &keySequence)
{
    if (keySequence == m_keySequence)
        return;
    m_keySequence = keySequence;
    Q_EMIT keySequenceChanged();
}

void OxaKeySequenceInfo::setKeySequence(const std::string &keySequence)
{
    setKeySequence(QString::fromStdString(keySequence));
}

void OxaKeySequenceInfo::setKeySequence(const char *keySequence)
{
    setKeySequence(QString::fromUtf8(keySequence));
}

bool OxaKeySequenceInfo::isGlobal() const { return m_isGlobal; }

void OxaKeySequenceInfo::setIsGlobal(bool isGlobal)
{
    if (isGlobal == m_isGlobal)
        return;
    m_isGlobal = isGlobal;
    Q_EMIT isGlobalChanged();
}

bool OxaKeySequenceInfo::enabled() const { return m_enabled; }

void OxaKeySequenceInfo::setEnabled(bool enabled)
{
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    Q_EMIT enabledChanged();
}

std::pair<Qt::KeyboardModifiers, Qt::Key> OxaKeySequenceInfo::extractKeysFromSequence(
        const QString &text) const
{
    const QKeySequence sequence(text, QKeySequence::NativeText);
    if (sequence.isEmpty())
        return { Qt::NoModifier, Qt::Key(0) };
    const int code = sequence[0];
    return { Qt::KeyboardModifiers(code & ~keyMask), Qt::Key(code & keyMask) };
}
