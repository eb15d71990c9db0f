// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than other headers: the class and the declarations that forward to it are read together.

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QEvent>
#include <QObject>
#include <QWidget>

/// The places where a widget keeps what it needs of its style text; null for what it does not use.
struct OxaKeptStyle
{
    OxaColorSet *text = nullptr;
    OxaColorSet *background = nullptr;
    OxaColorSet *border = nullptr;
    OxaCSSData *cssData = nullptr;
};

/// Binds a widget to the theme: the behaviour behind UIELEMENTS_THEME_BLOCK.
///
/// A member of the widget that it serves. It stores the style text, expands it for the widget, and
/// passes theme types from parents to children. One constant for each class holds the signals and
/// slots, in which the classes differ.
class UIELEMENTS_EXPORT OxaThemeBlock
{
    Q_DISABLE_COPY_MOVE(OxaThemeBlock)

public:
    /// How a style text is applied to the widget.
    enum class Form {
        Full,             ///< Follows the object name from the first style text on.
        StyledBackground, ///< Makes a plain QWidget paint its sheet's background; follows no name.
    };

    /// Serves \a widget, which must outlive the block. Each setCSS() stores what \a kept points
    /// to.
    template <typename Widget>
    explicit OxaThemeBlock(Widget *widget, Form form = Form::Full, const OxaKeptStyle &kept = {})
        : m_widget(widget), m_class(classOf<Widget>), m_form(form), m_kept(kept)
    {
    }
    ~OxaThemeBlock() = default;

    /// Does the part of construction that all classes share; called in the constructor's body: runs
    /// the widget's onThemeChanged(), connects it to the widget's theme type, and connects the
    /// widget to its parent's.
    void followTheme();

    /// Connects the widget's object name to refreshCSS(), at the first call only.
    void followObjectName() { m_class.followObjectName(m_widget); }

    /// Returns the style text as it was last set.
    QString styleText() const { return m_styleText; }

    /// Returns the structured form of the style text.
    const OxaCSSData &cssData() const { return m_cssData; }

    /// Stores \a styleText, expands it for the widget, gives the sheet to Qt and emits
    /// cssChanged(), also when nothing differs. Skips an empty sheet for a widget that has none.
    void setCSS(const QString &styleText);

    /// Expands the style text again, in the current colours; otherwise like setCSS().
    void refreshCSS() { setCSS(m_styleText); }

    /// Gives \a styleSheet to Qt as it is. It becomes the style text if there is none.
    void setStyleSheet(const QString &styleSheet);

    /// Returns the theme type's word as it was last set; "global" at first.
    QString themeType() const { return m_themeType; }

    /// Returns the effective theme type: the widget's own, or its window's if that is global.
    OxaThemeUtils::AppThemeType effectiveThemeType() const;

    /// Stores \a themeType, calls refreshCSS(), and emits themeTypeChanged(), also when the word is
    /// the same.
    void setThemeType(const QString &themeType);

    /// Follows a new parent and takes over its theme type. For the widget's changeEvent().
    void changeEvent(const QEvent *event);

    /// Takes over the theme type of the widget's parent, or else of its window, if that differs,
    /// but not while the widget passes the same change on. \a parent has emitted
    /// themeTypeChanged().
    void onParentThemeTypeChanged(const QObject *parent);

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
    int m_change = 0; ///< The change that the widget is passing on.
    const OxaKeptStyle m_kept;
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

/// Declares the theme members of a themed widget class. Place it right after Q_OBJECT, without a
/// semicolon, with the Qt class that the widget derives from as its argument; it leaves the access
/// at private. Derived widgets inherit all of it and override onThemeChanged().
///
/// The class itself declares and defines this function, because its place among the virtual
/// functions of a class is part of the binary interface:
///
///     protected Q_SLOTS:
///         virtual void onThemeChanged();
///
/// It calls m_themeBlock.followTheme() in its constructor, where it may also initialise
/// m_themeBlock with a form of its own or a place for its colour sets.
///
/// Properties: `css`, the style text as UTF-8; `themeType`, the stored word of the theme type;
/// `styleSheet`, Qt's, which also becomes the style text of a widget without one. getThemeType()
/// returns the effective type, which may be the window's.
/// setCSS() expands and applies the style text and emits cssChanged(). setThemeType() stores the
/// word, applies the style text again, and emits cssChanged() and themeTypeChanged(), also when the
/// word is the same. Children of a parent with a themeTypeChanged() signal take over its type if
/// theirs differs; a plain QWidget in between stops it.
/// onThemeChanged() runs at each change of the type, to look up what a class paints with.
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
    void onParentThemeTypeChanged() { m_themeBlock.onParentThemeTypeChanged(sender()); }           \
                                                                                                   \
private:                                                                                           \
    friend class ::OxaThemeBlock;                                                                  \
    QByteArray _getCSS() const { return m_themeBlock.styleText().toUtf8(); }                       \
    void _setCSS(const QByteArray &utf8) { m_themeBlock.setCSS(QString::fromUtf8(utf8)); }         \
    QString _getThemeType() const { return m_themeBlock.themeType(); }                             \
    OxaThemeBlock m_themeBlock { this };
