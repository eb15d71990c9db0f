// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"
#include "support/ColorSets.h"

#include <QAbstractItemModelTester>

#include <pages/colours/ColorSetModel.h>

namespace {

OxaColorSetMap someSets()
{
    return ColorSets::storeOf({
            ColorSets::make(QStringLiteral("text-primary"), { "#101010" }),
            ColorSets::make(QStringLiteral("badge-background"), { "#ff0000", "#00ff00" }),
            ColorSets::make(QStringLiteral("gallery-accent"), { "#800000ff" }),
    });
}

/// Returns the first column, with headings in brackets.
QString rowsOf(const ColorSetModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        const QString text = index.data().toString();
        rows += index.data(ColorSetModel::HeadingRole).toBool() ? QStringLiteral("[%1]").arg(text)
                                                                : text;
    }
    return rows.join(QLatin1Char('\n'));
}

} // namespace

/// ColorSetModel: the colour sets of a store as a table.
class tst_ColorSetModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsAndSortsSets();
    void showsSixStates();
    void filters_data();
    void filters();
    void keepsTheFilterForOtherSets();
    void disablesHeadings();
};

void tst_ColorSetModel::groupsAndSortsSets()
{
    ColorSetModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(rowsOf(model), QString());
    model.setColorSets(someSets());
    QCOMPARE(rowsOf(model),
             QStringLiteral("[Used by the library (2)]\nbadge-background\ntext-primary\n"
                            "[The gallery's own (1)]\ngallery-accent"));
    QCOMPARE(model.colorSetCount(), 3);
}

void tst_ColorSetModel::showsSixStates()
{
    ColorSetModel model;
    model.setColorSets(someSets());
    QStringList states;
    QStringList values;
    for (int column = 1; column < model.columnCount(); ++column) {
        states += model.headerData(column, Qt::Horizontal).toString();
        values += model.index(1, column).data().toString();
    }
    QCOMPARE(states.join(QLatin1Char(' ')),
             QStringLiteral("normal hovered pressed disabled focused checked"));
    QCOMPARE(values.join(QLatin1Char(' ')),
             QStringLiteral("#ff0000 #00ff00 #ff0000 #ff0000 #ff0000 #ff0000"));
    QCOMPARE(model.index(4, 1).data().toString(), QStringLiteral("#800000ff"));
    QCOMPARE(model.index(1, 2).data(ColorSetModel::ColorRole).value<QColor>(), QColor(0, 255, 0));
    QCOMPARE(model.index(1, 2).data(Qt::ToolTipRole).toString(),
             QStringLiteral("$(badge-background.hovered)"));
}

void tst_ColorSetModel::filters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rows");
    const QString badge = QStringLiteral("[Used by the library (1)]\nbadge-background");
    QTest::newRow("by a part of a name") << "back" << badge;
    QTest::newRow("in any case, without blanks around") << " BADGE " << badge;
    QTest::newRow("by a colour of any state") << "#00FF00" << badge;
    QTest::newRow("no match") << "no such set" << QString();
}

void tst_ColorSetModel::filters()
{
    QFETCH(const QString, text);
    QFETCH(const QString, rows);
    ColorSetModel model;
    model.setColorSets(someSets());
    model.setFilter(text);
    QCOMPARE(rowsOf(model), rows);
}

void tst_ColorSetModel::keepsTheFilterForOtherSets()
{
    ColorSetModel model;
    model.setFilter(QStringLiteral("accent"));
    model.setColorSets(someSets());
    QCOMPARE(model.colorSetCount(), 1);
}

void tst_ColorSetModel::disablesHeadings()
{
    ColorSetModel model;
    model.setColorSets(someSets());
    QCOMPARE(model.flags(model.index(0, 0)), Qt::NoItemFlags);
    QVERIFY(model.flags(model.index(1, 0)).testFlag(Qt::ItemIsEnabled));
    QVERIFY(!model.index(0, 1).data().isValid());
}

GALLERY_TEST_MAIN(tst_ColorSetModel)
#include "tst_colorsetmodel.moc"
