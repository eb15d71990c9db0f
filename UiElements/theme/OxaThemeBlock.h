// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than headers are here: the block is a class and the declarations that forward to it, and
// each is read with the other.

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QEvent>
#include <QObject>
#include <QWidget>

/// Where a widget keeps the colour sets of its style text that it paints with by itself; null where
/// it has no use for a set.
struct OxaKeptColorSets
{
    OxaColorSet *text = nullptr;
    OxaColorSet *background = nullptr;
};

/// Binds a widget to the theme: the behaviour behind UIELEMENTS_THEME_BLOCK.
///
/// A member of the widget that it serves. It holds the style text, expands it for the widget, and
/// hands theme types down the parent chain. What differs from class to class, the signals and slots
/// that it reaches, stands in one constant for each class.
class UIELEMENTS_EXPORT OxaThemeBlock
{
    Q_DISABLE_COPY_MOVE(OxaThemeBlock)

public:
    /// How a style text takes hold of the widget.
    enum class Form {
        Full,             ///< Follows the object name from the first style text on.
        StyledBackground, ///< Has a plain QWidget paint its sheet's background; follows no name.
    };

    /// Serves \a widget, which must outlive the block. Each setCSS() leaves the sets of the style
    /// text where \a keptSets points.
    template <typename Widget>
    explicit OxaThemeBlock(Widget *widget, Form form = Form::Full,
                           const OxaKeptColorSets &keptSets = {})
        : m_widget(widget), m_class(classOf<Widget>), m_form(form), m_keptSets(keptSets)
    {
    }
    ~OxaThemeBlock() = default;

    /// The part of construction that all classes share, to be called from the constructor's body:
    /// runs the widget's onThemeChanged(), connects it to the widget's theme type, and connects the
    /// widget to its parent's.
    void followTheme();

    /// Connects the widget's object name to refreshCSS(), once however often it is called.
    void followObjectName() { m_class.followObjectName(m_widget); }

    /// Returns the style text as it was last given.
    QString styleText() const { return m_styleText; }

    /// Returns what the style text was last read as.
    const OxaCSSData &cssData() const { return m_cssData; }

    /// Stores \a styleText, expands it for the widget, gives the sheet to Qt and emits
    /// cssChanged(), also when nothing differs. An empty sheet is kept from a widget that has none.
    void setCSS(const QString &styleText);

    /// Expands the style text anew, in the colours of this moment; otherwise as setCSS().
    void refreshCSS() { setCSS(m_styleText); }

    /// Gives \a styleSheet to Qt as it is. Without a style text it becomes that, too.
    void setStyleSheet(const QString &styleSheet);

    /// Returns the theme type's word as it was last given; "global" at first.
    QString themeType() const { return m_themeType; }

    /// Returns the theme type that counts: the widget's own, or its window's where that is global.
    OxaThemeUtils::AppThemeType effectiveThemeType() const;

    /// Stores \a themeType, does what refreshCSS() does, and emits themeTypeChanged(), also when
    /// the word is the same.
    void setThemeType(const QString &themeType);

    /// Follows a new parent, and takes over its theme type. For the widget's changeEvent().
    void changeEvent(const QEvent *event);

    /// Takes over the theme type of the widget's parent, or else of its window, where that differs;
    /// once in each change, however often it is called.
    void onParentThemeTypeChanged();

private:
    /// One widget class's signals and slots, as functions on the widget.
    struct WidgetClass
    {
        void (*emitCssChanged)(QWidget *);
        void (*emitThemeTypeChanged)(QWidget *);
        void (*followTheme)(QWidget *);
        void (*followObjectName)(QWidget *);
    };
    template <typename Widget>
    static const WidgetClass classOf;

    void followParent(Qt::ConnectionType connectionType);
    void applyThemeType(const QString &themeType);
    void takeThemeTypeFromAbove();
    bool takeThemeTypeOf(const QWidget *other);

    QWidget *const m_widget;
    const WidgetClass &m_class;
    const Form m_form;
    int m_change = 0; ///< The change that the widget is handing down.
    const OxaKeptColorSets m_keptSets;
    QString m_styleText;
    OxaCSSData m_cssData;
    QString m_themeType = QStringLiteral("global");
};

