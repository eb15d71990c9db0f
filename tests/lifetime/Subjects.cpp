// SPDX-License-Identifier: Apache-2.0
#include "Subjects.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/app/OxaGlobalSignalListener.h>
#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/fonts/OxaScaledFonts.h>
#include <UiElements/keyboard/OxaKeyEvent.h>
#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaUnderlineButton.h>
#include <UiElements/widgets/OxaWidget.h>

namespace {

/// Describes \a Class.
template <typename Class>
Subject subject()
{
    return { Class::staticMetaObject.className(), &Class::staticMetaObject,
             [](QWidget *parent) -> QObject * { return new Class(parent); } };
}

/// The same for a class whose objects are made without a parent.
template <typename Class>
Subject subjectWithoutParent()
{
    return { Class::staticMetaObject.className(), &Class::staticMetaObject,
             [](QWidget *parent) -> QObject * {
                 auto *made = new Class;
                 made->setParent(parent);
                 return made;
             } };
}

bool isWalked(const QMetaObject &metaObject)
{
    const QByteArray name = metaObject.className();
    return !name.startsWith('Q') || name == "QAbstractButton";
}

} // namespace

const std::vector<Subject> &subjects()
{
    static const std::vector<Subject> all = {
        subject<OxaWidget>(),
        subject<OxaLabel>(),
        subject<OxaEmojiLabel>(),
        subject<OxaEmojiPushButton>(),
        subject<OxaSvgLabel>(),
        subject<OxaPushButton>(),
        subject<OxaToggleButton>(),
        subject<OxaUnderlineButton>(),
        subject<OxaSvgPushButton>(),
        subject<OxaSvgAnchorButton>(),
        subject<OxaPillTabButton>(),
        subject<OxaSvgRenderer>(),
        subjectWithoutParent<OxaSvgIcon>(),
        subject<OxaScaledFonts>(),
        subject<OxaKeyEvent>(),
        subject<OxaKeySequenceInfo>(),
        subject<OxaAppSignals>(),
        subject<OxaGlobalSignalListener>(),
    };
    return all;
}

std::vector<QMetaMethod> Subject::signalMethods() const { return librarySignals(metaObject); }

std::vector<QMetaMethod> librarySignals(const QMetaObject *metaObject)
{
    std::vector<QMetaMethod> found;
    for (int i = 0; i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        // A signal with a default argument is there twice.
        const bool isClone = method.attributes() & QMetaMethod::Cloned;
        if (method.methodType() == QMetaMethod::Signal && !isClone
            && isWalked(*method.enclosingMetaObject()))
            found.push_back(method);
    }
    return found;
}
