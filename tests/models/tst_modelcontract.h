// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

/// Which scenarios keep Qt's contract of models, by QAbstractItemModelTester, and which don't. The
/// signals are the same in both; docs/list-models.md says what to avoid where they part.
class tst_ModelContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsQtsContract_data();
    void keepsQtsContract();
    void partsFromQtsContract_data();
    void partsFromQtsContract();
    void partsFromQtsContractWithRowsBelowItsRows();
    void letsRowsThatGrowTheListPassAFilterUnseen();
    void paintsNothingWhenNothingIsReplaced();

    void letsASlotDeleteTheModel_data();
    void letsASlotDeleteTheModel();
};
