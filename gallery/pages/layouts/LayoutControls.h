// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LayoutSettings.h"

#include <UiElements/widgets/OxaWidget.h>

class QVBoxLayout;

/// The controls of the playground: those of all layouts, and below them those of the chosen one.
class LayoutControls : public OxaWidget
{
    Q_OBJECT

public:
    explicit LayoutControls(QWidget *parent = nullptr);

    const LayoutSettings &settings() const { return m_settings; }

    /// Chooses the layout, and shows its controls.
    void setKind(LayoutSettings::Kind kind);

Q_SIGNALS:
    /// The user changed something.
    void changed();

private:
    using ItemData = FixedItemRatioLayoutNotSupportScroll::ItemData;

    void addCommonRows();
    void addSmartRows();
    void addRatioRows();
    OxaWidget *addGroup();
    void addRow(QWidget *group, const QString &caption, int minimum, int maximum, int value,
                const QString &word, const std::function<void(int)> &store);
    void addRow(QWidget *group, const QString &caption, const QStringList &choices, int chosen,
                const std::function<void(int)> &store);

    LayoutSettings m_settings;
    QVBoxLayout *m_column;
    OxaWidget *m_common;
    OxaWidget *m_gaps;
    OxaWidget *m_smart;
    OxaWidget *m_ratio;
};
