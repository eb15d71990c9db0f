// SPDX-License-Identifier: Apache-2.0
#include "SignalLog.h"

#include "pages/signals/SignalWatcher.h"

namespace {

constexpr int shownLines = 3;
constexpr int linesToKeep = 200;

} // namespace

SignalLog::SignalLog(QWidget *parent) : CodeEdit(parent)
{
    setReadOnly(true);
    setAccessibleName(tr("What it emits"));
    setPlaceholderText(tr("What it emits appears here"));
    setMaximumBlockCount(linesToKeep);
    setMinimumLines(shownLines);
    setMaximumHeight(minimumHeight());
}

void SignalLog::watch(QObject *sender, const std::function<void()> &noted)
{
    const auto note = [this, noted](const QMetaMethod &signal, const QStringList &arguments) {
        const QString name = QString::fromLatin1(signal.name());
        if (name == QLatin1String("cssChanged") || name == QLatin1String("themeTypeChanged"))
            return;
        appendPlainText(QStringLiteral("%1(%2)").arg(name, arguments.join(QStringLiteral(", "))));
        noted();
    };
    const QMetaObject &plain = sender->isWidgetType() ? QWidget::staticMetaObject
                                                      : QObject::staticMetaObject;
    auto *watcher = new SignalWatcher(sender, note, this, plain.methodCount());
    connect(sender, &QObject::destroyed, watcher, &QObject::deleteLater);
}
