// SPDX-License-Identifier: Apache-2.0

// Longer than sources are: two tables, of members and of setters, with a row for each.

#include "support/TestMain.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/movies/OxaGifButton.h>
#include <UiElements/movies/OxaGifLabel.h>
#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
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
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaTreeView.h>
#include <UiElements/widgets/OxaUnderlineButton.h>
#include <UiElements/widgets/OxaVMenu.h>
#include <UiElements/widgets/OxaWidget.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QMetaMethod>
#include <QMetaProperty>
#include <QTest>

Q_DECLARE_METATYPE(const QMetaObject *)

namespace {

const QStringList themeBlock = {
    QStringLiteral("QString styleSheet"),
    QStringLiteral("QByteArray css, cssChanged"),
    QStringLiteral("QString themeType, themeTypeChanged"),
    QStringLiteral("signal cssChanged()"),
    QStringLiteral("signal themeTypeChanged()"),
    QStringLiteral("protected slot onThemeChanged()"),
    QStringLiteral("private slot refreshCSS()"),
    QStringLiteral("private slot onParentThemeTypeChanged()"),
};
const QStringList fontBlock = {
    QStringLiteral("OxaFont::Token fontToken"),
    QStringLiteral("FontManagerEnum::FontType fontType"),
};
const QStringList iconBlock = {
    QStringLiteral("QString svgIcon, svgIconChanged"),
    QStringLiteral("QString svgIconColorSet, svgIconColorSetChanged"),
    QStringLiteral("QSize svgIconSize, svgIconSizeChanged"),
    QStringLiteral("OxaEnum::Alignment svgIconAlignment"),
    QStringLiteral("OxaEnum::HorAlign textHorAlign"),
    QStringLiteral("int textLeftPadding"),
    QStringLiteral("int textRightPadding"),
    QStringLiteral("QPoint svgIconTopLeftPadding"),
    QStringLiteral("QPoint svgIconBottomRightPadding"),
    QStringLiteral("QString innerSvgIcon"),
    QStringLiteral("QString innerSvgIconColorSet"),
    QStringLiteral("QSize innerSvgIconSize"),
    QStringLiteral("signal svgIconChanged(QString path)"),
    QStringLiteral("signal svgIconColorSetChanged(OxaColorSet colorSet)"),
    QStringLiteral("signal svgIconSizeChanged(QSize size)"),
};

QString described(const QMetaProperty &property)
{
    const QString text = QLatin1String(property.typeName()) + QLatin1Char(' ')
            + QLatin1String(property.name());
    return property.hasNotifySignal()
            ? text + QLatin1String(", ") + QString::fromLatin1(property.notifySignal().name())
            : text;
}

/// Returns "signal", "invokable", or "slot" with its access.
QString kindOf(const QMetaMethod &method)
{
    if (method.methodType() == QMetaMethod::Signal)
        return QStringLiteral("signal");
    if (method.methodType() == QMetaMethod::Method)
        return QStringLiteral("invokable");
    const char *const access[] = { "private", "protected", "public" };
    return QLatin1String(access[method.access()]) + QLatin1String(" slot");
}

QString described(const QMetaMethod &method)
{
    QStringList parameters;
    for (int i = 0; i < method.parameterCount(); ++i)
        parameters += QString::fromLatin1(method.parameterTypes().at(i) + ' '
                                          + method.parameterNames().at(i));
    return kindOf(method) + QLatin1Char(' ') + QString::fromLatin1(method.name()) + QLatin1Char('(')
            + parameters.join(QLatin1String(", ")) + QLatin1Char(')');
}

/// Returns the properties, signals and slots that \a type declares, sorted.
QStringList membersOf(const QMetaObject &type)
{
    QStringList members;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        members += described(type.property(i));
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        members += described(type.method(i));
    members.sort();
    return members;
}

bool isQts(const QMetaObject &type) { return type.className()[0] == 'Q'; }

/// True when the setter has one argument, and is not Qt's.
template <typename Class, typename... Arguments>
bool isOurs(void (Class::*)(Arguments...))
{
    return sizeof...(Arguments) == 1 && !isQts(Class::staticMetaObject);
}

/// Collects the properties of Qt's whose setters \a Widget or a class of ours above it replaces.
class ReplacedSetters
{
public:
    template <typename Widget>
    static QStringList of()
    {
        ReplacedSetters setters;
        setters.noteWidget<Widget>();
        if constexpr (std::is_base_of_v<QLabel, Widget>)
            setters.noteLabel<Widget>();
        if constexpr (std::is_base_of_v<QAbstractButton, Widget>)
            setters.noteButton<Widget>();
        if constexpr (std::is_base_of_v<QComboBox, Widget>)
            setters.noteComboBox<Widget>();
        if constexpr (std::is_base_of_v<QLineEdit, Widget>)
            setters.noteLineEdit<Widget>();
        if constexpr (std::is_base_of_v<QTextEdit, Widget>)
            setters.noteTextEdit<Widget>();
        return setters.m_names;
    }

private:
    template <typename Setter>
    void note(const char *name, Setter setter)
    {
        if (isOurs(setter))
            m_names += QLatin1String(name);
    }

