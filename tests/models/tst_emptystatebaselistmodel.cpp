// SPDX-License-Identifier: Apache-2.0
#include "support/ModelLog.h"
#include "support/TestMain.h"

#include <UiElements/models/EmptyStateBaseListModel.h>

#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>

#include <type_traits>

namespace {

class EmptyStateList : public EmptyStateBaseListModel
{
public:
    using EmptyStateBaseListModel::EmptyStateBaseListModel;

    QHash<int, QByteArray> roleNames() const override { return { { Qt::UserRole + 1, "text" } }; }
};

} // namespace

/// The four properties that an EmptyStateBaseListModel adds to its rows.
class tst_EmptyStateBaseListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesRoleNamesToSubclasses();
    void takesAParent();
    void addsItsPropertiesInOrder();
    void emitsTheSignalsOfABaseListModelToo();
    void emitsOneSignalForNewValues_data();
    void emitsOneSignalForNewValues();
    void treatsASizeThatDiffersInOneLengthAsNew_data();
    void treatsASizeThatDiffersInOneLengthAsNew();
};

void tst_EmptyStateBaseListModel::leavesRoleNamesToSubclasses()
{
    QVERIFY(std::is_abstract_v<EmptyStateBaseListModel>);
    QVERIFY((std::is_base_of_v<BaseListModel, EmptyStateBaseListModel>));
}

void tst_EmptyStateBaseListModel::takesAParent()
{
    QObject parent;
    const auto *model = new EmptyStateList(&parent);
    QCOMPARE(model->parent(), &parent);
}

void tst_EmptyStateBaseListModel::addsItsPropertiesInOrder()
{
    const QMetaObject &type = EmptyStateBaseListModel::staticMetaObject;
    QStringList names;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        names += QLatin1String(type.property(i).name());
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("emptyStateHeader emptyStateSubtitle emptyStateImage "
                            "emptyStateImageSize"));
}

void tst_EmptyStateBaseListModel::emitsTheSignalsOfABaseListModelToo()
{
    EmptyStateList model;
    ModelLog log(model);
    model.appendRows({ { "a", {} } });
    model.setHeader(QStringLiteral("Letters"));
    QCOMPARE(log.take(), QStringLiteral("ins 0,0 | count 1 | header"));
}

void tst_EmptyStateBaseListModel::emitsOneSignalForNewValues_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("next");

    const QVariant text(QStringLiteral("Nothing here"));
    QTest::newRow("the header") << QByteArray("emptyStateHeader") << QVariant(QString()) << text;
    QTest::newRow("the subtitle") << QByteArray("emptyStateSubtitle") << QVariant(QString())
                                  << text;
    QTest::newRow("the image") << QByteArray("emptyStateImage") << QVariant(QString()) << text;
    QTest::newRow("the image's size") << QByteArray("emptyStateImageSize")
                                      << QVariant(QSize(-1, -1)) << QVariant(QSize(16, 24));
}

void tst_EmptyStateBaseListModel::emitsOneSignalForNewValues()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, first);
    QFETCH(const QVariant, next);
    EmptyStateList model;
    QSignalSpy changed(&model, &EmptyStateBaseListModel::emptyStateDataChanged);
    const QMetaObject &type = EmptyStateBaseListModel::staticMetaObject;
    const QMetaProperty found = type.property(type.indexOfProperty(property.constData()));
    QCOMPARE(found.notifySignal().methodSignature(), QByteArray("emptyStateDataChanged()"));

    QCOMPARE(found.read(&model), first);
    QVERIFY(found.write(&model, first));
    QCOMPARE(changed.size(), 0);
    QVERIFY(found.write(&model, next));
    QCOMPARE(found.read(&model), next);
    QCOMPARE(changed.size(), 1);
    QVERIFY(found.write(&model, next));
    QCOMPARE(changed.size(), 1);
}

void tst_EmptyStateBaseListModel::treatsASizeThatDiffersInOneLengthAsNew_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("signalCount");

    QTest::newRow("neither") << QSize(16, 16) << 0;
    QTest::newRow("the width") << QSize(17, 16) << 1;
    QTest::newRow("the height") << QSize(16, 17) << 1;
}

void tst_EmptyStateBaseListModel::treatsASizeThatDiffersInOneLengthAsNew()
{
    QFETCH(const QSize, size);
    EmptyStateList model;
    model.setProperty("emptyStateImageSize", QSize(16, 16));
    QSignalSpy changed(&model, &EmptyStateBaseListModel::emptyStateDataChanged);
    model.setProperty("emptyStateImageSize", size);
    QTEST(int(changed.size()), "signalCount");
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_EmptyStateBaseListModel)
#include "tst_emptystatebaselistmodel.moc"
