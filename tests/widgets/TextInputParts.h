// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ColorSets.h"
#include "support/SignalLog.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>

#include <QPushButton>
#include <QTest>

/// Text inputs for tests: their looks, their parts, and a window with one.
namespace TextInputParts {

/// Returns a look on the colour set \a ground.
inline OxaCSSData look(const QString &ground)
{
    OxaCSSData css;
    css.backgroundColorSetName = ground;
    return css;
}

const OxaCSSData normal = look(QStringLiteral("field-normal"));
const OxaCSSData focused = look(QStringLiteral("field-focused"));
const OxaCSSData error = look(QStringLiteral("field-error"));
const QColor normalColor(0, 200, 0);
const QColor focusedColor(0, 0, 200);
const QColor errorColor(200, 0, 0);

/// Returns the sets of the looks, and the one that the counter's label asks for.
inline OxaColorSetMap store()
{
    return ColorSets::storeOf({ OxaColorSet(normal.backgroundColorSetName, normalColor),
                                OxaColorSet(focused.backgroundColorSetName, focusedColor),
                                OxaColorSet(error.backgroundColorSetName, errorColor),
                                OxaColorSet(QStringLiteral("button-hyperlink-text"), Qt::blue) });
}

/// Returns a new field in these looks.
inline OxaTextInput *makeField(QWidget *parent)
{
    return OxaTextInputFactory({ normal, focused, error }).make(parent);
}

/// Returns "normal", "focused" or "error"; otherwise the style text.
inline QString lookOf(const OxaTextInput &field)
{
    const QString shown = field.getOxaCSS().backgroundColorSetName;
    return shown.startsWith(QLatin1String("field-")) ? shown.mid(6) : field.getCSS();
}

template <typename Part>
Part &partOf(const OxaTextInput &field, const char *name)
{
    auto *part = field.findChild<Part *>(QLatin1String(name));
    if (!part)
        qFatal("The field has no %s.", name);
    return *part;
}

inline OxaLineEdit &textOf(const OxaTextInput &field)
{
    return partOf<OxaLineEdit>(field, "textInput");
}

inline OxaLabel &counterOf(const OxaTextInput &field)
{
    return partOf<OxaLabel>(field, "textInputCounterLabel");
}

inline OxaSvgPushButton &clearButtonOf(const OxaTextInput &field)
{
    return partOf<OxaSvgPushButton>(field, "clearInputButton");
}

inline OxaSvgPushButton &passwordButtonOf(const OxaTextInput &field)
{
    return partOf<OxaSvgPushButton>(field, "passwordActionButton");
}

inline OxaSvgPushButton &searchIconOf(const OxaTextInput &field)
{
    return partOf<OxaSvgPushButton>(field, "searchIcon");
}

/// Returns which of counter, clear and password button show: "counter clear".
inline QString partsShownBy(const OxaTextInput &field)
{
    QStringList shown;
    if (!counterOf(field).isHidden())
        shown += QStringLiteral("counter");
    if (!clearButtonOf(field).isHidden())
        shown += QStringLiteral("clear");
    if (!passwordButtonOf(field).isHidden())
        shown += QStringLiteral("password");
    return shown.join(QLatin1Char(' '));
}

/// Records the signals of \a field in \a log, the looks by their names.
inline void record(SignalLog &log, const OxaTextInput *field)
{
    QObject::connect(field, &OxaTextInput::cssChanged, field,
                     [&log, field] { log.note(lookOf(*field)); });
    QObject::connect(field, &OxaTextInput::textChanged, field, [&log](const QString &text) {
        log.note(QStringLiteral("textChanged \"%1\"").arg(text));
    });
    QObject::connect(field, &OxaTextInput::showErrorLabel, field, [&log](bool isShown) {
        log.note(isShown ? QStringLiteral("show error") : QStringLiteral("hide error"));
    });
    QObject::connect(field, &OxaTextInput::keyPressed, field,
                     [&log](int key) { log.note(QStringLiteral("key %1").arg(key, 0, 16)); });
    log.record(field, &OxaTextInput::textEdited, QStringLiteral("textEdited"));
    log.record(field, &OxaTextInput::returnPressed, QStringLiteral("returnPressed"));
}

/// A window with a field between two buttons, and a log of its signals.
class Window : public QWidget
{
public:
    Window()
    {
        resize(300, 140);
        int y = 10;
        for (QWidget *part : std::initializer_list<QWidget *> { &before, &field, &after }) {
            part->setGeometry(10, y, 280, 30);
            y += 40;
        }
        record(log, &field);
    }
    ~Window() override { delete &field; } // Before the log.
    Q_DISABLE_COPY_MOVE(Window)

    /// Shows the window with the focus on the button before the field. Returns whether that worked.
    bool open()
    {
        show();
        activateWindow();
        before.setFocus();
        const bool works = QTest::qWaitForWindowActive(this)
                && QTest::qWaitFor([this] { return before.hasFocus(); });
        log.take();
        return works;
    }

    /// Makes "bad" and the empty text invalid, and records what the validator is asked about.
    void validate(bool whileTyping)
    {
        field.setInputValidator(
                [this](const QString &text) {
                    log.note(QStringLiteral("asked \"%1\"").arg(text));
                    return !text.isEmpty() && text != QLatin1String("bad");
                },
                whileTyping);
    }

    SignalLog log;
    QPushButton before { QStringLiteral("before"), this };
    OxaTextInput &field { *makeField(this) };
    QPushButton after { QStringLiteral("after"), this };
};

} // namespace TextInputParts