    template <typename Widget>
    void noteWidget()
    {
        note("accessibleName", &Widget::setAccessibleName);
        note("enabled", &Widget::setEnabled);
        note("focusPolicy", &Widget::setFocusPolicy);
        note("font", &Widget::setFont);
        note("layoutDirection", &Widget::setLayoutDirection);
        note("palette", &Widget::setPalette);
        note("styleSheet", &Widget::setStyleSheet);
        note("toolTip", &Widget::setToolTip);
        // Not setVisible(), which is virtual: Qt's property calls what replaces it.
    }

    template <typename Widget>
    void noteLabel()
    {
        note("alignment", &Widget::setAlignment);
        note("indent", &Widget::setIndent);
        note("margin", &Widget::setMargin);
        note("text", &Widget::setText);
        note("textFormat", &Widget::setTextFormat);
        note("textInteractionFlags", &Widget::setTextInteractionFlags);
        note("wordWrap", &Widget::setWordWrap);
    }

    template <typename Widget>
    void noteButton()
    {
        note("checkable", &Widget::setCheckable);
        note("checked", &Widget::setChecked);
        note("down", &Widget::setDown);
        note("icon", &Widget::setIcon);
        note("iconSize", &Widget::setIconSize);
        note("text", &Widget::setText);
        if constexpr (std::is_base_of_v<QPushButton, Widget>) {
            note("autoDefault", &Widget::setAutoDefault);
            note("default", &Widget::setDefault);
            note("flat", &Widget::setFlat);
        }
        if constexpr (std::is_base_of_v<QCheckBox, Widget>)
            note("tristate", &Widget::setTristate);
    }

    template <typename Widget>
    void noteComboBox()
    {
        note("currentIndex", &Widget::setCurrentIndex);
        note("editable", &Widget::setEditable);
        note("frame", &Widget::setFrame);
        note("iconSize", &Widget::setIconSize);
        note("insertPolicy", &Widget::setInsertPolicy);
        note("maxCount", &Widget::setMaxCount);
        note("maxVisibleItems", &Widget::setMaxVisibleItems);
        note("sizeAdjustPolicy", &Widget::setSizeAdjustPolicy);
    }

    template <typename Widget>
    void noteLineEdit()
    {
        note("alignment", &Widget::setAlignment);
        note("clearButtonEnabled", &Widget::setClearButtonEnabled);
        note("cursorPosition", &Widget::setCursorPosition);
        note("echoMode", &Widget::setEchoMode);
        note("frame", &Widget::setFrame);
        note("maxLength", &Widget::setMaxLength);
        note("placeholderText", &Widget::setPlaceholderText);
        note("readOnly", &Widget::setReadOnly);
        note("text", &Widget::setText);
    }

    template <typename Widget>
    void noteTextEdit()
    {
        note("html", &Widget::setHtml);
        note("lineWrapMode", &Widget::setLineWrapMode);
        note("placeholderText", &Widget::setPlaceholderText);
        note("plainText", &Widget::setPlainText);
        note("readOnly", &Widget::setReadOnly);
        note("tabChangesFocus", &Widget::setTabChangesFocus);
        note("textInteractionFlags", &Widget::setTextInteractionFlags);
    }

