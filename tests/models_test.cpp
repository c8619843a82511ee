// SPDX-License-Identifier: MIT
#include "app/home_list_model.h"
#include "listdef/column_table_model.h"
#include "rows/rows_model.h"
#include "tests/list_fixture.h"
#include "tests/test_program.h"

#include <QAbstractItemModelTester>

/// What views may expect of a model, through all its changes.
class ModelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHomeListIsAModel()
    {
        HomeListModel model;
        const QAbstractItemModelTester tester(&model);
        model.SetLists({ { ObjectId(1), u"a"_s, 0 }, { ObjectId(2), u"b"_s, 1 } });
        model.Add({ ObjectId(3), u"A"_s, 2 });
        const QPersistentModelIndex last = model.Find(ObjectId(3));
        // Where there is no room for it, it is read whole when it is pointed at.
        QCOMPARE(model.data(last, Qt::ToolTipRole), u"A"_s);
        model.Sort(SortDirection::Ascending);
        QCOMPARE(last.row(), 0);
        model.Sort(SortDirection::Descending);
        QCOMPARE(model.OidAt(last), ObjectId(3));
        model.SetRenamer([](ObjectId, const QString&) { return true; });
        QVERIFY(model.setData(model.index(0), u"c"_s, Qt::EditRole));
        model.Update({ ObjectId(1), u"d"_s, 3 });
        for (const quint32 oid : { 2U, 3U, 1U })
            model.Remove(ObjectId(oid));
        QCOMPARE(model.rowCount(), 0);
    }

    void theRowsAreAModel()
    {
        ListFixture file(u"Pantry"_s);
        for (const auto& name : { u"rice"_s, u"salt"_s, u"oats"_s })
            file.Add({ name, u"1"_s, u"top"_s, u"Checked"_s, u"1"_s });
        RowsModel model(*file.rows, file.list, file.context);
        const QAbstractItemModelTester tester(&model);
        const std::vector<ObjectId> rows = file.rows->FillRows().rows;
        model.SetRows({ rows[0], rows[1] });
        model.Insert(1, rows[2]);
        const QPersistentModelIndex last = model.index(2, Price);
        model.Refresh(1);
        model.RefreshAll();
        model.Remove(0);
        QCOMPARE(last.row(), 1);
        model.SetRows({});
        model.RefreshAll();
    }

    void theColumnsAreAModel()
    {
        ColumnTableModel model(NewInventoryList().columns);
        const QAbstractItemModelTester tester(&model);
        QCOMPARE(model.InsertColumn(0, u"first"_s, 0), 0);
        const QPersistentModelIndex first = model.index(0, 0);
        QCOMPARE(model.InsertExpiryDate(99), 3);
        model.MoveColumn(0, 1);
        QCOMPARE(first.row(), 1);
        model.MoveColumn(1, 0);
        QVERIFY(model.setData(first, u"again"_s, Qt::EditRole));
        model.DeleteColumn(0);
        QVERIFY(!first.isValid());
        while (!model.IsFull())
            model.InsertColumn(1, u"more"_s, 4);
    }
};

QUILLORY_TEST(QApplication, ModelsTest)
#include "models_test.moc"
