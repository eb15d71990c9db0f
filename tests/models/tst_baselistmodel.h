// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

/// The slots stand in one source for each topic.
class tst_BaseListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the rows are, how they are found, and their values.
    void leavesRoleNamesToSubclasses();
    void startsEmpty();
    void takesAParent();
    void showsCountAndHeaderAsProperties();
    void tellsOfANewHeaderOnly();
    void hasNoRowsBelowARow();
    void countsByTheVirtualRowCount();
    void letsNoViewEditItsRows();

    void givesTheValueOfARole();
    void givesNothingSilently_data();
    void givesNothingSilently();
    void warnsOfARoleThatTheRowLacks();
    void namesTheDynamicClassInTheWarning();

    void keepsSetDataFromTheOutside();
    void changesARoleThatTheRowHas();
    void changesAnyRoleThatTheRowHas();
    void reportsAnEqualValueToo();
    void refusesToSetData_data();
    void refusesToSetData();
    void refusesToSetARoleThatTheRowLacks();

    void findsRowsByTheirIds();
    void comparesIdsByteByByte();
    void findsTheLastOfARepeatedIdButReturnsTheFirst();
    void handsOutCopies();

    // How rows come in, and what the model emits meanwhile.
    void appends_data();
    void appends();
    void announcesTheWholeListAlsoWhenRowsAreSkipped();
    void appendsUpToTheLimit();
    void countsSkippedRowsForTheLimit();

    void appendsOrUpdates_data();
    void appendsOrUpdates();
    void updatesAlsoWhenTheNewRowsAreTooMany();

    void inserts_data();
    void inserts();
    void insertsAtNoPositionByAppending_data();
    void insertsAtNoPositionByAppending();
    void insertsUpToTheLimit();
    void insertsNothingAnywhere();

    // How rows are replaced and leave, and what the model emits meanwhile.
    void replaces_data();
    void replaces();
    void skipsARepeatedIdInAnEmptyModelOnly();
    void replacesAlsoWhereOnlyTheIdDiffers();
    void replacesAlsoWhereOnlyTheRolesDiffer();
    void comparesRolesInWhateverOrder();
    void comparesValuesAsQVariantDoes_data();
    void comparesValuesAsQVariantDoes();
    void replacesPastTheLimit();
    void removesTheTailThroughTheVirtualFunction();
    void warnsWhenTheIndexEndsBeforeTheRows();

    void removes_data();
    void removes();
    void removesBelowTheParentThatItIsGiven();
    void refusesToRemove_data();
    void refusesToRemove();

    void clearsWithAReset();

    // How roles of a row are written.
    void writesRolesAndAddsThoseThatTheRowLacks();
    void writesRolesByIdAndByIndexAlike();
    void reportsEqualRoleValuesToo();
    void leavesOutUnusableRoles();
    void reportsNothingWhenNoRoleIsUsable();
    void ignoresRowsThatAreNotThere();
    void ignoresARowPastTheVirtualRowCount();

    // What a slot finds in a model whose signal runs it.
    void changesItsRowsBetweenItsSignals();
    void findsTheNewPositionsInItsSignals();
    void updatesNoFurtherThanToAnIdWhoseRowASlotHasTaken();

    // The model against a plain list, through many random operations.
    void doesWhatAPlainListDoes();
    void keepsAProxySortedAndFiltered();
};
