// SPDX-License-Identifier: Apache-2.0
#include "Subjects.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/app/OxaGlobalSignalListener.h>
#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/fonts/OxaScaledFonts.h>
#include <UiElements/keyboard/OxaKeyEvent.h>
#include <UiElements/models/EmptyStateBaseListModel.h>
#include <UiElements/models/LazyLoadedListModel.h>
#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/models/SmallListModel.h>
#include <UiElements/movies/OxaGifButton.h>
#include <UiElements/movies/OxaGifLabel.h>
#include <UiElements/movies/OxaMovieProvider.h>
#include <UiElements/movies/OxaMovieProviderSource.h>
#include <UiElements/qml/OxaQmlBalloon.h>
#include <UiElements/qml/OxaQmlDialogController.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlHalfPill.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/OxaQuickWidget.h>
#include <UiElements/qml/PopupContextTimer.h>
#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgRenderer.h>
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
#include <UiElements/widgets/OxaTextInputFactory.h>
#include <UiElements/widgets/OxaTimeEdit.h>
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaTreeView.h>
#include <UiElements/widgets/OxaUnderlineButton.h>
#include <UiElements/widgets/OxaVMenu.h>
#include <UiElements/widgets/OxaWidget.h>
#include <UiElements/widgets/PopupWidget.h>

namespace {

/// A list whose base class has no role names of its own.
template <typename Model>
class NamedModel : public Model
{
public:
    explicit NamedModel(QObject *parent) : Model(parent) { }

    QHash<int, QByteArray> roleNames() const override { return { { Qt::UserRole + 1, "value" } }; }
};

/// Describes \a Class by an object of \a Made, which is \a Class or derives from it.
template <typename Class, typename Made = Class>
Subject subject()
{
    return { Class::staticMetaObject.className(), &Class::staticMetaObject,
             [](QWidget *parent) -> QObject * { return new Made(parent); } };
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

Subject smallListModel()
{
    return { SmallListModel::staticMetaObject.className(), &SmallListModel::staticMetaObject,
             [](QWidget *parent) -> QObject * {
                 return new SmallListModel({}, parent, QVariant());
             } };
}

Subject textInput()
{
    return { OxaTextInput::staticMetaObject.className(), &OxaTextInput::staticMetaObject,
             [](QWidget *parent) -> QObject * { return OxaTextInputFactory({}).make(parent); } };
}

Subject progressBar()
{
    return { OxaProgressBar::staticMetaObject.className(), &OxaProgressBar::staticMetaObject,
             [](QWidget *parent) -> QObject * { return new OxaProgressBar(parent, 10); } };
}

Subject popup()
{
    return { PopupWidget::staticMetaObject.className(), &PopupWidget::staticMetaObject,
             [](QWidget *parent) -> QObject * {
                 return new PopupWidget(parent, WidgetData(OxaThemeUtils::AppThemeType::Global));
             } };
}

Subject gifButton()
{
    return { OxaGifButton::staticMetaObject.className(), &OxaGifButton::staticMetaObject,
             [](QWidget *parent) -> QObject * {
                 return new OxaGifButton(parent, QString(), QSize(8, 8), QString(), QSize(8, 8));
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
        subject<OxaCheckBox>(),
        subject<OxaRadioButton>(),
        subject<OxaComboBox>(),
        subject<OxaLineEdit>(),
        textInput(),
        subject<OxaTextEdit>(),
        subject<OxaTextBrowser>(),
        subject<OxaMainWindow>(),
        subject<OxaDialog>(),
        subject<OxaFrame>(),
        subject<OxaSplitter>(),
        subject<OxaStackedWidget>(),
        subject<OxaSeparator>(),
        subject<OxaDateTimeEdit>(),
        subject<OxaTimeEdit>(),
        subject<OxaSlider>(),
        progressBar(),
        subject<ContainerWidget>(),
        subject<OxaTabBar>(),
        subject<OxaVMenu>(),
        subject<OxaMenu>(),
        subject<OxaListView>(),
        subject<OxaListWidget>(),
        subject<OxaTreeView>(),
        subject<AlertBanner>(),
        subject<OxaNotification>(),
        popup(),
        subject<OxaGifLabel>(),
        gifButton(),
        subject<OxaMovie>(),
        subjectWithoutParent<OxaMovieProvider>(),
        subject<OxaMovieProviderSource>(),
        subject<OxaQuickWidget>(),
        subject<OxaSvgRenderer>(),
        subjectWithoutParent<OxaSvgIcon>(),
        subject<OxaScaledFonts>(),
        subject<OxaKeyEvent>(),
        subject<OxaKeySequenceInfo>(),
        subject<OxaAppSignals>(),
        subject<OxaGlobalSignalListener>(),
        subject<BaseListModel, NamedModel<BaseListModel>>(),
        subject<EmptyStateBaseListModel, NamedModel<EmptyStateBaseListModel>>(),
        subject<LazyLoadedListModel>(),
        subject<OverflowListProxyModel>(),
        smallListModel(),
        subjectWithoutParent<OxaQmlBalloon>(),
        subjectWithoutParent<OxaQmlHalfPill>(),
        subject<OxaQmlDialogController>(),
        subject<OxaQmlPopupController>(),
        subject<OxaQmlEngine>(),
        subjectWithoutParent<PopupContextTimer>(),
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
