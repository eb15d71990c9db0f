// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "support/ContextTranslator.h"
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "theme/ThemedWidgets.h"

#include <QScrollArea>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

using Make = QWidget *(*)(QWidget *parent);

const QString artist = QStringLiteral("\U0001F469\u200D\U0001F3A8");

template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

/// Makes a label with \a text that stores \a role.
template <typename Label = OxaLabel>
Label *makeLabel(QWidget *parent, const QString &text, QAccessible::Role role = QAccessible::NoRole,
                 Qt::TextFormat format = Qt::PlainText)
{
    auto *label = new Label(text, parent, role);
    label->setTextFormat(format);
    return label;
}

template <typename Button>
Button *makeButton(QWidget *parent, const char *text, bool isCheckable = false)
{
    auto *button = new Button(parent);
    button->setText(QString::fromUtf8(text));
    if (isCheckable) {
        button->setCheckable(true);
        button->setChecked(true);
    }
    return button;
}

/// Makes the line edit of a field with a limit of 20 characters.
OxaLineEdit *makeEdit(QWidget *parent)
{
    OxaTextInput *field = OxaTextInputFactory({}).make(parent);
    field->setMaxLength(20);
    field->setPlaceholderText(QStringLiteral("placeholder"));
    return field->getLineEdit();
}

template <typename View>
QWidget *makeView(QWidget *parent)
{
    auto *view = new View(parent);
    auto *model = new QStandardItemModel(view);
    for (const char *text : { "a", "b" })
        model->appendRow(new QStandardItem(QString::fromLatin1(text)));
    view->setModel(model);
    view->setToolTip(QStringLiteral("tip"));
    return view;
}

/// What is told of a widget.
struct Row
{
    const char *name;
    Make make;
    const char *told; ///< Role and name.
    const char *description;
    const char *states;
    const char *actions;
};

