// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/emoji/OxaEmojiLabel.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaFrame.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaListView.h>
#include <UiElements/widgets/OxaListWidget.h>
#include <UiElements/widgets/OxaMainWindow.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaRadioButton.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaSplitter.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaTimeEdit.h>
#include <UiElements/widgets/OxaTreeView.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QTextDocument>

#include <malloc.h>

#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int widgetCount = 100;

const QString styleText = QStringLiteral("$backgroundColors: set-1; $textColors: set-2; "
                                         "$borderRadius: 4;");
const QString shortText = QStringLiteral("See you at four");

/// A progress bar that is made without arguments.
class ProgressBar : public OxaProgressBar
{
public:
    ProgressBar() : OxaProgressBar(nullptr, 20) { }
};

/// What is done with a widget before it is measured.
const auto asNew = [](auto &) {};
const auto withText = [](auto &widget) { widget.setText(shortText); };

/// Returns how many bytes of heap a widget of \a make takes.
template <typename Make>
double heapOf(Make make)
{
    std::vector<std::unique_ptr<QObject>> objects;
    objects.reserve(2 * widgetCount);
    const double before = double(mallinfo2().uordblks);
    for (int i = 0; i < widgetCount; ++i)
        make(objects);
    return (double(mallinfo2().uordblks) - before) / widgetCount;
}

/// Adds to a peer with a sheet what our class always has.
const auto nothing = [](const QString &) { return std::unique_ptr<QObject>(); };
const auto emptyDocument = [](const QString &) { return std::make_unique<QTextDocument>(); };
const auto filledDocument = [](const QString &sheet) {
    auto document = std::make_unique<QTextDocument>();
    document->setDefaultStyleSheet(sheet);
    document->setHtml(shortText);
    return document;
};
const auto icon = [](const QString &) {
    return std::make_unique<OxaSvgIcon>(QStringLiteral(":/Resources/check_12_w.svg"));
};
const auto twoIcons = [](const QString &) {
    auto icons = std::make_unique<OxaSvgIcon>(QStringLiteral(":/Resources/arrow-down_8.svg"));
    auto *second = new OxaSvgIcon(QStringLiteral(":/Resources/arrow-up_8.svg"));
    second->setParent(icons.get());
    return icons;
};

/// The heap use of a widget with a style text, compared with the Qt class with the finished sheet.
template <typename Widget, typename QtClass, typename Use, typename Besides>
void heap(benchmark::State &state, Use use, Besides besides)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    QString sheet;
    const auto makeOurs = [&](auto &objects) {
        auto widget = std::make_unique<Widget>();
        widget->setObjectName(QStringLiteral("w"));
        widget->setCSS(styleText);
        widget->ensurePolished();
        use(*widget);
        sheet = widget->styleSheet();
        objects.push_back(std::move(widget));
    };
    const auto makePeer = [&](auto &objects) {
        auto widget = std::make_unique<QtClass>();
        widget->setObjectName(QStringLiteral("w"));
        widget->setStyleSheet(sheet);
        widget->ensurePolished();
        use(*widget);
        objects.push_back(std::move(widget));
        objects.push_back(besides(sheet));
    };
    // Shared data is made before counting.
    heapOf(makeOurs);
    heapOf(makePeer);

    Comparison comparison(state);
    for (auto _ : state) {
        const double ours = heapOf(makeOurs);
        comparison.add(ours, heapOf(makePeer));
    }
    comparison.ratioAtMost(1.15);
}

/// Adds a row for \a Widget, which is called \a name with what it is compared with.
template <typename Widget, typename QtClass, typename Use = decltype(asNew),
          typename Besides = decltype(nothing)>
void add(const std::string &name, Use use = asNew, Besides besides = nothing)
{
    benchmark::RegisterBenchmark(("heap of " + name).c_str(),
                                 [use, besides](benchmark::State &state) {
                                     heap<Widget, QtClass>(state, use, besides);
                                 })
            ->Iterations(5)
            ->UseManualTime();
}

const bool areAdded = [] {
    add<OxaWidget, QWidget>("OxaWidget/QWidget");
    add<OxaLabel, QLabel>("OxaLabel/QLabel");
    add<OxaLabel, QLabel>("OxaLabel with a text/QLabel", withText);
    add<OxaSvgLabel, QLabel>("OxaSvgLabel/QLabel");
    add<OxaSvgLabel, QLabel>("OxaSvgLabel with a text/QLabel", withText);
    add<OxaPushButton, QPushButton>("OxaPushButton/QPushButton");
    add<OxaPushButton, QPushButton>("OxaPushButton with a text/QPushButton", withText);
    add<OxaSvgPushButton, QPushButton>("OxaSvgPushButton/QPushButton");
    add<OxaSvgPushButton, QPushButton>("OxaSvgPushButton with a text/QPushButton", withText);
    add<OxaEmojiLabel, QLabel>("OxaEmojiLabel/QLabel and an empty QTextDocument", asNew,
                               emptyDocument);
    add<OxaEmojiLabel, QLabel>("OxaEmojiLabel with a text/QLabel and a QTextDocument", withText,
                               filledDocument);
    add<OxaCheckBox, QCheckBox>("OxaCheckBox/QCheckBox and an icon", asNew, icon);
    add<OxaRadioButton, QRadioButton>("OxaRadioButton/QRadioButton");
    add<OxaComboBox, QComboBox>("OxaComboBox/QComboBox and two icons", asNew, twoIcons);
    add<OxaLineEdit, QLineEdit>("OxaLineEdit/QLineEdit");
    add<OxaTextEdit, QTextEdit>("OxaTextEdit/QTextEdit");
    add<OxaTextBrowser, QTextBrowser>("OxaTextBrowser/QTextBrowser");
    add<OxaMainWindow, QMainWindow>("OxaMainWindow/QMainWindow");
    add<OxaDialog, QDialog>("OxaDialog/QDialog");
    add<OxaFrame, QFrame>("OxaFrame/QFrame");
    add<OxaSplitter, QSplitter>("OxaSplitter/QSplitter");
    add<OxaStackedWidget, QStackedWidget>("OxaStackedWidget/QStackedWidget");
    add<OxaSeparator, QWidget>("OxaSeparator/QWidget");
    add<OxaDateTimeEdit, QDateTimeEdit>("OxaDateTimeEdit/QDateTimeEdit");
    add<OxaTimeEdit, QTimeEdit>("OxaTimeEdit/QTimeEdit");
    add<OxaSlider, QSlider>("OxaSlider/QSlider");
    add<ProgressBar, QProgressBar>("OxaProgressBar/QProgressBar");
    add<OxaListView, QListView>("OxaListView/QListView");
    add<OxaListWidget, QListWidget>("OxaListWidget/QListWidget");
    add<OxaTreeView, QTreeView>("OxaTreeView/QTreeView");
    return true;
}();

} // namespace
