// SPDX-License-Identifier: Apache-2.0
#include "FilesPage.h"

FilesPage::FilesPage(Backend *, QWidget *parent) : OxaWidget(parent) { }