const Row rows[] = {
    // What is read.
    { "a label",
      [](QWidget *parent) -> QWidget * { return makeLabel(parent, QStringLiteral("a & b")); },
      "StaticText a & b", "", "read-only", "" },
    { "a heading",
      [](QWidget *parent) -> QWidget * {
          return makeLabel(parent, QStringLiteral("text"), QAccessible::Heading);
      },
      "Heading text", "", "read-only", "" },
    { "a label that is a button",
      [](QWidget *parent) -> QWidget * {
          return makeLabel(parent, QStringLiteral("text"), QAccessible::PushButton);
      },
      "Button text", "", "read-only", "Press" },
    { "a label that is a button and cannot be clicked",
      [](QWidget *parent) -> QWidget * {
          OxaLabel *label = makeLabel(parent, QStringLiteral("text"), QAccessible::PushButton);
          label->setTextInteractionFlags(Qt::NoTextInteraction);
          return label;
      },
      "Button text", "", "read-only", "" },
    { "a rich label",
      [](QWidget *parent) -> QWidget * {
          return makeLabel(parent, QStringLiteral("<b>a</b> <a href=\"b\">b</a> &amp; c"),
                           QAccessible::NoRole, Qt::RichText);
      },
      "StaticText a b & c", "", "read-only", "" },
    { "a label with another name and a tool tip",
      [](QWidget *parent) -> QWidget * {
          OxaLabel *label = makeLabel(parent, QStringLiteral("text"));
          label->setAccessibleName(QStringLiteral("name"));
          label->setToolTip(QStringLiteral("tip"));
          return label;
      },
      "StaticText name", "tip", "read-only", "" },
    { "an emoji label",
      [](QWidget *parent) -> QWidget * {
          return makeLabel<OxaEmojiLabel>(parent,
                                          QStringLiteral("by <img src=\"%1|7\">").arg(artist));
      },
      "StaticText by \U0001F469\u200D\U0001F3A8", "", "read-only", "" },
    { "an emoji button",
      [](QWidget *parent) -> QWidget * {
          return makeLabel<OxaEmojiPushButton>(parent, QStringLiteral("text"));
      },
      "Button text", "", "read-only", "Press" },
    { "an emoji button without text interaction, which can still be clicked",
      [](QWidget *parent) -> QWidget * {
          auto *button = makeLabel<OxaEmojiPushButton>(parent, QStringLiteral("text"));
          button->setTextInteractionFlags(Qt::NoTextInteraction);
          return button;
      },
      "Button text", "", "read-only", "Press" },
    { "an icon",
      [](QWidget *parent) -> QWidget * {
          auto *label = new OxaSvgLabel(parent);
          label->setSvgIcon(QStringLiteral(":/Resources/warning_12.svg"));
          label->setToolTip(QStringLiteral("tip"));
          return label;
      },
      "Graphic tip", "", "read-only", "" },
    { "an icon with a text",
      [](QWidget *parent) -> QWidget * {
          return makeLabel<OxaSvgLabel>(parent, QStringLiteral("text"));
      },
      "StaticText text", "", "read-only", "" },
    { "an animated image",
      [](QWidget *parent) -> QWidget * {
          auto *label = new OxaGifLabel(parent);
          label->setAccessibleName(QStringLiteral("name"));
          return label;
      },
      "Graphic name", "", "read-only", "" },
    { "a browser with a role",
      [](QWidget *parent) -> QWidget * {
          auto *browser = new OxaTextBrowser(parent);
          browser->setAccessibleRole(QAccessible::Document);
          browser->setAccessibleName(QStringLiteral("name"));
          return browser;
      },
      "Document name", "", "focusable read-only", "SetFocus" },
    { "a progress bar", [](QWidget *parent) -> QWidget * { return new OxaProgressBar(parent, 4); },
      "ProgressBar", "", "read-only", "" },
    { "a separator", make<OxaSeparator>, "Separator", "", "", "" },
    { "a banner",
      [](QWidget *parent) -> QWidget * {
          auto *banner = new AlertBanner(parent);
          AlertBanner::AlertBannerInfo info;
          info.alertText = QStringLiteral("<b>No</b> network");
          info.showIcon = false;
          banner->setAlert(info);
          return banner;
      },
      "AlertMessage No network", "", "", "" },
    { "a notification",
      [](QWidget *parent) -> QWidget * {
          auto *notification = new OxaNotification(parent);
          auto *column = new QVBoxLayout(notification);
          column->addWidget(makeLabel(notification, QStringLiteral("Sent")));
          column->addWidget(makeLabel(notification, QStringLiteral("to all")));
          return notification;
      },
      "AlertMessage Sent to all", "", "", "" },

    // What is clicked.
    { "a button",
      [](QWidget *parent) -> QWidget * { return makeButton<OxaPushButton>(parent, "&ok"); },
      "Button ok", "", "focusable", "Press SetFocus" },
    { "a button with a badge",
      [](QWidget *parent) -> QWidget * {
          auto *button = makeButton<OxaPushButton>(parent, "mail");
          button->setToolTip(QStringLiteral("tip"));
          button->setBadgeVisible(true);
          return button;
      },
      "Button mail", "tip, Unread", "focusable", "Press SetFocus" },
    { "a rich button",
      [](QWidget *parent) -> QWidget * {
          auto *button = makeButton<OxaSvgPushButton>(parent, "<b>a</b> &amp; b");
          button->setTextFormat(Qt::RichText);
          return button;
      },
      "Button a & b", "", "focusable", "Press SetFocus" },
    { "a toggle button",
      [](QWidget *parent) -> QWidget * {
          auto *button = new OxaToggleButton(parent);
          button->setToolTip(QStringLiteral("on"), QStringLiteral("off"));
          return button;
      },
      "CheckBox off", "", "focusable checkable", "Toggle SetFocus" },
    { "a pill",
      [](QWidget *parent) -> QWidget * { return makeButton<OxaPillTabButton>(parent, "a"); },
      "CheckBox a", "", "focusable checkable", "Toggle SetFocus" },
    { "a button with an anchor",
      [](QWidget *parent) -> QWidget * {
          return makeButton<OxaSvgAnchorButton>(parent, "a", true);
      },
      "CheckBox a", "", "focusable checkable checked", "Toggle SetFocus" },
    { "an underlined button",
      [](QWidget *parent) -> QWidget * { return makeButton<OxaUnderlineButton>(parent, "a"); },
      "Button a", "", "focusable", "Press SetFocus" },
    { "an underlined button with an unread dot",
      [](QWidget *parent) -> QWidget * {
          auto *button = makeButton<OxaUnderlineButton>(parent, "a");
          button->setShowUnreadIndicator(true);
          return button;
      },
      "Button a", "Unread", "focusable", "Press SetFocus" },
    { "a button with an animated image",
      [](QWidget *parent) -> QWidget * {
          auto *button = makeGifButton(parent).release();
          button->setAccessibleName(QStringLiteral("name"));
          return button;
      },
      "Button name", "", "focusable", "Press SetFocus" },
    { "a check box",
      [](QWidget *parent) -> QWidget * { return makeButton<OxaCheckBox>(parent, "a", true); },
      "CheckBox a", "", "focusable checkable checked", "Toggle SetFocus" },
    { "a check box that is partly checked",
      [](QWidget *parent) -> QWidget * {
          auto *box = makeButton<OxaCheckBox>(parent, "a", true);
          box->setCheckState(Qt::PartiallyChecked);
          return box;
      },
      "CheckBox a", "", "focusable checkable checked mixed", "Toggle SetFocus" },
    { "a radio button",
      [](QWidget *parent) -> QWidget * { return makeButton<OxaRadioButton>(parent, "a", true); },
      "RadioButton a", "", "focusable checkable checked", "Toggle SetFocus" },
    { "a tab bar", make<OxaTabBar>, "PageTabList", "", "focusable", "SetFocus" },
    { "a tab bar with a message",
      [](QWidget *parent) -> QWidget * {
          auto *bar = new OxaTabBar(parent);
          bar->setAccessibleMessage(QStringLiteral("message"));
          return bar;
      },
      "PageTabList message", "", "focusable", "SetFocus" },
    { "a menu of buttons", make<OxaVMenu>, "PopupMenu", "", "focusable", "SetFocus" },

    // What is entered.
    { "a field", [](QWidget *parent) -> QWidget * { return makeEdit(parent)->parentWidget(); },
      "Grouping", "", "", "SetFocus" },
    { "a field's text", [](QWidget *parent) -> QWidget * { return makeEdit(parent); },
      "EditableText Text input field", "placeholder, 0 of 20 characters", "focusable editable",
      "SetFocus" },
    { "a password",
      [](QWidget *parent) -> QWidget * {
          auto *edit = new OxaLineEdit(parent);
          edit->setEchoMode(QLineEdit::Password);
          return edit;
      },
      "EditableText", "", "focusable editable password", "SetFocus" },
    { "a text edit",
      [](QWidget *parent) -> QWidget * {
          auto *edit = new OxaTextEdit(QStringLiteral("text"), parent);
          edit->setPlaceholderText(QStringLiteral("placeholder"));
          edit->setToolTip(QStringLiteral("tip"));
          return edit;
      },
      "EditableText tip", "placeholder", "focusable editable", "SetFocus" },
    { "a combo box",
      [](QWidget *parent) -> QWidget * {
          auto *box = new OxaComboBox(parent);
          box->addItem(QStringLiteral("a"));
          return box;
      },
      "ComboBox a", "", "focusable", "ShowMenu Press" },
    { "a combo box with a name",
      [](QWidget *parent) -> QWidget * {
          auto *box = new OxaComboBox(parent);
          box->addItem(QStringLiteral("a"));
          box->setAccessibleName(QStringLiteral("name"));
          return box;
      },
      "ComboBox name", "a", "focusable", "ShowMenu Press" },
    { "a disabled combo box",
      [](QWidget *parent) -> QWidget * {
          auto *box = new OxaComboBox(parent);
          box->setEnabled(false);
          return box;
      },
      "ComboBox", "", "disabled focusable", "" },
    { "a slider", make<OxaSlider>, "Slider", "", "focusable", "SetFocus Increase Decrease" },
    { "a date", make<OxaDateTimeEdit>, "SpinBox", "", "focusable", "SetFocus Increase Decrease" },
    { "a time", make<OxaTimeEdit>, "SpinBox", "", "focusable", "SetFocus Increase Decrease" },

    // What has others in it.
    { "a widget", make<OxaWidget>, "Pane", "", "", "" },
    { "a frame", make<OxaFrame>, "Pane", "", "", "" },
    { "a row of buttons",
      [](QWidget *parent) -> QWidget * {
          auto *container = new ContainerWidget(parent);
          container->setAccessibleMessage(QStringLiteral("message"));
          return container;
      },
      "Grouping message", "", "", "" },
    { "a list", makeView<OxaListView>, "List tip", "", "focusable", "SetFocus" },
    { "a list with a name and a tool tip",
      [](QWidget *parent) -> QWidget * {
          QWidget *list = makeView<OxaListView>(parent);
          list->setAccessibleName(QStringLiteral("name"));
          return list;
      },
      "List name", "tip", "focusable", "SetFocus" },
    { "a tree", makeView<OxaTreeView>, "Tree tip", "", "focusable", "SetFocus" },
    { "a list of widgets", make<OxaListWidget>, "List", "", "focusable", "SetFocus" },
    { "a splitter", make<OxaSplitter>, "Splitter", "", "", "" },
    { "a stack", make<OxaStackedWidget>, "LayeredPane", "", "", "" },

    // What clients derive from.
    { "a scroll area", make<QScrollArea>, "Pane", "", "focusable", "SetFocus" },
    { "a scroll area of another kind", make<QAbstractScrollArea>, "Pane", "", "focusable",
      "SetFocus" },
    { "a plain widget that stores a role",
      [](QWidget *parent) -> QWidget * {
          auto *widget = new QWidget(parent);
          widget->setProperty("accessibleRole", QVariant::fromValue(QAccessible::ListItem));
          widget->setToolTip(QStringLiteral("tip"));
          return widget;
      },
      "ListItem tip", "", "", "" },
};