template <typename Widget>
const OxaThemeBlock::WidgetClass OxaThemeBlock::classOf = {
    [](QWidget *widget) { Q_EMIT static_cast<Widget *>(widget)->cssChanged(); },
    [](QWidget *widget) { Q_EMIT static_cast<Widget *>(widget)->themeTypeChanged(); },
    [](QWidget *widget) {
        auto *self = static_cast<Widget *>(widget);
        self->onThemeChanged();
        QObject::connect(self, &Widget::themeTypeChanged, self, &Widget::onThemeChanged);
    },
    [](QWidget *widget) {
        auto *self = static_cast<Widget *>(widget);
        QObject::connect(self, &QObject::objectNameChanged, self, &Widget::refreshCSS,
                         Qt::UniqueConnection);
    },
};

/// Declares the theme members of a themed widget class. Stands right after Q_OBJECT, without a
/// semicolon, with the Qt class that the widget derives from as its argument, and leaves the access
/// at private. Derived widgets inherit it all and override onThemeChanged().
///
/// The class declares and defines what the macro leaves to it, because its place among the virtual
/// functions of a class is part of the binary interface:
///
///     protected Q_SLOTS:
///         virtual void onThemeChanged();
///
/// and calls m_themeBlock.followTheme() in its constructor, where it may also initialise
/// m_themeBlock with a form of its own or a place for its colour sets.
///
/// Properties: `css`, the style text as UTF-8; `themeType`, the stored word of the theme type;
/// `styleSheet`, Qt's, where a sheet given to a widget without a style text becomes that text.
/// getThemeType() tells the effective type, which may be the window's.
/// setCSS() expands and applies the style text and emits cssChanged(). setThemeType() stores the
/// word, applies the style text again, and emits cssChanged() and themeTypeChanged(), also when the
/// word is the same. Children whose parent has a themeTypeChanged() signal follow it where its type
/// is another one than theirs; a plain QWidget in between stops it.
/// onThemeChanged() runs at each change of the type, to fetch what a class paints with by itself.
#define UIELEMENTS_THEME_BLOCK(QtClass)                                                            \
    Q_PROPERTY(QString styleSheet READ styleSheet WRITE setStyleSheet)                             \
    Q_PROPERTY(QByteArray css READ _getCSS WRITE _setCSS NOTIFY cssChanged)                        \
    Q_PROPERTY(QString themeType READ _getThemeType WRITE setThemeType NOTIFY themeTypeChanged)    \
                                                                                                   \
public:                                                                                            \
    QString getCSS() const { return m_themeBlock.styleText(); }                                    \
    void setCSS(const QString &styleText) { m_themeBlock.setCSS(styleText); }                      \
    OxaCSSData getOxaCSS() const { return m_themeBlock.cssData(); }                                \
    void setCSS(const OxaCSSData &cssData)                                                         \
    {                                                                                              \
        m_themeBlock.setCSS(OxaThemeUtils::convertToOxaCSS(cssData));                              \
    }                                                                                              \
    void setStyleSheet(const QString &sheet) { m_themeBlock.setStyleSheet(sheet); }                \
    OxaThemeUtils::AppThemeType getThemeType() const { return m_themeBlock.effectiveThemeType(); } \
    void setThemeType(const QString &themeType) { m_themeBlock.setThemeType(themeType); }          \
                                                                                                   \
Q_SIGNALS:                                                                                         \
    void cssChanged();                                                                             \
    void themeTypeChanged();                                                                       \
                                                                                                   \
protected:                                                                                         \
    void changeEvent(QEvent *event) override                                                       \
    {                                                                                              \
        QtClass::changeEvent(event);                                                               \
        m_themeBlock.changeEvent(event);                                                           \
    }                                                                                              \
                                                                                                   \
private Q_SLOTS:                                                                                   \
    void refreshCSS() { m_themeBlock.refreshCSS(); }                                               \
    void onParentThemeTypeChanged() { m_themeBlock.onParentThemeTypeChanged(); }                   \
                                                                                                   \
private:                                                                                           \
    friend class OxaThemeBlock;                                                                    \
    QByteArray _getCSS() const { return m_themeBlock.styleText().toUtf8(); }                       \
    void _setCSS(const QByteArray &utf8) { m_themeBlock.setCSS(QString::fromUtf8(utf8)); }         \
    QString _getThemeType() const { return m_themeBlock.themeType(); }                             \
    OxaThemeBlock m_themeBlock { this };
