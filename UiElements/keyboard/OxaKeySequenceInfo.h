// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/app/OxaObject.h>

#include <QString>

#include <string>
#include <utility>

/// What a screen shows of a shortcut: its key as text, and two flags. Read-only in QML.
class UIELEMENTS_EXPORT OxaKeySequenceInfo : public OxaObject
{
    Q_OBJECT
    Q_PROPERTY(QString keySequence READ keySequence NOTIFY keySequenceChanged)
    Q_PROPERTY(bool isGlobal READ isGlobal NOTIFY isGlobalChanged)
    Q_PROPERTY(bool enabled READ enabled NOTIFY enabledChanged)

public:
    /// Makes an enabled object without a key.
    explicit OxaKeySequenceInfo(QObject *parent = nullptr);

    /// Returns the keys as text, such as "Ctrl+F". Empty by default.
    QString keySequence() const;

    /// Stores \a keySequence, and emits keySequenceChanged() when it differs.
    void setKeySequence(const QString &keySequence);

    /// Does the same with a UTF-8 text.
    void setKeySequence(const std::string &keySequence);

    /// Does the same with a UTF-8 text; null is an empty text.
    void setKeySequence(const char *keySequence);

    /// True when the keys work while another application is in front. Off by default.
    bool isGlobal() const;

    /// Stores \a isGlobal, and emits isGlobalChanged() when it differs.
    void setIsGlobal(bool isGlobal);

    /// True when the keys work at all. On by default.
    bool enabled() const;

    /// Stores \a enabled, and emits enabledChanged() when it differs.
    void setEnabled(bool enabled);

    /// Returns the modifiers and the key of the first chord of \a text, which is written as the
    /// platform shows keys. A text without a key gives no modifiers and the key 0.
    std::pair<Qt::KeyboardModifiers, Qt::Key> extractKeysFromSequence(const QString &text) const;

Q_SIGNALS:
    /// keySequence() has changed.
    void keySequenceChanged();

    /// isGlobal() has changed.
    void isGlobalChanged();

    /// enabled() has changed.
    void enabledChanged();

private:
    QString m_keySequence;
    bool m_isGlobal = false;
    bool m_enabled = true;
};
