// SPDX-License-Identifier: MIT
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/test_program.h"

namespace {

QString HomeList(ListCatalogue& catalogue)
{
    QStringList names;
    for (const auto& entry : catalogue.FillHomeList().lists)
        names << entry.name;
    return names.join(u' ');
}

InventoryList Named(const QString& name)
{
    InventoryList list = NewInventoryList();
    list.Name = name;
    return list;
}

} // namespace

class ListCatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aListComesBackAsItWasMade()
    {
        ListFixture file;
        InventoryList made = Named(u"A list of some length"_s);
        made.TableIcon = 42;
        made.TableOption = kWarnOnCount | kWarnOnExpiry;
        made.TableWarnStart = -3;
        made.columns.push_back({ u"Expiry Date"_s, 0, PropExpiryDate });
        made.columns.push_back({ QString(32, u'w'), 4, MakePropertyId(10007, CEVT_FILETIME) });
        const auto created = file.catalogue->CreateList(made);
        file.Restart();
        InventoryList read;
        QVERIFY(file.catalogue->OpenList(created.oid, read));
        QCOMPARE(read.Name, made.Name);
        QVERIFY(read.MapName.startsWith(u"A list of some l"_s) && read.MapName == made.MapName);
        QCOMPARE(read.TableIcon, qint16 { 42 });
        QCOMPARE(read.TableOption, made.TableOption);
        QCOMPARE(read.TableWarnStart, -3);
        QCOMPARE(read.TableWarnColour, 31U);
        QCOMPARE(read.TableExpiryColour, 5U);
        QCOMPARE(read.columnOrder, (std::vector<quint32> { 0, 1, 2, 3 }));
        QCOMPARE(read.columns.size(), size_t { 4 });
        QCOMPARE(read.columns[0].kind, kKindName);
        QCOMPARE(read.columns[1].name, u"Quantity"_s);
        QCOMPARE(read.columns[2].id, PropExpiryDate);
        QCOMPARE(read.columns[3].name, QString(32, u'w'));
        QCOMPARE(read.columns[3].id, made.columns[3].id);
        QCOMPARE(PropertyType(read.columns[3].id), quint16 { CEVT_FILETIME });
    }

    void aColumnOrderThatWasNeverWrittenReadsEmpty()
    {
        ListFixture file;
        const ObjectId oid = file.catalogue->AddList(Named(u"bare"_s));
        InventoryList read;
        read.columnOrder = { 7 };
        QVERIFY(file.catalogue->ReadListHeader(oid, read));
        QVERIFY(read.columnOrder.empty());
        QVERIFY(file.catalogue->UpdateListOptions(oid, read));
        QVERIFY(file.catalogue->ReadListDefinition(oid, &read).has_value());
        QVERIFY(read.columnOrder.empty());
        // Nor is one read that would be gone through for ever.
        read.columnOrder.assign(ListCatalogue::kMaxColumnOrder + 1, 0);
        QVERIFY(file.catalogue->UpdateListOptions(oid, read));
        QVERIFY(file.catalogue->ReadListHeader(oid, read));
        QVERIFY(read.columnOrder.empty());
    }

    void optionsAndNameAreWrittenApart()
    {
        ListFixture file;
        InventoryList list = Named(u"old"_s);
        const ObjectId oid = file.catalogue->CreateList(list).oid;
        QVERIFY(file.catalogue->RenameList(oid, u"new"_s));
        list.TableColSizes = u"80,45,"_s;
        list.columnOrder = { 1, 0 };
        list.TableIcon = 9;
        QVERIFY(file.catalogue->UpdateListOptions(oid, list));
        InventoryList read;
        file.Restart();
        QVERIFY(file.catalogue->OpenList(oid, read));
        QCOMPARE(read.Name, u"new"_s);
        QCOMPARE(read.TableColSizes, u"80,45,"_s);
        QCOMPARE(read.columnOrder, (std::vector<quint32> { 1, 0 }));
        QCOMPARE(read.TableIcon, qint16 { 0 });
        QVERIFY(file.catalogue->UpdateList(oid, list));
        QVERIFY(file.catalogue->ReadListHeader(oid, read));
        QCOMPARE(read.Name + QString::number(read.TableIcon), u"old9"_s);
        QVERIFY(!file.catalogue->UpdateList(static_cast<ObjectId>(9999), list));
        QVERIFY(!file.catalogue->RenameList(kNoObject, u"none"_s));
        QVERIFY(!file.catalogue->UpdateListOptions(kNoObject, list));
        QCOMPARE(file.catalogue->FillHomeList().lists.size(), size_t { 1 });
    }

    void twoColumnsUnderOneNumberLeaveNothingBehind()
    {
        ListFixture file;
        InventoryList list = Named(u"twice"_s);
        list.columns.push_back({ u"Expiry Date"_s, 0, PropExpiryDate });
        list.columns.push_back({ u"Expiry Date"_s, 0, PropExpiryDate });
        const auto outcome = file.catalogue->CreateList(list);
        QVERIFY(outcome.oid != kNoObject && !outcome.isCommitted);
        QCOMPARE(file.data->LastError(), ErrorNumber::AlreadyExists);
        file.Restart();
        QCOMPARE(HomeList(*file.catalogue), QString());
        QVERIFY(!file.data->Exists(ListCatalogue::kRowsType));
    }

    void deletingAListRemovesItsRows()
    {
        ListFixture file;
        const ObjectId oid = file.MakeFullList(u"gone"_s);
        file.Add({ u"row"_s });
        file.MakeFullList(u"kept"_s);
        QVERIFY(file.catalogue->DeleteList(oid));
        file.Restart();
        QCOMPARE(HomeList(*file.catalogue), u"kept"_s);
        QVERIFY(file.catalogue->PurgeDeleted());
        QCOMPARE(file.data->MountedVolume()->Databases()->size(), size_t { 2 });
        QVERIFY(!file.catalogue->DeleteList(oid));
    }

    void listsThatCannotBeReadAreToldOf()
    {
        constexpr qsizetype kLists = 80;
        constexpr qsizetype kPage = 4096;
        ListFixture file;
        for (qsizetype i = 0; i < kLists; ++i)
            QVERIFY(file.catalogue->AddList(Named(QString::number(i).repeated(40))) != kNoObject);
        QCOMPARE(file.catalogue->FillHomeList().lists.size(), size_t { kLists });
        file.catalogue.reset();
        file.data.reset();
        const QByteArray whole = FileBytes(file.Path());
        int told = 0;
        for (qsizetype place = kPage + 100; place < whole.size(); place += kPage) {
            QByteArray damaged = whole;
            damaged[place] = static_cast<char>(damaged[place] ^ 1);
            WriteFileBytes(file.Path(), damaged);
            DataVolume data;
            ListCatalogue catalogue(data);
            if (data.Mount(file.Path(), Disposition::OpenExisting) != ErrorNumber::None
                || catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
                continue;
            const auto [lists, error] = catalogue.FillHomeList();
            if (error == ErrorNumber::None)
                QCOMPARE(lists.size(), size_t { kLists });
            else
                ++told;
        }
        QVERIFY(told > 0);
    }

    void aCatalogueOfAnEarlierVersionKeepsOrdersOfColumns()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"early.idb"_s);
        const auto properties = ListCatalogue::RecordProperties();
        const std::vector<quint32> order { 1, 0 };
        for (const bool isEarly : { true, false }) {
            DataVolume data;
            ListCatalogue catalogue(data);
            QCOMPARE(data.Mount(path, Disposition::OpenAlways), ErrorNumber::None);
            InventoryList list = Named(u"Pantry"_s);
            list.columnOrder = order;
            if (isEarly)
                data.Create(ListCatalogue::kDatabaseName, ListCatalogue::kCatalogueType,
                    properties.first(properties.size() - 1),
                    std::span(&ListCatalogue::kByListName, 1));
            QCOMPARE(catalogue.OpenCatalogue(), ListCatalogue::OpenOutcome::Opened);
            QCOMPARE(HomeList(catalogue), isEarly ? QString() : u"Pantry"_s);
            if (isEarly)
                QVERIFY(catalogue.CreateList(list).isCommitted);
            QVERIFY(catalogue.OpenList(catalogue.FindList(u"Pantry"_s), list));
            QCOMPARE(list.columnOrder, order);
            QCOMPARE(data.PropertyCount(ListCatalogue::kCatalogueType), 9);
        }
    }

    void aListWithoutItsRowsCannotBeDeletedOrOpened()
    {
        ListFixture file;
        const ObjectId oid = file.catalogue->AddList(Named(u"hollow"_s));
        InventoryList read;
        QVERIFY(!file.catalogue->OpenList(oid, read));
        QVERIFY(!file.catalogue->DeleteList(oid));
        QCOMPARE(file.catalogue->DeleteAllRows(oid), ListCatalogue::EmptyOutcome::CannotOpen);
        QCOMPARE(HomeList(*file.catalogue), u"hollow"_s);
    }
};

QUILLORY_TEST(QCoreApplication, ListCatalogueTest)
#include "list_catalogue_test.moc"
