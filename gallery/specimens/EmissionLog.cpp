// SPDX-License-Identifier: Apache-2.0
#include "EmissionLog.h"

#include "pages/signals/SignalWatcher.h"

#include <QQuickPaintedItem>

namespace {

constexpr int lines = 3;
constexpr int linesToKeep = 200;

/// Returns the class whose signals every object of the kind of \a sender has.
const QMetaObject &plainClassOf(const QObject &sender)
{
    if (sender.isWidgetType())
        return QWidget::staticMetaObject;
    return qobject_cast<const QQuickPaintedItem *>(&sender) ? QQuickPaintedItem::staticMetaObject
                                                            : QObject::staticMetaObject;
}

} // namespace

EmissionLog::EmissionLog(QWidget *parent) : CodeEdit(parent)
{
    setReadOnly(true);
    setAccessibleName(tr("What it emits"));
    setPlaceholderText(tr("What it emits appears here"));
    setMaximumBlockCount(linesToKeep);
    setMinimumLines(lines);
    setMaximumHeight(minimumHeight());
}

void EmissionLog::follow(QObject *sender)
{
    const auto note = [this](const QMetaMethod &signal, const QStringList &arguments) {
        const QString name = QString::fromLatin1(signal.name());
        if (name == QLatin1String("cssChanged") || name == QLatin1String("themeTypeChanged"))
            return;
        appendPlainText(QStringLiteral("%1(%2)").arg(name, arguments.join(QStringLiteral(", "))));
        Q_EMIT noted();
    };
    auto *watcher = new SignalWatcher(sender, note, this, plainClassOf(*sender).methodCount());
    connect(sender, &QObject::destroyed, watcher, &QObject::deleteLater);
}
