// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controls.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QApplication>
#include <QPointer>

#include <shell/GalleryWindow.h>
#include <shell/PageStack.h>
#include <shell/TabOrder.h>
#include <support/RealInput.h>
#include <widgets/Dialog.h>
#include <widgets/ListView.h>

/// The gallery's window, shown and active, with the focus on the first stop of Tab.
class ShownGallery
{
public:
    explicit ShownGallery(const char *page)
    {
        window.showPage(QString::fromLatin1(page));
        window.show();
        // Not where a dialog opens: when a modal one closes, Qt looks for the window under the
        // pointer, and warns if the frame that it finds is gone by then.
        isActive = QTest::qWaitForWindowActive(&window) && RealInput::moveTo(window, QPoint(2, 2));
        TabOrder::of(&window).front()->setFocus(Qt::TabFocusReason);
    }

    /// Types the key \a name and returns what has the focus then.
    QWidget *type(const char *name) const
    {
        const QWidget *before = window.focusWidget();
        if (!RealInput::typeKeys({ QString::fromLatin1(name) }))
            return nullptr;
        // The caller compares, and so notices a focus that did not move.
        if (!QTest::qWaitFor([this, before] { return window.focusWidget() != before; }, 2000))
            qInfo("%s left the focus where it was", name);
        return window.focusWidget();
    }

    QString focusedText() const
    {
        const auto *button = qobject_cast<const QAbstractButton *>(window.focusWidget());
        return button ? button->text() : QString();
    }

    SegmentedControl &control(const char *name) const
    {
        return *Controls::called<SegmentedControl>(window, name);
    }

    QWidget *page() const { return window.findChild<PageStack *>()->currentWidget(); }

    /// Waits until a dialog has the focus, and returns it.
    QPointer<Dialog> dialog() const
    {
        const auto hasFocus = [this] {
            const auto *dialog = window.findChild<Dialog *>();
            return dialog && dialog->isActiveWindow()
                    && dialog->isAncestorOf(QApplication::focusWidget());
        };
        return QTest::qWaitFor(hasFocus) ? window.findChild<Dialog *>() : nullptr;
    }

    ListView &navigation() const { return *Controls::called<ListView>(window, "Pages"); }

    /// Types \a key and returns whether a page called \a expected is shown then.
    bool titleAfter(const char *key, const char *expected) const
    {
        return RealInput::typeKeys({ QString::fromLatin1(key) })
                && QTest::qWaitFor([&] { return title() == QLatin1String(expected); }, 2000);
    }

    /// Returns the title of the current page.
    QString title() const { return page()->findChild<OxaLabel *>()->text(); }

    GalleryWindow window;
    bool isActive = false;
};
