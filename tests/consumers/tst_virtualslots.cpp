// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <UiElements/app/OxaApplication.h>
#include <UiElements/emoji/OxaEmojiLabel.h>
#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/models/BaseListModel.h>
#include <UiElements/models/LazyLoadedListModel.h>
#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/movies/OxaGifButton.h>
#include <UiElements/movies/OxaGifLabel.h>
#include <UiElements/movies/OxaMovieProvider.h>
#include <UiElements/movies/OxaMovieProviderSource.h>
#include <UiElements/qml/DialogContext.h>
#include <UiElements/qml/OxaQmlBalloon.h>
#include <UiElements/qml/OxaQmlDialogController.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlHalfPill.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/PopupContext.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/ContainerWidget.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaFrame.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaListView.h>
#include <UiElements/widgets/OxaListWidget.h>
#include <UiElements/widgets/OxaMainWindow.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaNotification.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaRadioButton.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaSplitter.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTabBar.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTimeEdit.h>
#include <UiElements/widgets/OxaTreeView.h>
#include <UiElements/widgets/OxaVMenu.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QTest>

#include <cstring>
#include <numeric>
#include <vector>

namespace {

/// Gives access to the protected functions of the table.
struct Open : OxaSvgPushButton
{
    using OxaPushButton::initButtonStyleOption;
    using OxaSvgPushButton::onCSSChanged;
};
struct OpenButton : OxaPushButton
{
    using OxaPushButton::onThemeChanged;
};
struct OpenLabel : OxaLabel
{
    using OxaLabel::onThemeChanged;
};
struct OpenComboBox : OxaComboBox
{
    using OxaComboBox::applyCustomCSS;
    using OxaComboBox::onThemeChanged;
};
/// The same for a class that adds the hook of themed classes alone.
template <typename Widget>
struct OpenThemed : Widget
{
    using Widget::onThemeChanged;
};
struct OpenLayout : FlowLayout
{
    using FlowLayout::doLayout;
};

struct OpenContext : OxaQuickViewContext
{
    using OxaQuickViewContext::instantiateOxaQuickView;
    using OxaQuickViewContext::removeOxaQuickView;
};

/// Adds a virtual function to \a Base: its slot is the number of slots that Base has.
template <typename Base>
struct Next : Base
{
    virtual void next() = 0;
};

/// Returns the slot of the virtual function \a function. A pointer to a virtual function begins
/// with the slot's offset, in which x86 sets the lowest bit.
template <typename Function>
std::ptrdiff_t slotOf(Function function)
{
    std::ptrdiff_t offset = 0;
    static_assert(sizeof function == 2 * sizeof offset);
    std::memcpy(&offset, &function, sizeof offset);
    return offset / std::ptrdiff_t(sizeof(void *));
}

template <typename Class>
std::ptrdiff_t slotCount()
{
    return slotOf(&Next<Class>::next);
}

using Slots = std::vector<std::ptrdiff_t>;

/// Adds a row for \a Class, which adds the virtual functions in \a slots to those of \a Base.
template <typename Class, typename Base>
void addRow(const Slots &slots)
{
    QTest::newRow(Class::staticMetaObject.className())
            << slotCount<Base>() << slotCount<Class>() << slots;
}

/// Adds a row for \a Widget, which adds the hook of themed classes alone.
template <typename Widget, typename Base>
void addThemedRow()
{
    addRow<Widget, Base>({ slotOf(&OpenThemed<Widget>::onThemeChanged) });
}

} // namespace

/// The virtual functions that a class adds to its base class, in the order of their slots. Programs
/// are compiled against these numbers: a row changes with the library's binary version only.
class tst_VirtualSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followThoseOfTheBaseClassInOrder_data();
    void followThoseOfTheBaseClassInOrder();
};