    QStringList m_names;
};

/// Adds a row for \a Widget, which derives from \a Base and declares the members of \a blocks and
/// those in \a own.
template <typename Widget, typename Base>
void addRow(const QStringList &blocks, const std::vector<const char *> &own)
{
    QStringList members = blocks;
    for (const char *member : own)
        members += QLatin1String(member);
    members.sort();
    QTest::newRow(Widget::staticMetaObject.className())
            << &Widget::staticMetaObject << &Base::staticMetaObject << members
            << ReplacedSetters::of<Widget>();
}

void addLabels()
{
    addRow<OxaLabel, QLabel>(themeBlock + fontBlock,
                             { "Qt::TextElideMode elideMode", "int elidePadding",
                               "QString elementUniqueId", "QAccessible::Role accessibleRole",
                               "QString text", "Qt::TextFormat textFormat",
                               "Qt::TextInteractionFlags textInteractionFlags", "signal clicked()",
                               "signal onVisibilityChanged(bool isVisible)",
                               "public slot setText(QString text)",
                               "private slot onLayoutDirectionChanged()" });
    addRow<OxaEmojiLabel, OxaLabel>({},
                                    { "int textLeftPadding", "int textRightPadding",
                                      "signal clicked()", "public slot setText(QString text)",
                                      "private slot onLayoutDirectionChanged()",
                                      "private slot onCssChanged()" });
    addRow<OxaEmojiPushButton,
           OxaEmojiLabel>({},
                          { "protected slot mouseReleaseEvent(QMouseEvent* event)",
                            "protected slot keyPressEvent(QKeyEvent* event)" });
    addRow<OxaSvgLabel, OxaLabel>(iconBlock, { "protected slot onThemeChanged()" });
}

void addButtons()
{
    addRow<OxaPushButton, QPushButton>(themeBlock + fontBlock,
                                       { "Qt::TextElideMode elideMode", "int elidePadding",
                                         "QString elementUniqueId",
                                         "QAccessible::Role accessibleRole",
                                         "QString focusRectColorSet", "bool longPressEnabled",
                                         "bool badgeVisible", "QIcon icon", "signal onFocusIn()",
                                         "signal onFocusOut()", "signal longPressed()",
                                         "signal mouseEntered()", "signal mouseExited()",
                                         "signal rightClick()" });
    addRow<OxaToggleButton, OxaPushButton>({}, {});
    addRow<OxaUnderlineButton, OxaPushButton>({},
                                              { "int borderWidth", "int bottomPadding",
                                                "bool showUnreadIndicator", "QImage leftIcon",
                                                "QString anchorIcon",
                                                "protected slot onThemeChanged()" });
    addRow<OxaSvgPushButton,
           OxaPushButton>(iconBlock,
                          { "QString svgIconChecked, svgIconCheckedChanged",
                            "Qt::TextFormat textFormat", "QString text", "QFont font",
                            "signal svgIconCheckedChanged(QString path)",
                            "protected slot onThemeChanged()",
                            "private slot onSvgIconColorSetChanged(OxaColorSet colorSet)",
                            "private slot onSvgIconSizeChanged(QSize size)" });
    addRow<OxaSvgAnchorButton, OxaSvgPushButton>({},
                                                 { "QString anchorSvgOn, anchorSvgOnChanged",
                                                   "QString anchorSvgOff, anchorSvgOffChanged",
                                                   "QSize anchorIconSize",
                                                   "QString anchorSvgColorSet", "int anchorPadding",
                                                   "QPoint anchorSvgOffset", "bool isLeftAnchor",
                                                   "bool alignAnchorIconToText",
                                                   "signal anchorSvgOnChanged(QString path)",
                                                   "signal anchorSvgOffChanged(QString path)",
                                                   "protected slot onThemeChanged()" });
    addRow<OxaPillTabButton, OxaSvgPushButton>({},
                                               { "QString backgroundColorSet",
                                                 "QString textColorSet", "QString iconColorSet",
                                                 "QString backgroundColorSetChecked",
                                                 "QString textColorSetChecked",
                                                 "QString iconColorSetChecked",
                                                 "private slot onApplyCSS(bool isChecked)",
                                                 "private slot onSvgIconChanged(QString path)" });
}

void addChoices()
{
    addRow<OxaCheckBox, QCheckBox>(themeBlock + fontBlock + iconBlock,
                                   { "Qt::TextElideMode elideMode", "int elidePadding",
                                     "QSize checkboxSize", "bool useDefaultStyle", "bool wordWrap",
                                     "signal mouseEntered()", "signal mouseExited()" });
    addRow<OxaRadioButton, QRadioButton>(themeBlock + fontBlock, {});
    addRow<OxaComboBox,
           QComboBox>(themeBlock + fontBlock,
                      { "QString svgDropdownIcon, svgDropdownIconChanged",
                        "QString svgDropDownIconExpanded, svgDropdownIconExpandedChanged",
                        "QSize svgDropdownIconSize, svgDropdownIconSizeChanged",
                        "int svgDropdownIconPadding, svgDropdownIconPaddingChanged",
                        "int itemViewBorderRadius",
                        "QPoint itemViewDropdownOffset",
                        "bool openedUpwards",
                        "QString selectedBackgroundColor",
                        "QString popupBackgroundColor",
                        "bool showPopupEnabled",
                        "bool animateComboBox",
                        "bool editable",
                        "signal svgDropdownBorderRadiusChanged(int radius)",
                        "signal svgDropdownBorderWidthChanged(int borderWidth)",
                        "signal svgDropdownIconChanged(QString path)",
                        "signal svgDropdownIconExpandedChanged(QString path)",
                        "signal svgDropdownIconSizeChanged(QSize size)",
                        "signal svgDropdownIconPaddingChanged(int padding)",
                        "signal contentAreaClicked(QMouseEvent* event)",
                        "public slot highLightedIndex(int index)" });
}

void addFields()
{
    addRow<OxaLineEdit, QLineEdit>(themeBlock + fontBlock,
                                   { "QString placeholderColorSetName",
                                     "invokable inputMethodQuery(Qt::InputMethodQuery query, "
                                     "QVariant argument)",
                                     "signal hoveredChanged(bool state)",
                                     "public slot onLayoutDirectionChanged()" });
    addRow<OxaTextInput, OxaWidget>({},
                                    { "QString text, textChanged", "QString placeholderText",
                                      "int maxLength", "int displayMaxLength", "bool readOnly",
                                      "bool validateErrorWhenEmpty",
                                      "signal textChanged(QString text)", "signal textEdited()",
                                      "signal showErrorLabel(bool isValid)",
                                      "signal returnPressed()", "signal keyPressed(int key)" });
    addRow<OxaTextEdit, QTextEdit>(themeBlock + fontBlock,
                                   { "protected slot paintEvent(QPaintEvent* e)" });
    addRow<OxaTextBrowser, QTextBrowser>(themeBlock + fontBlock,
                                         { "QAccessible::Role accessibleRole" });
}

void addContainers()
{
    addRow<OxaMainWindow, QMainWindow>(themeBlock, {});
    addRow<OxaDialog, QDialog>(themeBlock + fontBlock,
                               { "signal onClose()",
                                 "private slot closeEvent(QCloseEvent* event)" });
    addRow<OxaFrame, QFrame>(themeBlock + fontBlock, {});
    addRow<OxaSplitter, QSplitter>(themeBlock + fontBlock, {});
    addRow<OxaStackedWidget, QStackedWidget>(themeBlock + fontBlock, {});
    addRow<OxaSeparator, OxaWidget>({}, { "QString colorSetName", "public slot onThemeChanged()" });
}

void addMenus()
{
    addRow<ContainerWidget, OxaWidget>({}, {});
    addRow<OxaTabBar, ContainerWidget>({},
                                       { "int horizontalPadding",
                                         "signal currentChanged(int index)",
                                         "signal tabClicked(int prevIndex, int newIndex)" });
    addRow<OxaVMenu, OxaWidget>({}, {});
    addRow<OxaMenu, QMenu>(themeBlock + fontBlock, {});
}

void addViews()
{
    addRow<OxaListView, QListView>(themeBlock + fontBlock, {});
    addRow<OxaTreeView, QTreeView>(themeBlock + fontBlock, {});
    addRow<OxaListWidget, QListWidget>(themeBlock + fontBlock,
                                       { "bool itemWidgetsDynamicLoadingEnabled",
                                         "bool scrollToBottomAutomatically",
                                         "int loadExtraItemsNumber",
                                         "signal updateItemWidget(QListWidgetItem* item)",
                                         "signal updateItemSize(QListWidgetItem* item)",
                                         "signal visibleUpdated()" });
}

void addRanges()
{
    addRow<OxaDateTimeEdit, QDateTimeEdit>(themeBlock + fontBlock, {});
    addRow<OxaTimeEdit, QTimeEdit>(themeBlock + fontBlock, {});
    addRow<OxaSlider, QSlider>(themeBlock, {});
    addRow<OxaProgressBar, QProgressBar>(themeBlock,
                                         { "int barWidth", "int barHeight", "int idleBarHeight" });
}

void addNoticesAndMovies()
{
    addRow<AlertBanner, OxaWidget>({}, { "signal alertLinkActivated()" });
    addRow<OxaNotification, OxaWidget>({},
                                       { "int showTimeout", "int fadeOutDuration",
                                         "signal fadeOutCompleted()", "private slot onFadeOut()" });
    addRow<PopupWidget, OxaWidget>({},
                                   { "signal popupDismissed()", "signal widgetHidden()",
                                     "signal widgetShown()", "signal widgetHoverEntered()",
                                     "signal widgetHoverLeaved()", "public slot resizeToContent()",
                                     "public slot showSmooth(QRect originRect)",
                                     "public slot showSmooth()",
                                     "public slot showSmooth(const QWidget* originWidget)" });
    addRow<OxaGifLabel, OxaLabel>({}, { "signal finishedPlaying()" });
    addRow<OxaGifButton, OxaPushButton>({}, { "protected slot setButtonIcon()" });
}

} // namespace

