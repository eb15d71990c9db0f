// SPDX-License-Identifier: Apache-2.0
#include "WidgetTriggers.h"

// Longer than sources are: one table, with a row for each way in which a signal is emitted.

#include <UiElements/app/OxaApplication.h>
#include <UiElements/app/OxaGlobalSignalListener.h>
#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/fonts/OxaScaledFonts.h>
#include <UiElements/keyboard/OxaKeyEvent.h>
#include <UiElements/movies/IOxaMovieProviderSource.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQuickWidget.h>
#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgRenderer.h>

namespace {

template <typename Label>
void addClickRows(SignalTriggers &rows)
{
    const auto enable = [](Label &label) {
        label.setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    };
    rows.push_back(row<Label>(
            "clicked()", "a click", [](Label &label) { release(label); }, enable));
    rows.push_back(row<Label>(
            "clicked()", "a key",
            [](Label &label) { sendKey(label, QEvent::KeyPress, Qt::Key_Return); }, enable));
}

void addLabelRows(SignalTriggers &rows)
{
    // Sent by hand, since QWidget::setVisible() uses the widget after these events.
    rows.push_back(row<OxaLabel>("onVisibilityChanged(bool)", "the event of show()",
                                 [](OxaLabel &label) { send(label, QShowEvent()); }));
    rows.push_back(row<OxaLabel>("onVisibilityChanged(bool)", "the event of hide()",
                                 [](OxaLabel &label) { send(label, QHideEvent()); }));
}

void addButtonRows(SignalTriggers &rows)
{
    // The handler is called directly, since QWidget::event() uses the widget after it.
    struct Handlers : OxaPushButton
    {
        using OxaPushButton::focusInEvent;
        using OxaPushButton::onButtonDownTimeout;
    };
    const SignalTriggers own = {
        row<OxaPushButton>("onFocusIn()", "the focus event's handler",
                           [](OxaPushButton &button) {
                               QFocusEvent event(QEvent::FocusIn);
                               (button.*(&Handlers::focusInEvent))(&event);
                           }),
        row<OxaPushButton>("onFocusOut()", "the focus event",
                           [](OxaPushButton &button) {
                               send(button, QFocusEvent(QEvent::FocusOut));
                           }),
        row<OxaPushButton>(
                "longPressed()", "the end of its time",
                [](OxaPushButton &button) { (button.*(&Handlers::onButtonDownTimeout))(); },
                [](OxaPushButton &button) { button.setDown(true); }),
        row<OxaPushButton>("mouseEntered()", "the event",
                           [](OxaPushButton &button) {
                               send(button, QEnterEvent(QPointF(), QPointF(), QPointF()));
                           }),
        row<OxaPushButton>("mouseExited()", "the event",
                           [](OxaPushButton &button) { send(button, QEvent(QEvent::Leave)); }),
        row<OxaPushButton>(
                "rightClick()", "a press of the right button",
                [](OxaPushButton &button) {
                    sendMouse(button, QEvent::MouseButtonPress, Qt::RightButton);
                },
                [](OxaPushButton &button) { button.setLongPressEnabled(true); }),
    };
    rows.insert(rows.end(), own.begin(), own.end());
}

/// Adds rows for a class that looks the icon's set up again for a new theme type.
template <typename Widget>
void addThemedIconRows(SignalTriggers &rows)
{
    addIconRows<Widget>(rows);
    rows.push_back(row<Widget>(
            "svgIconColorSetChanged(OxaColorSet)", "setThemeType()",
            [](Widget &widget) { widget.setThemeType(QStringLiteral("dark")); },
            &nameIconSets<Widget>));
}

void enableLongPress(OxaPushButton &button) { button.setLongPressEnabled(true); }

void addAnchorRows(SignalTriggers &rows)
{
    rows.push_back(row<OxaSvgPushButton>("svgIconCheckedChanged(QString)", "setSvgIconChecked()",
                                         [](OxaSvgPushButton &button) {
                                             const SvgFiles files;
                                             button.setSvgIconChecked(files.square());
                                         }));
    rows.push_back(row<OxaSvgAnchorButton>(
            "svgIconColorSetChanged(OxaColorSet)", "setThemeType() with a set of the anchor's",
            [](OxaSvgAnchorButton &button) { button.setThemeType(QStringLiteral("dark")); },
            [](OxaSvgAnchorButton &button) {
                button.setSvgIconColorSet(QStringLiteral("icon"));
                button.setAnchorSvgColorSet(QStringLiteral("icon"));
            }));
    rows.push_back(row<OxaSvgAnchorButton>("anchorSvgOnChanged(QString)", "setAnchorSvgOn()",
                                           [](OxaSvgAnchorButton &button) {
                                               button.setAnchorSvgOn(QString());
                                           }));
    rows.push_back(row<OxaSvgAnchorButton>("anchorSvgOffChanged(QString)", "setAnchorSvgOff()",
                                           [](OxaSvgAnchorButton &button) {
                                               button.setAnchorSvgOff(QString());
                                           }));
}

void addPillRows(SignalTriggers &rows)
{
    for (const char *signal : { "svgIconColorSetChanged(OxaColorSet)", "cssChanged()" }) {
        rows.push_back(
                row<OxaPillTabButton>(signal, "setTextColorSet()", [](OxaPillTabButton &pill) {
                    pill.setTextColorSet(QStringLiteral("icon"));
                }));
    }
    rows.push_back(row<OxaPillTabButton>("cssChanged()", "a new size", [](OxaPillTabButton &pill) {
        send(pill, QResizeEvent(QSize(70, 20), QSize(60, 20)));
    }));
}

/// The folder of files that icons show while they are tested.
const SvgFiles &svgFiles()
{
    static const SvgFiles files;
    return files;
}

void addPictureRows(SignalTriggers &rows)
{
    rows.push_back(row<OxaSvgRenderer>(
            "repaintNeeded()", "a frame",
            [](OxaSvgRenderer &renderer) { waitForDeletion(renderer); },
            [](OxaSvgRenderer &renderer) { renderer.load(svgFiles().animated()); }));
    rows.push_back(row<OxaSvgIcon>(
            "repaintNeeded()", "a frame of the outer picture",
            [](OxaSvgIcon &icon) { waitForDeletion(icon); },
            [](OxaSvgIcon &icon) { icon.setFilePath(svgFiles().animated()); }));
    rows.push_back(row<OxaSvgIcon>(
            "repaintNeeded()", "a frame of the inner picture",
            [](OxaSvgIcon &icon) { waitForDeletion(icon); },
            [](OxaSvgIcon &icon) { icon.setInnerFilePath(svgFiles().animated()); }));
}

void addValueRows(SignalTriggers &rows)
{
    using Factor = FontManagerEnum::FontScalingFactor;
    const SignalTriggers own = {
        row<OxaScaledFonts>("fontTokenChanged()", "a larger factor",
                            [](OxaScaledFonts &fonts) { fonts.setScalingFactor(Factor::Large); }),
        row<OxaScaledFonts>("fontTokenChanged()", "the regular factor",
                            [](OxaScaledFonts &fonts) { fonts.setScalingFactor(Factor::Regular); }),
        row<OxaKeyEvent>("modifiersChanged()", "a key",
                         [](OxaKeyEvent &event) {
                             QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
                             event.setKeyEvent(&key);
                         }),
        row<OxaKeySequenceInfo>("keySequenceChanged()", "its setter",
                                [](OxaKeySequenceInfo &info) { info.setKeySequence("Ctrl+A"); }),
        row<OxaKeySequenceInfo>("isGlobalChanged()", "its setter",
                                [](OxaKeySequenceInfo &info) { info.setIsGlobal(true); }),
        row<OxaKeySequenceInfo>("enabledChanged()", "its setter",
                                [](OxaKeySequenceInfo &info) { info.setEnabled(false); }),
    };
    rows.insert(rows.end(), own.begin(), own.end());
}

void addApplicationRows(SignalTriggers &rows)
{
    const SignalTriggers own = {
        row<OxaApplication>("colorSetsChanged()", "setColorSets()",
                            [](OxaApplication &app) { app.setColorSets({}); }),
        row<OxaApplication>("colorSetsChanged()", "setInvertedColorSets()",
                            [](OxaApplication &app) { app.setInvertedColorSets({}); }),
        row<OxaApplication>("themeChanged(QString)", "its property",
                            [](OxaApplication &app) {
                                app.setProperty("theme", QStringLiteral("dark"));
                            }),
        row<OxaApplication>("isDarkThemeChanged(bool)", "its property",
                            [](OxaApplication &app) { app.setProperty("isDarkTheme", true); }),
        row<OxaApplication>("isHighContrastThemeChanged(bool)", "its property",
                            [](OxaApplication &app) {
                                app.setProperty("isHighContrastTheme", true);
                            }),
        row<OxaApplication>("fontScaleFactorChanged(float)", "its setter",
                            [](OxaApplication &app) { app.setFontScaleFactor(1.25F); }),
        row<OxaApplication>("logoSvgPathChanged(QString)", "its setter",
                            [](OxaApplication &app) { app.setLogoSvgPath(QString()); }),
        row<OxaApplication>("logoPngPathChanged(QString)", "its setter",
                            [](OxaApplication &app) { app.setLogoPngPath(QString()); }),
    };
    rows.insert(rows.end(), own.begin(), own.end());
}

SignalTriggers allRows()
{
    SignalTriggers rows;
    addThemeRows<OxaWidget>(rows);
    addThemeRows<OxaLabel>(rows);
    addThemeRows<OxaPushButton>(rows);
    addClickRows<OxaLabel>(rows);
    addClickRows<OxaEmojiLabel>(rows);
    addLabelRows(rows);
    addButtonRows(rows);
    addAbstractButtonRows<OxaPushButton, &enableLongPress>(rows);
    addThemedIconRows<OxaSvgLabel>(rows);
    addThemedIconRows<OxaSvgPushButton>(rows);
    addAnchorRows(rows);
    addPillRows(rows);
    addPictureRows(rows);
    addValueRows(rows);
    addApplicationRows(rows);
    addContainerTriggers(rows);
    addFormTriggers(rows);
    addMenuTriggers(rows);
    addModelTriggers(rows);
    addControllerTriggers(rows);
    addNoticeTriggers(rows);
    return rows;
}

const SignalTriggers &table()
{
    static const SignalTriggers rows = allRows();
    return rows;
}

} // namespace