/// What is told of a window.
const Row windows[] = {
    { "a main window",
      [](QWidget *) -> QWidget * {
          auto *window = new OxaMainWindow;
          window->setWindowTitle(QStringLiteral("title"));
          return window;
      },
      "Window title", "", "invisible", "" },
    { "a widget as a window", [](QWidget *) -> QWidget * { return new OxaWidget; }, "Window", "",
      "invisible", "" },
    { "a modal dialog",
      [](QWidget *) -> QWidget * {
          auto *dialog = new OxaDialog;
          dialog->setModal(true);
          dialog->setWindowTitle(QStringLiteral("title"));
          return dialog;
      },
      "Dialog title", "", "invisible modal", "" },
    { "a menu", [](QWidget *) -> QWidget * { return new OxaMenu; }, "PopupMenu", "", "invisible",
      "" },
    { "a popup without a header",
      [](QWidget *) -> QWidget * { return makePopup(nullptr).release(); }, "Dialog", "",
      "invisible", "" },
    { "a popup with a header",
      [](QWidget *) -> QWidget * {
          const WidgetData data(OxaThemeUtils::AppThemeType::Global);
          return new PopupWidget(nullptr, WidgetData(data).headerText(QStringLiteral("header")));
      },
      "Dialog header", "", "invisible", "" },
    { "a popup with a menu",
      [](QWidget *) -> QWidget * {
          const WidgetData data(OxaThemeUtils::AppThemeType::Global);
          auto *menu = new OxaVMenu;
          menu->setAccessibleName(QStringLiteral("name"));
          return PopupWidget::create(nullptr, menu, data);
      },
      "PopupMenu name", "", "invisible", "" },
};

