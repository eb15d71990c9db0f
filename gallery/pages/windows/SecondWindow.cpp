// SPDX-License-Identifier: Apache-2.0
#include "SecondWindow.h"

#include "looks/Metrics.h"
#include "looks/ThemeSwitcher.h"
#include "shell/GalleryApplication.h"
#include "specimens/EmissionLog.h"
#include "widgets/Buttons.h"
#include "widgets/Labels.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QVBoxLayout>

namespace {

constexpr QSize firstSize(480, 320);

} // namespace

SecondWindow::SecondWindow(QWidget *parent) : OxaMainWindow(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("A second window"));
    // A main window does not take its parent's theme type.
    setThemeType(GalleryApplication::get()->themeSwitcher()->themeType());
    setCSS(QStringLiteral("$backgroundColors: gallery-window-background;"));
    resize(firstSize);

    auto *contents = new OxaWidget(this);
    OxaLabel *text = Labels::paragraph(
            tr("Type a shortcut, such as Ctrl+M: it works in all windows of the application."),
            contents);
    auto *log = new EmissionLog(contents);
    log->setMaximumHeight(QWIDGETSIZE_MAX);
    log->follow(OxaAppSignals::get(), QObject::staticMetaObject);
    OxaPushButton *closeButton = Buttons::make(tr("Close"), contents);
    connect(closeButton, &OxaPushButton::clicked, this, &QWidget::close);
    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(Metrics::gap, Metrics::gap, Metrics::gap, Metrics::gap);
    column->setSpacing(Metrics::spacing);
    column->addWidget(text);
    column->addWidget(log, 1);
    column->addWidget(closeButton, 0, Qt::AlignRight);
    setCentralWidget(contents);
    log->setFocus();
}