std::vector<const SignalTrigger *> triggersOf(const QMetaObject *metaObject,
                                              const QMetaMethod &signal)
{
    std::vector<const SignalTrigger *> found;
    for (const SignalTrigger &trigger : table()) {
        // A class may declare a signal once more, under the same name.
        if (trigger.signal == signal.methodSignature() && metaObject->inherits(trigger.metaObject)
            && trigger.metaObject->inherits(signal.enclosingMetaObject()))
            found.push_back(&trigger);
    }
    return found;
}

bool isLeftOut(const QMetaObject *metaObject, const QMetaMethod &signal)
{
    // QAbstractButton::setChecked() uses the button after this one, for accessibility.
    if (signal == QMetaMethod::fromSignal(&QAbstractButton::toggled))
        return true;
    // The button's handlers replace the label's.
    if (metaObject->inherits(&OxaEmojiPushButton::staticMetaObject)
        && signal == QMetaMethod::fromSignal(&OxaLabel::clicked))
        return true;
    // Qt goes on rendering after these.
    if (signal == QMetaMethod::fromSignal(&OxaQuickWidget::finishedRendering)
        || signal == QMetaMethod::fromSignal(&OxaQmlEngine::finishedRendering))
        return true;
    return isNeverEmitted(signal);
}

void emitAsHubUser(QObject *sender, const QMetaMethod &signal)
{
    const QMetaObject *metaObject = signal.enclosingMetaObject();
    void *arguments[16] = {};
    QMetaObject::activate(sender, metaObject, signal.methodIndex() - metaObject->methodOffset(),
                          arguments);
}

bool isHub(const QMetaObject *metaObject)
{
    return metaObject->inherits(&OxaAppSignals::staticMetaObject)
            || metaObject->inherits(&OxaGlobalSignalListener::staticMetaObject)
            || metaObject->inherits(&IOxaMovieProviderSource::staticMetaObject);
}