/// What each widget class of the library declares to Qt's meta-object system: a row for each.
class tst_WidgetMembers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areThoseOfTheTable_data() { addRows(); }
    void areThoseOfTheTable();
    void areWritableWherePropertiesAre_data() { addRows(); }
    void areWritableWherePropertiesAre();
    void holdThePropertiesOfQtWhoseSettersAreReplaced_data() { addRows(); }
    void holdThePropertiesOfQtWhoseSettersAreReplaced();

private:
    static void addRows();
};

void tst_WidgetMembers::addRows()
{
    QTest::addColumn<const QMetaObject *>("type");
    QTest::addColumn<const QMetaObject *>("baseType");
    QTest::addColumn<QStringList>("members");
    QTest::addColumn<QStringList>("replaced");
    addRow<OxaWidget, QWidget>(themeBlock + fontBlock,
                               { "QString elementUniqueId", "QString pixmap",
                                 "public slot onLayoutDirectionChanged()" });
    addLabels();
    addButtons();
    addChoices();
    addFields();
    addContainers();
    addMenus();
    addRanges();
    addViews();
    addNoticesAndMovies();
}

void tst_WidgetMembers::areThoseOfTheTable()
{
    QFETCH(const QMetaObject *, type);
    QFETCH(const QMetaObject *, baseType);
    QFETCH(const QStringList, members);
    QCOMPARE(membersOf(*type).join(QLatin1String("; ")), members.join(QLatin1String("; ")));
    QCOMPARE(type->superClass(), baseType);
}

void tst_WidgetMembers::areWritableWherePropertiesAre()
{
    QFETCH(const QMetaObject *, type);
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        // The setter of this one has another name, which says which side it means.
        const bool isReadOnly = qstrcmp(property.name(), "svgDropdownIconPadding") == 0;
        QVERIFY2(property.isReadable() && property.isWritable() != isReadOnly, property.name());
    }
}

void tst_WidgetMembers::holdThePropertiesOfQtWhoseSettersAreReplaced()
{
    QFETCH(const QMetaObject *, type);
    QFETCH(const QStringList, replaced);
    QVERIFY(replaced.contains(QLatin1String("styleSheet")));
    for (const QString &name : replaced) {
        const QMetaProperty property = type->property(
                type->indexOfProperty(name.toLatin1().constData()));
        // moc can't name a signal of Qt's with an argument for a property of ours.
        const bool canBeDeclaredAgain = property.notifySignal().parameterCount() == 0;
        QVERIFY2(!isQts(*property.enclosingMetaObject()) || !canBeDeclaredAgain, qPrintable(name));
    }
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_WidgetMembers)
#include "tst_widgetmembers.moc"
