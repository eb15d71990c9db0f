// SPDX-License-Identifier: Apache-2.0
#include "OxaMainWindow.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/OxaApplication.h>

#include <QDebug>

namespace {

constexpr char noApplicationWarning[] = "Could not register shortcuts for the main window";

} // namespace

OxaMainWindow::OxaMainWindow(QWidget *parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags), m_themeBlock(this, OxaThemeBlock::Form::StyledBackground)
{
    if (auto *app = ApplicationObject::find<OxaApplication>())
        app->registerMainWindowShortcuts(this);
    else
        QMessageLogger().warning() << noApplicationWarning;
    setAnimated(false);
}

void OxaMainWindow::onThemeChanged() { }
