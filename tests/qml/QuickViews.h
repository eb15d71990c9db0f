// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/Windows.h"

#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQuickView.h>

#include <QFocusEvent>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QTest>
#include <QUrl>
#include <QVector>
#include <QWidget>

#include <utility>

/// Views for tests, and what they show.
namespace QuickViews {

/// An object that may delete itself. Otherwise it is deleted with this.
template <typename Object>
class Owned
{
    Q_DISABLE_COPY_MOVE(Owned)

public:
    template <typename... Arguments>
    explicit Owned(Arguments &&...arguments)
        : m_object(new Object(std::forward<Arguments>(arguments)...))
    {
    }
    ~Owned() { delete m_object; }

    Object *get() const { return m_object; }
    Object *operator->() const { return m_object; }
    Object &operator*() const { return *m_object; }
    explicit operator bool() const { return m_object; }

private:
    const QPointer<Object> m_object;
};

/// Records why the objects that it filters get the focus.
class FocusReasons : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            reasons += static_cast<QFocusEvent *>(event)->reason();
        return false;
    }

    QVector<Qt::FocusReason> reasons;
};

/// Makes \a view, which is a window or a widget, show the QML \a text, and returns its root item.
template <typename View>
QQuickItem *load(View &view, const QByteArray &text)
{
    auto *component = new QQmlComponent(view.engine(), &view);
    const QUrl url(QStringLiteral("qrc:/View.qml"));
    component->setData(text, url);
    if (component->isError())
        qFatal("%s", qPrintable(component->errorString()));
    view.setContent(url, component, component->create());
    return view.rootObject();
}

/// Makes \a view show an empty item of \a size.
inline QQuickItem *loadItem(OxaQuickView &view, const QSize &size = QSize(100, 50))
{
    const QString text = QStringLiteral("import QtQuick 2.15\nItem { width: %1; height: %2 }");
    return load(view, text.arg(size.width()).arg(size.height()).toUtf8());
}

using Windows::showActive;

} // namespace QuickViews
