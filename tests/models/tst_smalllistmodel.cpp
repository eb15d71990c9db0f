// SPDX-License-Identifier: Apache-2.0
#include "support/ModelLog.h"
#include "support/RandomSeed.h"
#include "support/TestMain.h"

#include <UiElements/models/SmallListModel.h>

#include <QTest>

#include <type_traits>

namespace {

constexpr int letterRole = Qt::UserRole + 1;
constexpr int numberRole = Qt::UserRole + 2;

using Rows = std::vector<std::unordered_map<int, QVariant>>;

Rows rowsOf(const QString &letters)
{
    Rows rows;
    for (const QChar letter : letters)
        rows.push_back({ { letterRole, QString(letter) } });
    return rows;
}

/// A list of letters.
class SmallLetters : public SmallListModel
{
public:
    explicit SmallLetters(const QString &letters = QString())
        : SmallListModel({ { letterRole, "letter" }, { numberRole, "number" } }, nullptr,
                         QStringLiteral("Letters"))
    {
        replace(rowsOf(letters));
    }

    QString text() const { return ModelLog::rows(*this, letterRole); }
};

} // namespace

Q_DECLARE_METATYPE(Rows)

/// What a SmallListModel holds, and what it emits.
class tst_SmallListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isMadeWithNamesParentAndHeader();
    void hasNoRowsBelowARow();
    void givesTheValueOfARole();
    void givesNothingSilently_data();
    void givesNothingSilently();
    void answersEverySectionWithItsHeader_data();
    void answersEverySectionWithItsHeader();
    void adds();
    void announcesAnEmptyListWithLastBeforeFirst();
    void removes_data();
    void removes();
    void comparesWholeRowsToRemove_data();
    void comparesWholeRowsToRemove();
    void replacesWithAReset_data();
    void replacesWithAReset();
    void clearsWithAResetAlsoWhenEmpty();
    void changesItsRowsBetweenItsSignals();
    void matchesAPlainList();
};

void tst_SmallListModel::isMadeWithNamesParentAndHeader()
{
    QVERIFY(!std::is_default_constructible_v<SmallListModel>);
    QObject parent;
    const QHash<int, QByteArray> names { { letterRole, "letter" } };
    const auto *model = new SmallListModel(names, &parent, 7);
    QCOMPARE(model->parent(), &parent);
    QCOMPARE(model->roleNames(), names);
    QCOMPARE(model->headerData(0, Qt::Horizontal), QVariant(7));
    QCOMPARE(model->rowCount(), 0);
}

void tst_SmallListModel::hasNoRowsBelowARow()
{
    const SmallLetters model(QStringLiteral("abc"));
    QCOMPARE(model.rowCount(QModelIndex()), 3);
    QCOMPARE(model.rowCount(model.index(0)), 0);
}

void tst_SmallListModel::givesTheValueOfARole()
{
    SmallLetters model;
    model.add({ { { letterRole, QStringLiteral("a") }, { numberRole, 7 } } });
    QCOMPARE(model.data(model.index(0), letterRole), QVariant(QStringLiteral("a")));
    QCOMPARE(model.data(model.index(0), numberRole), QVariant(7));
    QCOMPARE(model.data(0, numberRole), QVariant(7));
}

void tst_SmallListModel::givesNothingSilently_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("role");

    QTest::newRow("row 5 of three") << 5 << letterRole;
    QTest::newRow("the row at the row count") << 3 << letterRole;
    QTest::newRow("a negative row") << -1 << letterRole;
    QTest::newRow("a role that the row lacks") << 0 << numberRole;
    QTest::newRow("Qt::UserRole itself, although the row has it") << 0 << 256;
    QTest::newRow("a role of Qt's, although the row has it") << 0 << int(Qt::DisplayRole);
}

void tst_SmallListModel::givesNothingSilently()
{
    QFETCH(const int, row);
    QFETCH(const int, role);
    const SmallLetters longer(QStringLiteral("abcdefgh"));
    SmallLetters model;
    model.add(Rows(3, { { 0, 1 }, { 256, 1 }, { letterRole, 1 } }));
    QCOMPARE(model.data(row, role), QVariant());
    // An index of a longer model serves as a stale one.
    QCOMPARE(model.data(longer.index(row), role), QVariant());
}

void tst_SmallListModel::answersEverySectionWithItsHeader_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("role");

    QTest::newRow("the column's text") << 0 << Qt::Horizontal << int(Qt::DisplayRole);
    QTest::newRow("a row's text") << 1 << Qt::Vertical << int(Qt::DisplayRole);
    QTest::newRow("another role") << 0 << Qt::Horizontal << int(Qt::DecorationRole);
    QTest::newRow("no such section") << -7 << Qt::Horizontal << letterRole;
}

void tst_SmallListModel::answersEverySectionWithItsHeader()
{
    QFETCH(const int, section);
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const int, role);
    const SmallLetters model;
    QCOMPARE(model.headerData(section, orientation, role), QVariant(QStringLiteral("Letters")));
}

void tst_SmallListModel::adds()
{
    SmallLetters model;
    ModelLog log(model);
    model.add(rowsOf(QStringLiteral("ab")));
    model.add(rowsOf(QStringLiteral("a")));
    QCOMPARE(model.text(), QStringLiteral("aba"));
    QCOMPARE(log.take(), QStringLiteral("ins 0,1 | ins 2,2"));
}

void tst_SmallListModel::announcesAnEmptyListWithLastBeforeFirst()
{
    SmallLetters model(QStringLiteral("ab"));
    ModelLog log(model);
    model.add({});
    QCOMPARE(model.text(), QStringLiteral("ab"));
    QCOMPARE(log.take(), QStringLiteral("ins 2,1"));
}