void tst_VirtualSlots::followThoseOfTheBaseClassInOrder_data()
{
    QTest::addColumn<std::ptrdiff_t>("first");
    QTest::addColumn<std::ptrdiff_t>("end");
    QTest::addColumn<Slots>("slots");

    addRow<IOxaApplication, QApplication>({
            slotOf(&IOxaApplication::getMovieProviderSource),
            slotOf(&IOxaApplication::onQmlEngineCreated),
    });
    addRow<OxaApplication, IOxaApplication>({
            slotOf(&OxaApplication::animationsDisabled),
            slotOf(&OxaApplication::restart),
            slotOf(&OxaApplication::registerMainWindowShortcuts),
    });
    addRow<OxaLabel, QLabel>({
            slotOf(&OxaLabel::setTextFormat),
            slotOf(&OxaLabel::setTextInteractionFlags),
            slotOf(&OxaLabel::setText),
            slotOf(&OpenLabel::onThemeChanged),
            slotOf(&OxaLabel::getTextOffset),
    });
    addRow<OxaPushButton, QPushButton>({
            slotOf(&Open::initButtonStyleOption),
            slotOf(&OpenButton::onThemeChanged),
    });
    addRow<OxaComboBox, QComboBox>({
            slotOf(&OpenComboBox::onThemeChanged),
            slotOf(&OpenComboBox::applyCustomCSS),
    });
    addThemedRow<OxaCheckBox, QCheckBox>();
    addThemedRow<OxaRadioButton, QRadioButton>();
    addThemedRow<OxaLineEdit, QLineEdit>();
    addThemedRow<OxaTextEdit, QTextEdit>();
    addThemedRow<OxaTextBrowser, QTextBrowser>();
    addRow<OxaTextInput, OxaWidget>({});
    addThemedRow<OxaMainWindow, QMainWindow>();
    addThemedRow<OxaDialog, QDialog>();
    addThemedRow<OxaFrame, QFrame>();
    addThemedRow<OxaSplitter, QSplitter>();
    addThemedRow<OxaStackedWidget, QStackedWidget>();
    addThemedRow<OxaDateTimeEdit, QDateTimeEdit>();
    addThemedRow<OxaTimeEdit, QTimeEdit>();
    addThemedRow<OxaSlider, QSlider>();
    addThemedRow<OxaProgressBar, QProgressBar>();
    addRow<OxaSeparator, OxaWidget>({});
    addRow<PopupWidget, OxaWidget>({});
    addRow<ContainerWidget, OxaWidget>({});
    addRow<OxaTabBar, ContainerWidget>({ slotOf(&OxaTabBar::getTab) });
    addRow<OxaVMenu, OxaWidget>({});
    addThemedRow<OxaMenu, QMenu>();
    addThemedRow<OxaListView, QListView>();
    addThemedRow<OxaListWidget, QListWidget>();
    addThemedRow<OxaTreeView, QTreeView>();
    addRow<AlertBanner, OxaWidget>({});
    addRow<OxaNotification, OxaWidget>({});
    addRow<OxaSvgPushButton, OxaPushButton>({ slotOf(&Open::onCSSChanged) });
    // The last three come from QLayout's second base class, QLayoutItem.
    addRow<FlowLayout, QLayout>({
            slotOf(&OpenLayout::doLayout),
            slotOf(&FlowLayout::sizeHint),
            slotOf(&FlowLayout::hasHeightForWidth),
            slotOf(&FlowLayout::heightForWidth),
    });
    addRow<OxaEmojiLabel, OxaLabel>({});
    addRow<IOxaMovieProviderSource, QObject>({ slotOf(&IOxaMovieProviderSource::fetchMovie) });
    addRow<OxaMovieProviderSource, IOxaMovieProviderSource>({});
    addRow<OxaMovie, QMovie>({});
    addRow<OxaMovieProvider, QObject>({});
    addRow<OxaGifLabel, OxaLabel>({});
    addRow<OxaGifButton, OxaPushButton>({});
    addRow<OxaQmlEngine, QQmlEngine>({});
    addRow<OxaQuickViewContext, OxaObject>({
            slotOf(&OpenContext::removeOxaQuickView),
            slotOf(&OpenContext::instantiateOxaQuickView),
    });
    addRow<DialogContext, OxaQuickViewContext>({});
    addRow<PopupContext, OxaQuickViewContext>({});
    addRow<BaseListModel, QAbstractListModel>({});
    addRow<LazyLoadedListModel, QAbstractListModel>({});
    addRow<OverflowListProxyModel, QSortFilterProxyModel>({});
    addRow<OxaQmlController, OxaObject>({ slotOf(&OxaQmlController::init) });
    addRow<OxaQmlDialogController, OxaQmlController>({});
    addRow<OxaQmlPopupController, OxaQmlController>({});
    addRow<OxaQmlBalloon, QQuickPaintedItem>({});
    addRow<OxaQmlHalfPill, QQuickPaintedItem>({});
}

void tst_VirtualSlots::followThoseOfTheBaseClassInOrder()
{
    QFETCH(const std::ptrdiff_t, first);
    QFETCH(const std::ptrdiff_t, end);
    QFETCH(const Slots, slots);
    Slots expected(slots.size());
    std::iota(expected.begin(), expected.end(), first);
    QCOMPARE(slots, expected);
    QCOMPARE(end, first + std::ptrdiff_t(slots.size()));
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_VirtualSlots)
#include "tst_virtualslots.moc"
