// SPDX-License-Identifier: Apache-2.0
#include "SignalArguments.h"

#include <UiElements/app/OxaAppSignals.h>

#include <QAction>
#include <QMetaEnum>
#include <QMetaMethod>

#include <algorithm>
#include <array>
#include <type_traits>

namespace {

QString quoted(const QString &value) { return QStringLiteral("“%1”").arg(value); }

QString textOf(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }
QString textOf(int value) { return QString::number(value); }
QString textOf(const QString &value) { return quoted(value); }
QString textOf(const std::string &value) { return quoted(QString::fromStdString(value)); }

QString textOf(const std::vector<std::string> &values)
{
    QStringList texts;
    for (const std::string &value : values)
        texts += textOf(value);
    return QStringLiteral("[%1]").arg(texts.join(QStringLiteral(", ")));
}

QString textOf(const QPointF &point)
{
    return QStringLiteral("(%1, %2)").arg(point.x()).arg(point.y());
}
QString textOf(const QPoint &point) { return textOf(QPointF(point)); }

QString textOf(const QRectF &rect)
{
    return QStringLiteral("(%1, %2, %3 × %4)")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height());
}
QString textOf(const QRect &rect) { return textOf(QRectF(rect)); }

QString textOf(const QVariant &value)
{
    return value.isValid() ? quoted(value.toString()) : QStringLiteral("invalid");
}

QString textOf(QAction *action) { return action ? quoted(action->text()) : QStringLiteral("null"); }

QString textOf(const QVariantMap &values)
{
    QStringList texts;
    for (auto entry = values.begin(); entry != values.end(); ++entry)
        texts += QStringLiteral("%1: %2").arg(entry.key(), textOf(entry.value()));
    return QStringLiteral("{%1}").arg(texts.join(QStringLiteral(", ")));
}

template <typename Enum>
QString keyOf(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(int(value)));
}
QString textOf(Qt::ArrowType type) { return keyOf(type); }
QString textOf(QWindow::Visibility visibility) { return keyOf(visibility); }

#ifndef UIELEMENTS_OUTER_APPLICATION_TYPES
QString textOf(const fenn::guid &id)
{
    const QByteArray bytes(reinterpret_cast<const char *>(id.bytes.data()), int(id.bytes.size()));
    return QString::fromLatin1(bytes.toHex());
}

QString textOf(const uiWhiteboard::CreateWhiteboardInfo &info)
{
    return QStringLiteral("{conversationId: %1, callId: %2}")
            .arg(textOf(info.conversationId), textOf(info.callId));
}
#endif

/// A pointer by the class of its object, and an enumeration without names by its number. Other
/// types of an outer application are opaque.
template <typename Value>
QString textOf(const Value &value)
{
    if constexpr (std::is_pointer_v<Value>) {
        return value ? QString::fromLatin1(value->metaObject()->className())
                     : QStringLiteral("null");
    } else if constexpr (std::is_enum_v<Value>) {
        return QString::number(static_cast<int>(value));
    } else {
        return QStringLiteral("…");
    }
}

/// The operations on values of one type, which \a name calls as the meta-object does.
struct Type
{
    const char *name;
    QString (*text)(const void *value);
    void *(*defaultValue)();
};

template <typename Value>
Type typeOf(const char *name)
{
    return { name, [](const void *value) { return textOf(*static_cast<const Value *>(value)); },
             []() -> void * {
                 static Value value;
                 value = Value();
                 return &value;
             } };
}

#define TYPE(name) typeOf<name>(#name)
const Type types[] = {
    TYPE(bool),
    TYPE(int),
    TYPE(QString),
    TYPE(std::string),
    TYPE(std::vector<std::string>),
    TYPE(QPoint),
    TYPE(QPointF),
    TYPE(QRect),
    typeOf<QRect>("QRect&"),
    TYPE(QRectF),
    TYPE(QVariant),
    TYPE(QVariantMap),
    typeOf<QAction *>("QAction*"),
    typeOf<QWidget *>("QWidget*"),
    typeOf<QWindow *>("QWindow*"),
    TYPE(Qt::ArrowType),
    TYPE(QWindow::Visibility),
    TYPE(fenn::guid),
    TYPE(dolmCore::viewModels::AudioDeviceAvailableStatus),
    TYPE(dolmCore::viewModels::CallControlMainItemType),
    TYPE(dolmCore::viewModels::CallControlMenuItemType),
    TYPE(dolmCore::viewModels::ECMProvider),
    TYPE(dolmCore::viewModels::HomeTabCoachMark),
    TYPE(dolmCore::viewModels::OAuthProvider),
    TYPE(dolmCore::viewModels::SetWidgetVisibilityOrigin),
    TYPE(dolmCore::viewModels::ShareSourcesSelectionWindowTab),
    TYPE(dolmCore::viewModels::ShowCallAssistantWindowOrigin),
    TYPE(uiWhiteboard::CreateWhiteboardInfo),
    TYPE(ApplicationMenuItem),
};
#undef TYPE

const Type *findType(const QByteArray &name)
{
    const auto found = std::find_if(std::begin(types), std::end(types),
                                    [&name](const Type &type) { return name == type.name; });
    return found == std::end(types) ? nullptr : found;
}

} // namespace

QString SignalArguments::text(const QByteArray &typeName, const void *value)
{
    const Type *type = findType(typeName);
    if (type)
        return type->text(value);
    const QString text = QVariant(QMetaType::type(typeName), value).toString();
    return text.isEmpty() ? QStringLiteral("?") : text;
}

bool SignalArguments::emitWithDefaults(QObject *sender, const QMetaMethod &signal)
{
    const QByteArrayList typeNames = signal.parameterTypes();
    std::array<QGenericArgument, 10> arguments;
    for (int i = 0; i < typeNames.size(); ++i) {
        const Type *type = findType(typeNames[i]);
        if (!type)
            return false;
        arguments[std::size_t(i)] = QGenericArgument(type->name, type->defaultValue());
    }
    return signal.invoke(sender, Qt::DirectConnection, arguments[0], arguments[1], arguments[2],
                         arguments[3], arguments[4], arguments[5], arguments[6], arguments[7],
                         arguments[8], arguments[9]);
}
