// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

/// The slots stand in one source for each topic.
class tst_BaseListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Rows, looking them up, and their values.
    void leavesRoleNamesToSubclasses();
    void startsEmpty();
    void takesAParent();
    void showsCountAndHeaderAsProperties();
    void emitsOnlyForANewHeader();
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

    // Adding rows, and the signals.
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
    void appendsRowsInsertedAtABadPosition_data();
    void appendsRowsInsertedAtABadPosition();
    void insertsUpToTheLimit();
    void insertsNothingAnywhere();

    // Replacing and removing rows, and the signals.
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

    // Writing the roles of a row.
    void writesRolesAndAddsThoseThatTheRowLacks();
    void writesRolesByIdAndByIndexAlike();
    void reportsEqualRoleValuesToo();
    void leavesOutUnusableRoles();
    void reportsNothingWhenNoRoleIsUsable();
    void ignoresRowsThatAreNotThere();
    void ignoresARowPastTheVirtualRowCount();

    // The state of the model while its signals are emitted.
    void changesItsRowsBetweenItsSignals();
    void findsTheNewPositionsInItsSignals();
    void stopsUpdatingAtAnIdWhoseRowASlotRemoved();

    // Many random operations, compared with a reference implementation.
    void matchesTheReferenceList();
    void keepsAProxySortedAndFiltered();
};
