// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

/// The slots stand in one source for each topic.
class tst_LazyLoadedListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The rows, the window, and requests for pages.
    void startsWithoutPagingAndRows();
    void takesAParent();
    void hasNoValuesOfItsOwn();
    void hasItsRowsBelowARowToo();
    void convertsBetweenRowsAndPages();

    void staysWhereItIsWithoutPaging();
    void movesTheWindow_data();
    void movesTheWindow();
    void keepsWhatIsStillInReach_data();
    void keepsWhatIsStillInReach();
    void movesTheWindowBeforeItAsks();
    void survivesAnyScrolledIndex();
    void holdsOneWindowOfItemsWhateverTheSize();

    // The ownership of items. The address sanitizer checks that none leaks or is deleted twice.
    void cleanup();

    void takesAnItem();
    void givesItemsByIndexAndByModelIndex();
    void unloadsARowThatIsGivenNull();
    void leavesARefusedItemToTheCaller_data();
    void leavesARefusedItemToTheCaller();
    void deletesAReplacedItem();
    void deletesTheOldItemAlsoWhenItIsTheNewOne();
    void growsUpToAnItemPastTheEnd();
    void growsFromAnEmptyList();

    void takesThePage_data();
    void takesThePage();
    void leavesALatePageToTheCaller_data();
    void leavesALatePageToTheCaller();
    void deletesTheRestOfAShortPage();
    void leavesItemsPastTheWindowToTheCaller();

    void deletesItsItemsAtTheEnd();
    void deletesItsItemsOnReset();
    void deletesItemsThatItNoLongerHolds();

    // Setting paging and size, and resetting them.
    void ignoresPagingThatMakesNoWindow_data();
    void ignoresPagingThatMakesNoWindow();
    void startsOverWithNewPaging();
    void startsOverWithTheSamePaging();
    void resetsSilentlyWithoutRows();

    void changesItsSize_data();
    void changesItsSize();
    void changesItsCountAfterTheSignals();
    void unloadsBeforeItEmitsAReset();
    void unloadsAfterItEmitsASmallerSize();
    void shrinksTheWindowWithTheList_data();
    void shrinksTheWindowWithTheList();

    // Many random operations, compared with a reference implementation.
    void matchesTheReferenceWindow();
};
