// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>

#include <QApplication>
#include <QKeyEvent>

namespace {

constexpr int typedCount = 1000;

OxaCSSData look(const QString &ground)
{
    OxaCSSData css;
    css.backgroundColorSetName = ground;
    css.borderColorSetName = QStringLiteral("set-2");
    css.borderTop = css.borderRight = css.borderBottom = css.borderLeft = true;
    css.borderRadius = 6;
    return css;
}

/// A window with a field of \a Field, which has the focus.
template <typename Field>
class FieldWindow : public QWidget
{
public:
    explicit FieldWindow(Field *madeField) : field(madeField)
    {
        field->setParent(this);
        field->setGeometry(10, 10, 300, 40);
        resize(320, 60);
        show();
        activateWindow();
        while (!isActiveWindow())
            QCoreApplication::processEvents();
        field->setFocus();
        QCoreApplication::processEvents();
    }

    Field *const field;
};

/// Types into \a edit faster than it repaints.
void type(QLineEdit &edit)
{
    edit.clear();
    for (int i = 0; i < typedCount; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QCoreApplication::sendEvent(&edit, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QCoreApplication::sendEvent(&edit, &release);
    }
}

void typing(benchmark::State &state)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    const OxaTextInputFactory fields({ look(QStringLiteral("set-1")), look(QStringLiteral("set-3")),
                                       look(QStringLiteral("set-4")) });
    // Ours is made last, since the counter shows with the focus.
    FieldWindow<QLineEdit> peer(new QLineEdit);
    FieldWindow<OxaTextInput> ours(fields.make(nullptr));
    ours.field->setMaxLength(2 * typedCount);
    ours.field->setInputValidator([](const QString &) { return true; }, true);

    peer.field->setObjectName(ours.field->objectName());
    peer.field->setMaxLength(2 * typedCount);
    QObject::connect(peer.field, &QLineEdit::textChanged, peer.field,
                     [edit = peer.field, sheet = ours.field->styleSheet()] {
                         edit->setStyleSheet(sheet);
                     });
    ours.field->setText(QStringLiteral("a"));
    if (!ours.field->findChild<OxaLabel *>()->isVisible())
        state.SkipWithError("the counter does not show");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&ours] { type(*ours.field->getLineEdit()); },
                         [&peer] { type(*peer.field); });
    comparison.ratioAtMost(1.15);
}
BENCHMARK(typing)
        ->Name("typing 1,000 characters into a field/QLineEdit that sets the finished sheet")
        ->Iterations(20)
        ->UseManualTime();

} // namespace
