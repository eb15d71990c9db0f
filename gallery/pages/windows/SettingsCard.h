// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class ContainerWidget;
class OxaStackedWidget;
class OxaSplitter;

/// Pages of settings, as an application has them: buttons to choose one of them, which are one stop
/// of Tab, and between the two a line to drag.
class SettingsCard : public Card
{
    Q_OBJECT

public:
    explicit SettingsCard(QWidget *parent = nullptr);

private:
    void addPage(const QString &title, QWidget *page);
    void addControls();

    OxaSplitter *m_splitter;
    ContainerWidget *m_chooser;
    OxaStackedWidget *m_pages;
};
