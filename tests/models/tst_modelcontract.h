// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

/// Which scenarios keep Qt's contract of models, by QAbstractItemModelTester, and which break it.
/// The signals are the same in both; docs/list-models.md says what to avoid.
class tst_ModelContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsQtsContract_data();
    void keepsQtsContract();
    void breaksQtsContract_data();
    void breaksQtsContract();
    void breaksQtsContractWithRowsBelowItsRows();
    void letsRowsThatGrowTheListBypassAFilter();
    void paintsNothingWhenNothingIsReplaced();

    void letsASlotDeleteTheModel_data();
    void letsASlotDeleteTheModel();
};
