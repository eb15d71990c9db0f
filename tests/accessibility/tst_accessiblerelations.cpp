// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "theme/ThemedWidgets.h"

namespace {

/// A field with a caption and a message for its error.
struct Form
{
    Form()
    {
        field->setInputValidator([](const QString
                                            &text) { return text.contains(QLatin1Char('@')); },
                                 true);
        caption.setBuddy(field);
        error.setAccessibleRole(QAccessible::AlertMessage);
        error.setBuddy(field);
        error.hide();
        QObject::connect(field, &OxaTextInput::showErrorLabel, &error, &OxaLabel::setVisible);
        window.show();
    }

    QWidget window;
    OxaLabel caption { QStringLiteral("&Mail"), &window };
    OxaLabel error { QStringLiteral("No @ in it"), &window };
    OxaTextInput *const field = OxaTextInputFactory({}).make(&window);
    OxaLineEdit *const edit = field->getLineEdit();
};

QString describe(QAccessible::Relation relation)
{
    switch (relation) {
    case QAccessible::Label:
        return QStringLiteral("has the label");
    case QAccessible::Labelled:
        return QStringLiteral("is the label of");
    case QAccessible::Controller:
        return QStringLiteral("is controlled by");
    default:
        return QStringLiteral("controls");
    }
}

/// Returns the relations of \a widget that \a match: "controls Dialog a | has the label …".
QString relationsOf(QWidget &widget, QAccessible::Relation match = QAccessible::AllRelations)
{
    QStringList all;
    const auto relations = Told::of(&widget)->relations(match);
    for (const auto &[other, relation] : relations)
        all += describe(relation) + QLatin1Char(' ') + Told::describe(other);
    return all.join(QLatin1String(" | "));
}

} // namespace

/// What assistive technology is told of widgets that belong together.
class tst_AccessibleRelations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void tellsTheCaptionOfAField();
    void tellsTheCaptionOfAList();
    void tellsTheErrorOfAField();
    void tellsThatThereIsAnErrorWithoutAMessage();
    void tellsTheErrorOfAnyWidget();
    void tellsThePopupOfAButton();
    void tellsOnlyWhatIsAskedFor();

private:
    std::unique_ptr<const StoreGuard> m_stores;
};

void tst_AccessibleRelations::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(storeWith("#102030"), storeWith("#102030"));
}

void tst_AccessibleRelations::cleanupTestCase() { m_stores.reset(); }

void tst_AccessibleRelations::tellsTheCaptionOfAField()
{
    Form form;
    const QAccessible::Relation labels = QAccessible::Label | QAccessible::Labelled;
    QCOMPARE(relationsOf(*form.edit, labels), QStringLiteral("has the label StaticText Mail"));
    QCOMPARE(relationsOf(*form.field, labels), QStringLiteral("has the label StaticText Mail"));
    QCOMPARE(relationsOf(form.caption, labels),
             QStringLiteral("is the label of Grouping Mail | "
                            "is the label of EditableText Text input field"));
}

void tst_AccessibleRelations::tellsTheCaptionOfAList()
{
    QWidget window;
    OxaListView list(&window);
    OxaLabel caption(QStringLiteral("People"), &window);
    caption.setBuddy(&list);
    QCOMPARE(relationsOf(list), QStringLiteral("has the label StaticText People"));
    QCOMPARE(relationsOf(caption), QStringLiteral("is the label of List"));
    caption.setAccessibleRole(QAccessible::AlertMessage);
    QCOMPARE(relationsOf(list), QStringLiteral("controls AlertMessage People"));
}

void tst_AccessibleRelations::tellsTheErrorOfAField()
{
    Form form;
    const auto descriptionOf = [&form] {
        return Told::of(form.edit)->text(QAccessible::Description);
    };
    QCOMPARE(descriptionOf(), QString());
    form.field->setText(QStringLiteral("a"));
    QCOMPARE(descriptionOf(), QStringLiteral("No @ in it"));
    QCOMPARE(relationsOf(*form.edit, QAccessible::Controlled),
             QStringLiteral("controls AlertMessage No @ in it"));
    QCOMPARE(relationsOf(form.error),
             QStringLiteral("is controlled by Grouping Mail | "
                            "is controlled by EditableText Text input field"));
    form.field->setText(QStringLiteral("a@"));
    QCOMPARE(descriptionOf(), QString());
}

void tst_AccessibleRelations::tellsThatThereIsAnErrorWithoutAMessage()
{
    Form form;
    form.error.setBuddy(nullptr);
    form.field->setText(QStringLiteral("a"));
    QVERIFY(form.field->isErrorShown());
    QCOMPARE(Told::of(form.edit)->text(QAccessible::Description), QStringLiteral("Invalid entry"));
    form.field->setText(QString());
    QVERIFY(!form.field->isErrorShown());
    QCOMPARE(Told::of(form.edit)->text(QAccessible::Description), QString());
}

void tst_AccessibleRelations::tellsTheErrorOfAnyWidget()
{
    QWidget window;
    OxaCheckBox box(&window);
    OxaLabel error(QStringLiteral("Needed"), &window, QAccessible::AlertMessage);
    error.setBuddy(&box);
    QCOMPARE(Told::of(&box)->text(QAccessible::Description), QStringLiteral("Needed"));
    QCOMPARE(relationsOf(box), QStringLiteral("controls AlertMessage Needed"));
    error.hide();
    QCOMPARE(Told::of(&box)->text(QAccessible::Description), QString());
}

void tst_AccessibleRelations::tellsThePopupOfAButton()
{
    QWidget window;
    OxaPushButton button(QStringLiteral("more"), &window);
    OxaPushButton other(QStringLiteral("other"), &window);
    QCOMPARE(Told::states(Told::of(&button)), QStringLiteral("invisible focusable"));
    const std::unique_ptr<PopupWidget> popup(
            PopupWidget::create(&button, new OxaVMenu,
                                WidgetData(OxaThemeUtils::AppThemeType::Global)));
    // Qt takes it for the same relation.
    connect(&button, &QPushButton::clicked, popup.get(), QOverload<>::of(&PopupWidget::showSmooth));
    QCOMPARE(relationsOf(button), QStringLiteral("controls PopupMenu"));
    QCOMPARE(relationsOf(*popup), QStringLiteral("is controlled by Button more"));
    QCOMPARE(Told::states(Told::of(&button)), QStringLiteral("invisible focusable popup"));
    QCOMPARE(relationsOf(other), QString());
}

void tst_AccessibleRelations::tellsOnlyWhatIsAskedFor()
{
    Form form;
    QCOMPARE(relationsOf(*form.edit, QAccessible::Labelled), QString());
    QCOMPARE(relationsOf(form.error, QAccessible::Labelled), QString());
    QCOMPARE(relationsOf(form.error, QAccessible::Label), QString());
}

UIELEMENTS_TEST_MAIN(tst_AccessibleRelations)
#include "tst_accessiblerelations.moc"
