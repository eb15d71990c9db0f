// SPDX-License-Identifier: Apache-2.0
#include "tst_lazyloadedlistmodel.h"

#include "LazyLetterModel.h"
#include "support/RandomSeed.h"

#include <QTest>

namespace {

/// A simple reference implementation of LazyLoadedListModel. A row that is not loaded is a dot.
class ReferenceWindow
{
public:
    int pageSize = 0;
    int pages = 0;
    int size = 0;
    int start = 0;
    QString letters;     ///< Of the window.
    QStringList emitted; ///< By the last operation, as in ModelLog.

    void setPaging(int newPageSize, int newPages)
    {
        if (newPageSize == 0 || newPages == 0)
            return;
        pageSize = newPageSize;
        pages = newPages;
        reset();
    }

    void reset()
    {
        unload();
        if (size > 0)
            note("rem", 0, size - 1);
        size = 0;
        start = 0;
    }

    void setSize(int newSize)
    {
        if (newSize > size)
            note("ins", size, newSize - 1);
        if (newSize < size) {
            note("rem", newSize, size - 1);
            if (newSize < start) {
                start = 0;
                unload();
            }
            for (int row = newSize; row < start + letters.size(); ++row)
                drop(row);
        }
        size = newSize;
    }

    void scroll(int row)
    {
        if (pages == 0)
            return;
        const int target = qMax(row - pageSize, 0) / pageSize * pageSize;
        const int distance = qAbs(target - start) / pageSize;
        const bool isDown = target > start;
        if (distance == 0)
            return;
        while (start != target) {
            isDown ? letters.remove(0, 1).append(QLatin1Char('.'))
                   : letters.prepend(QLatin1Char('.')).remove(letters.size() - 1, 1);
            start += isDown ? 1 : -1;
        }
        if (distance >= pages) {
            emitted += QStringLiteral("load from %1").arg(start / pageSize);
            return;
        }
        QStringList numbers;
        for (int i = 0; i < distance; ++i)
            numbers += QString::number(start / pageSize + i + (isDown ? pages - distance : 0));
        emitted += QStringLiteral("load ") + numbers.join(QLatin1Char(','));
    }

    /// Returns whether the row takes the letter.
    bool setLetter(int row, QChar letter)
    {
        if (!isInWindow(row))
            return false;
        letters[row - start] = letter;
        if (row < size) {
            note("chg", row, row);
            return true;
        }
        note("ins", size, row);
        size = row + 1;
        return true;
    }

    bool isInWindow(int row) const { return row >= start && row < start + letters.size(); }

    bool hasPage(int page) const
    {
        return pages > 0 && page >= start / pageSize && page < start / pageSize + pages;
    }

    /// Returns how many of \a given are taken.
    int setPage(int page, const QString &given)
    {
        if (given.isEmpty() || !hasPage(page))
            return 0;
        int taken = 0;
        for (int i = 0; i < given.size(); ++i)
            taken += setLetter(page * pageSize + i, given.at(i)) ? 1 : 0;
        if (given.size() < pageSize) {
            for (int i = given.size(); i < pageSize; ++i)
                drop(page * pageSize + i);
            setSize(page * pageSize + given.size());
        }
        return taken;
    }

private:
    void note(const char *what, int first, int last)
    {
        emitted += QStringLiteral("%1 %2,%3").arg(QLatin1String(what)).arg(first).arg(last);
    }

    void unload() { letters = QString(pageSize * pages, QLatin1Char('.')); }

    void drop(int row)
    {
        if (isInWindow(row))
            letters[row - start] = QLatin1Char('.');
    }
};

constexpr int operations = 100000;

QString randomLetters(std::mt19937 &generator, int least, int most)
{
    QString letters;
    for (int count = randomFrom(generator, least, most); count > 0; --count) {
        const int letter = randomFrom(generator, 0, 26);
        letters += letter == 26 ? QLatin1Char('.') : QLatin1Char(char('a' + letter));
    }
    return letters;
}

/// Does one operation on both, and returns its name. Items that the model refuses are deleted.
QString doOne(std::mt19937 &generator, LazyLetterModel &model, ReferenceWindow &reference)
{
    const auto from = [&](int lowest, int highest) {
        return randomFrom(generator, lowest, highest);
    };
    const int near = reference.start + from(-10, int(reference.letters.size()) + 10);
    switch (from(0, 1000) == 0 ? 6 : from(0, 5)) {
    case 0:
    case 1: {
        const int row = from(0, 9) == 0 ? from(-5, 400) : near;
        reference.scroll(row);
        model.setScrolledIndex(row);
        return QStringLiteral("scroll to %1").arg(row);
    }
    case 2: {
        const int size = from(0, 3) == 0 ? from(0, 400) : qMax(near, 0);
        reference.setSize(size);
        model.setSize(size);
        return QStringLiteral("size %1").arg(size);
    }
    case 3: {
        const QString letter = randomLetters(generator, 1, 1);
        const QVector<QStandardItem *> item = LazyLetterModel::itemsOf(letter);
        const bool isTaken = reference.setLetter(near, letter.front());
        if (model.setItemAtIndex(near, item.front()) != isTaken)
            return QStringLiteral("mistaken row %1").arg(near);
        if (!isTaken)
            delete item.front();
        return QStringLiteral("row %1 %2").arg(near).arg(letter);
    }
    case 4:
    case 5: {
        const int page = model.indexToPage(near);
        const int most = from(0, 3) == 0 ? reference.pageSize + 2 : reference.pageSize;
        const QString letters = randomLetters(generator, from(0, 3) == 0 ? 0 : most, most);
        const QVector<QStandardItem *> items = LazyLetterModel::itemsOf(letters);
        const int taken = reference.setPage(page, letters);
        model.setItemsAtPage(page, items);
        qDeleteAll(items.begin() + taken, items.end());
        return QStringLiteral("page %1 %2").arg(page).arg(letters);
    }
    default: {
        const int pageSize = from(0, 5);
        const int pages = from(0, 5);
        reference.setPaging(pageSize, pages);
        model.setPagingConfig(unsigned(pageSize), unsigned(pages));
        return QStringLiteral("paging %1 %2").arg(pageSize).arg(pages);
    }
    }
}

} // namespace

void tst_LazyLoadedListModel::matchesTheReferenceWindow()
{
    std::mt19937 generator = seededGenerator();
    LazyLetterModel model;
    ReferenceWindow reference;
    ModelLog log(model);
    for (int i = 0; i < operations; ++i) {
        reference.emitted.clear();
        const QString before = QStringLiteral("%1 %2").arg(reference.start).arg(reference.letters);
        const QString name = doOne(generator, model, reference);
        const QString what = QStringLiteral("%1: %2 of %3: ").arg(i).arg(name, before);
        QCOMPARE(what + model.window(), what + reference.letters);
        QCOMPARE(what + log.take(), what + reference.emitted.join(QLatin1String(" | ")));
        QCOMPARE(model.getStartIndex(), reference.start);
        QCOMPARE(model.rowCount(), reference.size);
        const int loaded = reference.letters.size() - reference.letters.count(QLatin1Char('.'));
        QCOMPARE(CountedItem::alive, loaded);
    }
}
