// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/widgets/OxaWidget.h>

#include <vector>

class OxaLabel;

/// A bar of as many avatars as there is room for, and "+N" for the others.
class OverflowBar : public OxaWidget
{
    Q_OBJECT

public:
    /// Shows \a people, with the roles of RowRole, which must outlive the bar and stay as they are.
    explicit OverflowBar(QAbstractItemModel *people, QWidget *parent = nullptr);

    /// Returns the people for whom there is no room.
    const OverflowListProxyModel *hiddenPeople() const { return &m_hiddenPeople; }

    /// Returns the width that all people need.
    int fullWidth() const;

    /// Returns the width that "+N" needs.
    static int leastWidth();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int visibleCount() const;
    void fit();

    OverflowListProxyModel m_hiddenPeople;
    std::vector<OxaLabel *> m_avatars;
    OxaLabel *m_more;
};
