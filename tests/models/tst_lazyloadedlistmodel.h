// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

/// The slots stand in one source for each topic.
class tst_LazyLoadedListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The rows and the window, and the pages that the model asks for.
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
    void hasMovedWhenItAsks();
    void survivesAnyScrolledIndex();
    void holdsOneWindowOfItemsWhateverTheSize();

    // Who owns the items: each is alive as long as somebody holds it. The address sanitizer adds
    // that none is lost or deleted twice.
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

    // How the model gets its paging and its rows, and loses them.
    void ignoresPagingWithoutPages_data();
    void ignoresPagingWithoutPages();
    void startsAfreshWithNewPaging();
    void startsAfreshWithTheSamePaging();
    void resetsSilentlyWithoutRows();

    void changesItsSize_data();
    void changesItsSize();
    void changesItsCountAfterTheSignals();
    void unloadsBeforeItTellsOfAReset();
    void unloadsAfterItTellsOfASmallerSize();
    void shrinksTheWindowWithTheList_data();
    void shrinksTheWindowWithTheList();

    // The model against a window that goes row by row, through many random operations.
    void doesWhatAWindowDoesRowByRow();
};
