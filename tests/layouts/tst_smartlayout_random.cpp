// SPDX-License-Identifier: Apache-2.0
#include "RandomItems.h"

#include <UiElements/layouts/SmartLayout.h>

using namespace RandomItems;

namespace {

constexpr int noLimit = -1;

/// What a SmartLayout is given beyond items.
struct Rules
{
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    int maximumItemsPerRow = noLimit;
    int fixedItemsPerRow = 0;
};

Rules randomRules(std::mt19937 &generator)
{
    const Qt::AlignmentFlag alignments[] = { Qt::AlignLeft, Qt::AlignCenter, Qt::AlignRight,
                                             Qt::AlignHCenter };
    Rules rules;
    rules.alignment = alignments[randomFrom(generator, 0, 3)];
    if (randomFrom(generator, 0, 1) == 1)
        rules.maximumItemsPerRow = randomFrom(generator, 1, 8);
    if (randomFrom(generator, 0, 3) == 0)
        rules.fixedItemsPerRow = randomFrom(generator, 1, 8);
    return rules;
}

using Smart = Blocks::Opened<SmartLayout>;

std::unique_ptr<Smart> make(const Case &given, const Rules &rules)
{
    auto layout = std::make_unique<Smart>(nullptr, given.margins, given.xSpacing, given.ySpacing,
                                          rules.alignment, rules.maximumItemsPerRow, false);
    layout->setFixedItemsPerRow(rules.fixedItemsPerRow);
    Blocks::fill(*layout, given.sizes);
    return layout;
}

std::vector<Row> placedRows(const Case &given, const Rules &rules)
{
    const auto layout = make(given, rules);
    layout->setGeometry(given.rect);
    return rowsByTop(Blocks::rects(*layout));
}

/// Returns what is wrong in where rows begin and end.
QString wrongInAlignment(const std::vector<Row> &rows, const QRect &effective,
                         Qt::AlignmentFlag alignment)
{
    for (const Row &row : rows) {
        const int before = row.front().left() - effective.left();
        const int after = effective.right() - row.back().right();
        if (alignment == Qt::AlignLeft && before != 0)
            return QStringLiteral("a row does not begin at the left");
        if (alignment == Qt::AlignCenter && qAbs(before - after) > 1)
            return QStringLiteral("a row is off the centre by %1").arg(before - after);
        const bool isPushed = alignment != Qt::AlignLeft && alignment != Qt::AlignCenter;
        if (isPushed && after != 0)
            return QStringLiteral("a row does not end at the right");
    }
    return {};
}

/// Returns what is wrong in how rows that stand at the left break for width.
QString wrongInBreaks(const std::vector<Row> &rows, const Case &given)
{
    const int edge = given.effective().right();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].size() > 1 && rows[i].back().right() >= edge)
            return QStringLiteral("an item that does not fit has not wrapped");
        if (i == 0)
            continue;
        const int end = rows[i - 1].back().right() + 1 + given.xSpacing + rows[i].front().width();
        if (end <= edge)
            return QStringLiteral("an item that fits has wrapped");
    }
    return {};
}

} // namespace

/// What holds of a SmartLayout with any items.
class tst_SmartLayoutRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesAgree();
    void itemsKeepTheirSizesAndOrder();
    void itemsDoNotOverlap();
    void rowsStandBelowEachOther();
    void alignsEveryRow();
    void breaksLinesWhereItHasTo();
    void rowsNeverGrowUnderALimit();
    void fillsRowsOfAFixedNumber();
    void needsTheHeightOfAllRows();
};

void tst_SmartLayoutRandom::passesAgree()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        return wrongInPasses(*make(given, randomRules(generator)), given.rect);
    });
}

void tst_SmartLayoutRandom::itemsKeepTheirSizesAndOrder()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        std::vector<QSize> sizes;
        for (const Row &row : placedRows(given, randomRules(generator))) {
            for (const QRect &rect : row)
                sizes.push_back(rect.size());
        }
        return sizes == given.sizes ? QString() : QStringLiteral("other sizes");
    });
}

void tst_SmartLayoutRandom::itemsDoNotOverlap()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const auto layout = make(given, randomRules(generator));
        layout->setGeometry(given.rect);
        return haveOverlap(Blocks::rects(*layout)) ? Blocks::text(*layout) : QString();
    });
}

void tst_SmartLayoutRandom::rowsStandBelowEachOther()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        int top = given.effective().top();
        for (const Row &row : placedRows(given, randomRules(generator))) {
            for (const QRect &rect : row) {
                if (rect.top() != top)
                    return QStringLiteral("at %1, not %2").arg(rect.top()).arg(top);
            }
            top = endOf(row) + given.ySpacing;
        }
        return QString();
    });
}

void tst_SmartLayoutRandom::alignsEveryRow()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const Rules rules = randomRules(generator);
        return wrongInAlignment(placedRows(given, rules), given.effective(), rules.alignment);
    });
}

void tst_SmartLayoutRandom::breaksLinesWhereItHasTo()
{
    forRandomCases([](const Case &given, std::mt19937 &) {
        return wrongInBreaks(placedRows(given, Rules()), given);
    });
}

void tst_SmartLayoutRandom::rowsNeverGrowUnderALimit()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        Rules rules = randomRules(generator);
        rules.fixedItemsPerRow = 0;
        rules.maximumItemsPerRow = randomFrom(generator, 1, 8);
        std::size_t most = std::size_t(rules.maximumItemsPerRow);
        for (const Row &row : placedRows(given, rules)) {
            if (row.size() > most)
                return QStringLiteral("%1 items under %2").arg(row.size()).arg(most);
            most = row.size();
        }
        return QString();
    });
}

void tst_SmartLayoutRandom::fillsRowsOfAFixedNumber()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        Rules rules = randomRules(generator);
        rules.fixedItemsPerRow = randomFrom(generator, 1, 8);
        std::size_t rest = given.sizes.size();
        for (const Row &row : placedRows(given, rules)) {
            if (row.size() != qMin(rest, std::size_t(rules.fixedItemsPerRow)))
                return QStringLiteral("%1 of %2").arg(row.size()).arg(rules.fixedItemsPerRow);
            rest -= row.size();
        }
        return QString();
    });
}

void tst_SmartLayoutRandom::needsTheHeightOfAllRows()
{
    forRandomCases([](const Case &given, std::mt19937 &generator) {
        const auto layout = make(given, randomRules(generator));
        const int height = layout->doLayout(given.rect, true);
        const int end = endOf(rowsByTop(Blocks::rects(*layout)).back());
        return height == end - given.rect.y() + given.margins.bottom()
                ? QString()
                : QStringLiteral("%1 for a last row that ends at %2").arg(height).arg(end);
    });
}

QTEST_APPLESS_MAIN(tst_SmartLayoutRandom)
#include "tst_smartlayout_random.moc"
