// SPDX-License-Identifier: Apache-2.0
#include "FocusCard.h"

#include "ButtonLooks.h"
#include "Metrics.h"
#include "widgets/ControlRow.h"
#include "widgets/SegmentedControl.h"

#include <UiElements/widgets/OxaPushButton.h>

#include <QCoreApplication>
#include <QVBoxLayout>

namespace {

constexpr int customInset = 5;

/// Returns a button as an application gets it whose style draws the focus frames: a button looks
/// for that once, when it is made.
OxaPushButton *makeGlobalButton(const QString &text, QWidget *parent)
{
    constexpr char property[] = "useGlobalFocusBorders";
    const QVariant before = qApp->property(property);
    qApp->setProperty(property, true);
    auto *button = new OxaPushButton(text, parent);
    qApp->setProperty(property, before);
    return button;
}

} // namespace

FocusCard::FocusCard(QWidget *parent)
    : Card(tr("Focus frames"),
           tr("A frame shows when the keyboard brought the focus: press Tab, or choose a button "
              "below."),
           parent),
      m_legacy(new OxaPushButton(tr("Dots"), this)),
      m_global(makeGlobalButton(tr("The style's"), this)),
      m_none(new OxaPushButton(tr("None"), this))
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::spacing);
    for (OxaPushButton *button : { m_legacy, m_global, m_none }) {
        ButtonLooks::apply(*button);
        row->addWidget(button);
    }
    row->addStretch(1);
    m_legacy->setFocusRectColorSet(QStringLiteral("gallery-button-background"));

    auto *rect = new SegmentedControl({ tr("The button's"), tr("A smaller one") }, this);
    connect(rect, &SegmentedControl::chosen, this, [this](int i) { setCustomRect(i == 1); });

    body()->addLayout(row);
    body()->addStretch(1);
    body()->addWidget(new ControlRow(tr("Focus"), makeFrameControl(), this));
    body()->addWidget(new ControlRow(tr("Rectangle"), rect, this));
}

QWidget *FocusCard::makeFrameControl()
{
    auto *control = new SegmentedControl({ tr("Nowhere"), tr("Dots"), tr("The style's"),
                                           tr("None") },
                                         this);
    OxaPushButton *const buttons[] = { nullptr, m_legacy, m_global, m_none };
    connect(control, &SegmentedControl::chosen, this, [this, buttons](int i) {
        // A key's reason: the one that Qt believes although no key was pressed.
        if (buttons[i])
            buttons[i]->setFocus(Qt::ShortcutFocusReason);
        else if (QWidget *focused = window()->focusWidget())
            focused->clearFocus();
    });
    return control;
}

void FocusCard::setCustomRect(bool isCustom)
{
    const QRect rect = m_global->rect().adjusted(customInset, customInset, -customInset,
                                                 -customInset);
    m_global->setProperty("customFocusRect", isCustom ? QVariant(rect) : QVariant());
    m_global->update();
}
