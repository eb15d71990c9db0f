// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <QSignalSpy>

#include <pages/icons/IconModel.h>
#include <support/SvgFiles.h>

namespace {

using Shown = IconModel::Shown;

/// Returns the names that \a model lists.
QString names(const IconModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names += model.index(row, IconModel::NameColumn).data().toString();
    return names.join(QLatin1Char(' '));
}

} // namespace

/// IconModel: SVG files as a table.
class tst_IconModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void listsTheFiles();
    void findsNamesByAPartOfThem_data();
    void findsNamesByAPartOfThem();
    void listsByOutcome_data();
    void listsByOutcome();
    void diagnosesAllFilesWhenIdle();
    void diagnosesAFileWhenAsked();
    void growsAsFilesAreDiagnosed();
    void countsAgainForOtherFiles();
    void namesItsColumns();

private:
    std::vector<IconFile> many(int count) const;

    const SvgFiles m_svgs {};
    std::vector<IconFile> m_files;
};

void tst_IconModel::initTestCase()
{
    const QString plain = m_svgs.square();
    const QString two = m_svgs.write(QStringLiteral("two.svg"),
                                     SvgFiles::document("<path d='M0 0H8V8Z'/><path d='M0 0H1'/>"));
    m_files = { { QStringLiteral("arrow-left"), plain, QString() },
                { QStringLiteral("Arrow-right"), two, QString() },
                { QStringLiteral("bell"), plain, QString() } };
}

void tst_IconModel::listsTheFiles()
{
    IconModel model;
    model.setFiles(m_files);
    QCOMPARE(names(model), QStringLiteral("arrow-left Arrow-right bell"));
    QCOMPARE(model.fileCount(), 3);
    QCOMPARE(model.columnCount(), 7);
    QCOMPARE(model.file(1).path, m_files[1].path);
    const QModelIndex hovered = model.index(2, IconModel::FirstStateColumn + 1);
    QCOMPARE(hovered.data(Qt::AccessibleTextRole).toString(), QStringLiteral("bell, hovered"));
}

void tst_IconModel::findsNamesByAPartOfThem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found");
    QTest::newRow("in any case") << "ARROW"
                                 << "arrow-left Arrow-right";
    QTest::newRow("with spaces around") << " bell  "
                                        << "bell";
    QTest::newRow("nothing") << "window"
                             << "";
    QTest::newRow("all") << ""
                         << "arrow-left Arrow-right bell";
}

void tst_IconModel::findsNamesByAPartOfThem()
{
    QFETCH(const QString, text);
    IconModel model;
    model.setFiles(m_files);
    model.setFilter(text);
    QTEST(names(model), "found");
}

void tst_IconModel::listsByOutcome_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<QString>("found");
    QTest::newRow("all") << int(Shown::All) << "arrow-left Arrow-right bell";
    QTest::newRow("files that take the colour") << int(Shown::Taking) << "arrow-left bell";
    QTest::newRow("files that do not") << int(Shown::Others) << "Arrow-right";
}

void tst_IconModel::listsByOutcome()
{
    QFETCH(const int, shown);
    IconModel model;
    model.setFiles(m_files);
    model.setShown(static_cast<Shown>(shown));
    QTRY_COMPARE(model.surveyedCount(), model.fileCount());
    QTEST(names(model), "found");
}

void tst_IconModel::diagnosesAllFilesWhenIdle()
{
    IconModel model;
    const QSignalSpy surveyed(&model, &IconModel::surveyed);
    model.setFiles(many(4000));
    QVERIFY(model.surveyedCount() < 4000);
    QTRY_COMPARE(model.surveyedCount(), 4000);
    QCOMPARE(model.takingCount(), 4000);
    QVERIFY(surveyed.count() > 1);
}

void tst_IconModel::diagnosesAFileWhenAsked()
{
    IconModel model;
    model.setFiles(many(4000));
    QCOMPARE(model.diagnosis(3999).outcome, IconDiagnosis::Outcome::TakesColor);
    QVERIFY(model.surveyedCount() < 4000);
}

void tst_IconModel::growsAsFilesAreDiagnosed()
{
    IconModel model;
    model.setShown(Shown::Taking);
    model.setFiles(many(4000));
    const int early = model.rowCount();
    QVERIFY(early < 4000);
    const QSignalSpy inserted(&model, &IconModel::rowsInserted);
    QTRY_COMPARE(model.rowCount(), 4000);
    QCOMPARE(inserted.count(), 4000 - early);
}

void tst_IconModel::countsAgainForOtherFiles()
{
    IconModel model;
    model.setFiles(many(10));
    QTRY_COMPARE(model.takingCount(), 10);
    model.setFiles(m_files);
    QTRY_COMPARE(model.surveyedCount(), 3);
    QCOMPARE(model.takingCount(), 2);
}

void tst_IconModel::namesItsColumns()
{
    const IconModel model;
    QStringList titles;
    for (int column = 0; column < model.columnCount(); ++column)
        titles += model.headerData(column, Qt::Horizontal).toString();
    QCOMPARE(titles.join(QLatin1Char(' ')),
             QStringLiteral("Icon normal hovered pressed disabled focused checked"));
    QCOMPARE(IconModel::stateOf(IconModel::NameColumn), QStringLiteral("normal"));
}

std::vector<IconFile> tst_IconModel::many(int count) const
{
    return std::vector<IconFile>(std::size_t(count), m_files.front());
}

GALLERY_TEST_MAIN(tst_IconModel)
#include "tst_iconmodel.moc"
