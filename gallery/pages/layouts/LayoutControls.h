// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LayoutSettings.h"

#include <UiElements/widgets/OxaWidget.h>

#include <functional>

class ControlPanel;
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
    template <typename Store>
    std::function<void(int)> changing(Store store);
    void addCommonRows();
    void addSmartRows();
    void addRatioRows();
    ControlPanel *addGroup();

    LayoutSettings m_settings;
    QVBoxLayout *m_column;
    ControlPanel *m_common;
    ControlPanel *m_gaps;
    ControlPanel *m_smart;
    ControlPanel *m_ratio;
};