void tst_SmallListModel::removes_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("emitted");

    const auto row = [](const char *name, const char *before, const char *given, const char *after,
                        const char *emitted) {
        QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(given)
                            << QString::fromLatin1(after) << QString::fromLatin1(emitted);
    };
    row("nothing", "abc", "", "abc", "");
    row("a row in the middle", "abc", "b", "ac", "rem 1,1");
    row("a row that isn't there", "abc", "x", "abc", "");
    row("rows in their given order", "abc", "cxa", "b", "rem 2,2 | rem 0,0");
    row("each row by itself", "abc", "ab", "c", "rem 0,0 | rem 0,0");
    row("one of two equal rows: the first", "bab", "b", "ab", "rem 0,0");
    row("two of two equal rows", "bab", "bb", "a", "rem 0,0 | rem 1,1");
    row("more copies than there are", "ab", "bbb", "a", "rem 1,1");
}

void tst_SmallListModel::removes()
{
    QFETCH(const QString, before);
    QFETCH(const QString, given);
    SmallLetters model(before);
    ModelLog log(model);
    model.remove(rowsOf(given));
    QTEST(model.text(), "after");
    QTEST(log.take(), "emitted");
}

void tst_SmallListModel::comparesWholeRowsToRemove_data()
{
    QTest::addColumn<Rows>("given");
    QTest::addColumn<int>("left");

    QTest::newRow("the same roles and values") << Rows { { { 257, 1 }, { 258, 2 } } } << 0;
    QTest::newRow("another value of one role") << Rows { { { 257, 1 }, { 258, 3 } } } << 1;
    QTest::newRow("a role less") << Rows { { { 257, 1 } } } << 1;
    QTest::newRow("a role more") << Rows { { { 257, 1 }, { 258, 2 }, { 259, 3 } } } << 1;
    QTest::newRow("another role") << Rows { { { 257, 1 }, { 259, 2 } } } << 1;
    QTest::newRow("a value that is equal for QVariant")
            << Rows { { { 257, 1 }, { 258, 2.0 } } } << 0;
}

void tst_SmallListModel::comparesWholeRowsToRemove()
{
    QFETCH(const Rows, given);
    SmallLetters model;
    model.replace({ { { 257, 1 }, { 258, 2 } } });
    model.remove(given);
    QTEST(model.rowCount(), "left");
}

void tst_SmallListModel::replacesWithAReset_data()
{
    QTest::addColumn<QString>("letters");

    QTest::newRow("by other rows") << QStringLiteral("xyz");
    QTest::newRow("by the present rows") << QStringLiteral("ab");
    QTest::newRow("by nothing") << QString();
}

void tst_SmallListModel::replacesWithAReset()
{
    QFETCH(const QString, letters);
    SmallLetters model(QStringLiteral("ab"));
    ModelLog log(model);
    model.replace(rowsOf(letters));
    QCOMPARE(model.text(), letters);
    QCOMPARE(log.take(), QStringLiteral("reset"));
}

void tst_SmallListModel::clearsWithAResetAlsoWhenEmpty()
{
    SmallLetters model(QStringLiteral("ab"));
    ModelLog log(model);
    model.clear();
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(log.take(), QStringLiteral("reset"));
    model.clear();
    QCOMPARE(log.take(), QStringLiteral("reset"));
}

void tst_SmallListModel::changesItsRowsBetweenItsSignals()
{
    SmallLetters model;
    SignalLog log;
    const auto note = [&log, &model] { log.note(model.text()); };
    connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this, note);
    connect(&model, &QAbstractItemModel::rowsInserted, this, note);
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, note);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, note);
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, note);
    connect(&model, &QAbstractItemModel::modelReset, this, note);
    model.add(rowsOf(QStringLiteral("ab")));
    model.remove(rowsOf(QStringLiteral("a")));
    model.replace(rowsOf(QStringLiteral("xy")));
    model.clear();
    QCOMPARE(log.take(), QStringLiteral(" | ab | ab | b | b | xy | xy | "));
}

void tst_SmallListModel::matchesAPlainList()
{
    std::mt19937 generator = seededGenerator();
    SmallLetters model;
    ModelLog log(model);
    QString letters;
    for (int i = 0; i < 100000; ++i) {
        QString given;
        for (int count = randomFrom(generator, 1, 4); count > 0; --count)
            given += QLatin1Char(char('a' + randomFrom(generator, 0, 4)));
        const QString before = letters + QLatin1Char('/') + given;
        QStringList emitted;
        switch (randomFrom(generator, 0, letters.size() > 12 ? 40 : 9)) {
        case 0:
            model.replace(rowsOf(given));
            letters = given;
            emitted += QStringLiteral("reset");
            break;
        case 1:
        case 2:
        case 3:
        case 4:
            emitted += QStringLiteral("ins %1,%2")
                               .arg(letters.size())
                               .arg(letters.size() + given.size() - 1);
            model.add(rowsOf(given));
            letters += given;
            break;
        default:
            model.remove(rowsOf(given));
            for (const QChar letter : qAsConst(given)) {
                const int row = letters.indexOf(letter);
                if (row < 0)
                    continue;
                letters.remove(row, 1);
                emitted += QStringLiteral("rem %1,%1").arg(row);
            }
        }
        QCOMPARE(before + model.text(), before + letters);
        QCOMPARE(before + log.take(), before + emitted.join(QLatin1String(" | ")));
    }
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_SmallListModel)
#include "tst_smalllistmodel.moc"
