// SPDX-License-Identifier: Apache-2.0
#include "FirstWindow.h"

#include "PeopleModel.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/emoji/OxaEmojiLabel.h>
#include <UiElements/layouts/SmartLayout.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>

#include <QGuiApplication>
#include <QListView>
#include <QVBoxLayout>

namespace {

/// A checked button has sets of its own: under the pointer it would look unchecked, since the
/// hovered colour wins over the checked one.
QString buttonStyle(bool checked)
{
    return QStringLiteral("$backgroundColors: %1-button; $borderColors: %1-button-border; "
                          "$textColors: %1-text; $borders: all; $borderWidth: 2; $borderRadius: 6;")
            .arg(checked ? QStringLiteral("chosen") : QStringLiteral("action"));
}

} // namespace

FirstWindow::FirstWindow(QWidget *parent) : OxaWidget(parent)
{
    setObjectName(QStringLiteral("firstWindow"));
    setCSS(QStringLiteral("$backgroundColors: window-background;"
                          "QListView { padding: 4px; border: 2px solid $(panel-border); }"
                          "QListView:focus { border-color: $(panel-border.focused); }"));

    auto *list = makeList();
    auto *column = new QVBoxLayout(this);
    column->addWidget(makeHeading());
    column->addWidget(makeGreeting());
    column->addWidget(list);
    column->addLayout(makeButtons());
    connectShortcuts(list);
}

QWidget *FirstWindow::makeHeading()
{
    auto *heading = new OxaLabel(tr("Good morning"), this);
    heading->setFontToken(OxaFont::Token::Title);
    heading->setCSS(QStringLiteral("$textColors: text-primary;"));
    return heading;
}

QWidget *FirstWindow::makeGreeting()
{
    auto *greeting = new OxaEmojiLabel(this);
    greeting->setCSS(QStringLiteral("$backgroundColors: panel; $textColors: text-primary; "
                                    "$borderRadius: 6;"));
    greeting->setTextLeftPadding(8);
    greeting->setTextRightPadding(8);
    greeting->setMinimumHeight(40);
    greeting->setText(tr("Ada waves at you \xF0\x9F\x91\x8B"));
    return greeting;
}

QListView *FirstWindow::makeList()
{
    auto *people = new PeopleModel(this);
    people->appendRows({ { "ada", { { PeopleModel::NameRole, QStringLiteral("Ada") } } },
                         { "grace", { { PeopleModel::NameRole, QStringLiteral("Grace") } } } });
    auto *list = new QListView(this);
    list->setModel(people);
    return list;
}

OxaSvgPushButton *FirstWindow::makeButton(const QString &text)
{
    auto *button = new OxaSvgPushButton(text, this);
    button->setSvgIcon(OxaSvgRenderer::resourcePath(QStringLiteral("bell")));
    button->setSvgIconPadding(QMargins(12, 0, 8, 0));
    button->setTextRightPadding(12);
    button->setMinimumHeight(36);
    button->setCSS(buttonStyle(false));
    button->setCheckable(true);
    connect(button, &OxaSvgPushButton::toggled, button,
            [button](bool checked) { button->setCSS(buttonStyle(checked)); });
    return button;
}

QLayout *FirstWindow::makeButtons()
{
    auto *dark = makeButton(tr("Dark"));
    connect(dark, &OxaSvgPushButton::toggled, this, &FirstWindow::darkChosen);
    auto *highContrast = makeButton(tr("High contrast"));
    connect(highContrast, &OxaSvgPushButton::toggled, this, &FirstWindow::highContrastChosen);
    auto *rightToLeft = makeButton(tr("Right to left"));
    connect(rightToLeft, &OxaSvgPushButton::toggled, this, [](bool on) {
        QGuiApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
    });

    auto *buttons = new SmartLayout(nullptr, QMargins(), 8, 8, Qt::AlignCenter, -1, false);
    buttons->addWidget(dark);
    buttons->addWidget(highContrast);
    buttons->addWidget(rightToLeft);
    return buttons;
}

void FirstWindow::connectShortcuts(QListView *list)
{
    OxaAppSignals *hub = OxaAppSignals::get();
    hub->registerShortcuts(this, OxaShortcut::All);
    connect(hub, &OxaAppSignals::openGlobalSearch, list,
            [list] { list->setFocus(Qt::ShortcutFocusReason); });
}