QString descriptionOf(const QAccessibleInterface *told)
{
    return told->text(QAccessible::Description);
}

QString actionsOf(QAccessibleInterface *told)
{
    return told->actionInterface()->actionNames().join(QLatin1Char(' '));
}

} // namespace

Q_DECLARE_METATYPE(const Row *)

/// What assistive technology is told of each class.
class tst_AccessibleClasses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tellsOfAWidget_data();
    void tellsOfAWidget();
    void tellsOfAWindow_data();
    void tellsOfAWindow();
    void tellsARoleThatIsNoFiller_data();
    void tellsARoleThatIsNoFiller();
    void tellsWhatQtKnows();
    void findsTheWordAtTheEndOfALine();
    void isDeletedWithItsWidget();
    void translatesItsOwnTexts();

    void cleanupTestCase();

private:
    std::unique_ptr<const StoreGuard> m_stores;
};

void tst_AccessibleClasses::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(storeWith("#102030"), storeWith("#102030"));
}

void tst_AccessibleClasses::cleanupTestCase() { m_stores.reset(); }

void tst_AccessibleClasses::tellsOfAWidget_data()
{
    QTest::addColumn<const Row *>("row");
    for (const Row &row : rows)
        QTest::newRow(row.name) << &row;
}

void tst_AccessibleClasses::tellsOfAWidget()
{
    QFETCH(const Row *const, row);
    QWidget window;
    QWidget *const widget = row->make(&window);
    window.show();
    QAccessibleInterface *told = Told::of(widget);
    QCOMPARE(Told::describe(told), QString::fromUtf8(row->told));
    QCOMPARE(descriptionOf(told), QString::fromUtf8(row->description));
    QString states = Told::states(told);
    // Some windows give it to their first widget.
    QCOMPARE(states.remove(QStringLiteral("focused ")), QString::fromLatin1(row->states));
    QCOMPARE(actionsOf(told), QString::fromLatin1(row->actions));
}

void tst_AccessibleClasses::tellsOfAWindow_data()
{
    QTest::addColumn<const Row *>("row");
    for (const Row &row : windows)
        QTest::newRow(row.name) << &row;
}

