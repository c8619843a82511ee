// SPDX-License-Identifier: MIT
#include "store/last_deletion.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/older_file.h"
#include "tests/test_program.h"
#include "tests/volume_fixture.h"

#include <functional>
#include <map>

namespace {

History HistoryOf(ListFixture& file)
{
    return Take(file.data->MountedVolume()->ReadHistory());
}

/// The origins of the rows of the open list, by their names.
std::map<QString, Origin> OriginsIn(ListFixture& file)
{
    std::map<QString, Origin> origins;
    for (const ObjectId row : file.rows->FillRows().rows)
        origins[file.Cells({ row })] = file.rows->ReadRow(row).origin;
    return origins;
}

} // namespace

class IdentityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRowKeepsItsOriginAndACopyGetsItsOwn()
    {
        ListFixture file(u"Pantry"_s);
        const ObjectId tea = file.Add({ u"tea"_s, u"1"_s });
        file.Add({ u"rice"_s, u"1"_s });
        const auto before = OriginsIn(file);
        QVERIFY(before.at(u"tea"_s) != before.at(u"rice"_s));
        const Record copy = file.rows->ReadRow(file.rows->CopyRow(tea));
        QVERIFY(copy && copy.origin != before.at(u"tea"_s) && copy.origin != kNoOrigin);
        QVERIFY(file.rows->DeleteRow(copy.oid));
        const ObjectId list = file.catalogue->FindList(u"Pantry"_s);
        LastDeletion deletion(*file.catalogue);
        const std::function<bool()> changes[] {
            [&] {
                return file.rows->ModifyRow(tea, std::vector { u"tea"_s, u"7"_s });
            },
            [&] { return file.rows->AdjustCount(tea, 1).has_value(); },
            [&] {
                return deletion.DeleteRow(list, *file.rows, file.rows->RowsNamed(u"rice"_s)[0])
                    && deletion.Undo();
            },
            [&] {
                return deletion.DeleteAllRows(list) == ListCatalogue::EmptyOutcome::Done
                    && deletion.Undo();
            },
            [&] { return deletion.DeleteList(list) && deletion.Undo(); },
        };
        for (const auto& change : changes) {
            QVERIFY(change());
            file.OpenList(file.catalogue->FindList(u"Pantry"_s));
            QCOMPARE(OriginsIn(file), before);
        }
    }

    void eachRunThatChangesContentsHasAState()
    {
        ListFixture file(u"Pantry"_s);
        const FileVersion first = HistoryOf(file).Latest();
        QVERIFY(first.revision >= 2);
        file.Restart();
        file.list.TableColSizes = u"100,"_s;
        const ObjectId list = file.catalogue->FindList(u"Pantry"_s);
        QVERIFY(file.catalogue->UpdateListOptions(list, file.list));
        QVERIFY(file.catalogue->PurgeDeleted());
        QCOMPARE(HistoryOf(file).Latest(), first);
        file.Add({ u"tea"_s });
        QCOMPARE(HistoryOf(file).Latest().revision, quint32 { 1 });
        QVERIFY(file.data->BeginTransaction());
        file.Add({ u"rice"_s });
        QVERIFY(file.data->EndTransaction(false));
        file.Add({ u"salt"_s });
        const History history = HistoryOf(file);
        QCOMPARE(history.Versions().size(), size_t { 2 });
        QCOMPARE(history.Latest().revision, quint32 { 2 });
        const FileVersion before { history.Latest().state, 1 };
        const FileVersion after { history.Latest().state, 3 };
        QVERIFY(history.Covers(first) && history.Covers(before) && !history.Covers(after));
        for (int run = 0; run < 70; ++run) {
            file.Restart();
            file.Add({ u"row"_s });
        }
        QCOMPARE(HistoryOf(file).Versions().size(), History::kMostStates);
        QVERIFY(!HistoryOf(file).Covers(first));
    }

    void aFileOfVersion1IsCarriedOverByItsFirstChange()
    {
        ListFixture file(u"Pantry"_s);
        file.Add({ u"tea"_s, u"1"_s });
        file.Add({ u"rice"_s, u"2"_s });
        file.data->Unmount();
        MakeOlder(file.Path());
        const QByteArray older = FileBytes(file.Path());
        // Two devices, whose copies are carried over apart.
        std::map<QString, Origin> origins;
        StateId state {};
        for (const bool isFirst : { true, false }) {
            WriteFileBytes(file.Path(), older);
            file.Restart();
            const auto unchanged = OriginsIn(file);
            const History before = HistoryOf(file);
            QCOMPARE(FileBytes(file.Path()), older);
            QByteArray kept;
            file.data->MountedVolume()->SetFirstChangeListener(
                [&] { kept = FileBytes(file.Path()); });
            file.Add({ u"salt"_s, u"3"_s });
            QCOMPARE(kept, older);
            const History after = HistoryOf(file);
            QCOMPARE(after.Versions().front(), before.Latest());
            QCOMPARE(after.Versions().size(), size_t { 2 });
            auto now = OriginsIn(file);
            const Origin salt = now.at(u"salt"_s);
            now.erase(u"salt"_s);
            QCOMPARE(now, unchanged);
            if (!isFirst) {
                QCOMPARE(now, origins);
                QCOMPARE(before.Latest().state, state);
            }
            file.Restart();
            QCOMPARE(OriginsIn(file).at(u"salt"_s), salt);
            QVERIFY(Take(file.data->MountedVolume()->Check()).empty());
            origins = now;
            state = before.Latest().state;
            file.data->Unmount();
        }
    }
};

QUILLORY_TEST(QCoreApplication, IdentityTest)
#include "identity_test.moc"