void tst_AccessibleClasses::tellsOfAWindow()
{
    QFETCH(const Row *const, row);
    const std::unique_ptr<QWidget> window(row->make(nullptr));
    QCOMPARE(Told::describe(Told::of(window.get())), QString::fromUtf8(row->told));
    QCOMPARE(descriptionOf(Told::of(window.get())), QString::fromUtf8(row->description));
    QCOMPARE(Told::states(Told::of(window.get())), QString::fromLatin1(row->states));
}

void tst_AccessibleClasses::tellsARoleThatIsNoFiller_data() { addThemedClasses(); }

void tst_AccessibleClasses::tellsARoleThatIsNoFiller()
{
    FETCH_THEMED_CLASS;
    QWidget window;
    std::unique_ptr<QWidget> widget = themed.make(&window);
    const QAccessible::Role role = Told::of(widget.get())->role();
    for (const auto filler : { QAccessible::NoRole, QAccessible::Client, QAccessible::Border })
        QVERIFY(role != filler || QByteArray(themed.name) == "ClientPanel");
}

void tst_AccessibleClasses::tellsWhatQtKnows()
{
    OxaSlider slider;
    slider.setRange(3, 9);
    slider.setValue(5);
    QAccessibleValueInterface *value = Told::of(&slider)->valueInterface();
    QCOMPARE(value->minimumValue(), QVariant(3));
    QCOMPARE(value->maximumValue(), QVariant(9));
    QCOMPARE(value->currentValue(), QVariant(5));
    OxaLineEdit edit;
    edit.setText(QStringLiteral("text"));
    QCOMPARE(Told::of(&edit)->textInterface()->text(1, 3), QStringLiteral("ex"));
    edit.setEchoMode(QLineEdit::Password);
    QCOMPARE(Told::of(&edit)->textInterface()->text(1, 3), QString());
    const std::unique_ptr<QWidget> list(makeView<OxaListView>(nullptr));
    QCOMPARE(Told::children(Told::of(list.get())), QStringLiteral("ListItem a | ListItem b"));
    QCOMPARE(Told::of(list.get())->child(0)->parent(), Told::of(list.get()));
    QCOMPARE(Told::of(list.get())->tableInterface()->rowCount(), 2);
    OxaComboBox box;
    QCOMPARE(Told::children(Told::of(&box)), QStringLiteral("List"));
}

void tst_AccessibleClasses::findsTheWordAtTheEndOfALine()
{
    OxaLineEdit edit;
    edit.setText(QStringLiteral("one two"));
    const auto wordAt = [&edit](int offset) {
        int start = 0;
        int end = 0;
        const QString word =
                Told::of(&edit)->textInterface()->textAtOffset(offset, QAccessible::WordBoundary,
                                                               &start, &end);
        return QStringLiteral("%1 %2-%3").arg(word).arg(start).arg(end);
    };
    for (const int end : { 7, -1, -2 }) // The caret, -2, is there.
        QCOMPARE(wordAt(end), QStringLiteral("two 4-7"));
    QCOMPARE(wordAt(5), QStringLiteral("two 4-7"));
    QCOMPARE(wordAt(0), QStringLiteral("one 0-3"));
    edit.clear();
    QCOMPARE(wordAt(0), QStringLiteral(" -1--1"));
    edit.setText(QStringLiteral("secret"));
    edit.setEchoMode(QLineEdit::Password);
    QCOMPARE(wordAt(6), QStringLiteral(" -1--1"));
}

void tst_AccessibleClasses::isDeletedWithItsWidget()
{
    const auto idOf = [](QWidget *widget) { return QAccessible::uniqueId(Told::of(widget)); };
    auto *edit = new OxaLineEdit;
    const QAccessible::Id id = idOf(edit);
    QCOMPARE(idOf(edit), id);
    // The one that Qt has made was registered before.
    QVERIFY(QAccessible::accessibleInterface(id - 1) || QAccessible::accessibleInterface(id + 1));
    delete edit;
    QVERIFY(!QAccessible::accessibleInterface(id));
    auto *other = new OxaLineEdit;
    QAccessible::deleteAccessibleInterface(idOf(other));
    QVERIFY(Told::of(other)->isValid());
    delete other;
}

void tst_AccessibleClasses::translatesItsOwnTexts()
{
    const ContextTranslator translator;
    QWidget window;
    const OxaLineEdit *edit = makeEdit(&window);
    window.show();
    QVERIFY(descriptionOf(Told::of(const_cast<OxaLineEdit *>(edit)))
                    .contains(QStringLiteral("AccessibleTexts/0 of 20 characters")));
}

UIELEMENTS_TEST_MAIN(tst_AccessibleClasses)
#include "tst_accessibleclasses.moc"
