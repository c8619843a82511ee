// SPDX-License-Identifier: MIT
#include "propdb/detail/confined_vfs.h"
#include "store/salvage.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/page_damage.h"
#include "tests/test_program.h"

#include <sqlite3.h>

#include <algorithm>
#include <tuple>

namespace {

constexpr int kRows = 400;
/// The first byte of a page.
constexpr char kTableInner = 0x05;

QString NameOfRow(int row)
{
    return u"row %1"_s.arg(row, 4, 10, QChar(u'0'));
}

/// A data file of two lists, one large and one small, for damaging.
class Damage
{
public:
    Damage()
    {
        ListFixture file;
        // What tells of the tables lies before the rows.
        const ObjectId pantry = file.MakeFullList(u"Pantry"_s);
        file.MakeFullList(u"Tools"_s);
        Fill(file, 3);
        file.OpenList(pantry);
        Fill(file, kRows);
        file.rows.reset();
        file.data->Unmount();
        if (!QFile::copy(file.Path(), Path()))
            qFatal("the data file cannot be copied");
        bytes = FileBytes(Path());
    }

    QString Path() const { return m_folder.filePath(u"damaged.idb"_s); }
    QString Target() const { return m_folder.filePath(u"saved.idb"_s); }
    /// The number, from 0, of a page of this kind that holds a text and not another.
    qsizetype PageOf(char kind, const QString& text, const QString& other = u"no such text"_s) const
    {
        for (qsizetype page = 1; page < bytes.size() / kPageSize; ++page) {
            const QByteArray content = bytes.mid(page * kPageSize, kPageSize);
            if (content[0] == kind && content.contains(StoredText(text))
                && !content.contains(StoredText(other)))
                return page;
        }
        qFatal("there is no such page");
    }
    qsizetype InnerPage() const
    {
        for (qsizetype page = 1; page < bytes.size() / kPageSize; ++page) {
            if (bytes[page * kPageSize] == kTableInner)
                return page;
        }
        qFatal("there is no such page");
    }
    void FlipBit(qsizetype page)
    {
        constexpr qsizetype kSomewhere = 3001;
        char& byte = bytes.data()[page * kPageSize + kSomewhere];
        byte = static_cast<char>(byte ^ 4);
        Write();
    }
    void Lose(qsizetype page, qsizetype from = 0, qsizetype size = kPageSize)
    {
        bytes.replace(page * kPageSize + from, size, QByteArray(size, '\xFF'));
        Write();
    }
    void Write() const { WriteFileBytes(Path(), bytes); }
    /// What the name of the large list's table ends in.
    QByteArray TableNumber() const
    {
        DataVolume data;
        ListCatalogue catalogue(data);
        InventoryList list;
        const bool isOpen = data.Mount(Path(), Disposition::OpenExisting) == ErrorNumber::None
            && catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened
            && catalogue.OpenList(catalogue.FindList(u"Pantry"_s), list);
        if (!isOpen)
            qFatal("the list cannot be opened");
        return list.MapName.mid(6).toUtf8() + " ("
            + QByteArray::number(static_cast<quint32>(data.DatabaseOid(ListCatalogue::kRowsType)))
            + ')';
    }

    QByteArray bytes;

private:
    QTemporaryDir m_folder;

    static void Fill(ListFixture& file, int rows)
    {
        if (!file.data->BeginTransaction())
            qFatal("no transaction");
        // In no order, so that the pages of the table and of the index hold different rows.
        for (int i = 0; i < rows; ++i) {
            const int row = i * 7 % rows;
            file.Add({ NameOfRow(row), QString::number(row), u"shelf"_s, u"Checked"_s, u"1.25"_s,
                u"-7"_s, u"2/29/2024"_s });
        }
        file.Add({ u"long"_s, {}, QString(20'000, u'x') });
        if (!file.data->EndTransaction(true))
            qFatal("no commit");
    }
};

const QString kWhole = u"Pantry 401 Tools 4"_s;

/// Changes the file as another program does, or with `meanwhile`, which is called before the end of
/// the transaction, as ours.
void RunSql(const QString& path, const QByteArray& sql, const std::function<void()>& meanwhile)
{
    const ConfinedVfs::Permit permit(QFile::encodeName(path));
    sqlite3* connection = nullptr;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &connection, SQLITE_OPEN_READWRITE,
            meanwhile ? ConfinedVfs::Name() : nullptr)
            != SQLITE_OK
        || sqlite3_exec(connection, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(connection));
    if (meanwhile)
        meanwhile();
    sqlite3_close(connection);
}

/// What stands in a salvaged file: each list's name with its number of rows; the name ends at the
/// first digit. "wrong" if a row is not as it was.
QString Saved(const QString& path)
{
    DataVolume data;
    ListCatalogue catalogue(data);
    if (data.Mount(path, Disposition::OpenExisting) != ErrorNumber::None
        || !data.MountedVolume()->Check()->empty()
        || catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
        return u"unreadable"_s;
    QStringList lists;
    const ValueContext context = TestContext();
    for (const auto& entry : catalogue.FillHomeList().lists) {
        InventoryList list;
        if (!catalogue.OpenList(entry.oid, list) || list.columns.size() != 8)
            return u"unreadable"_s;
        RowStore store(data, list, context);
        const auto rows = store.FillRows().rows;
        for (const ObjectId row : rows) {
            QStringList texts;
            for (const ColumnDefinition& column : list.columns)
                texts << store.FormatCellText(column.id, row);
            const int number = texts[1].toInt();
            const bool isRight = texts[0] == u"long"_s ? texts[2].size() == 20'000
                                                       : texts.join(u' ')
                    == u"%1 %2 shelf  1.25 -7 2/29/2024 "_s.arg(NameOfRow(number)).arg(number);
            if (!isRight)
                return u"wrong: "_s + texts.join(u' ');
        }
        const auto digit = std::find_if(
            entry.name.begin(), entry.name.end(), [](QChar unit) { return unit.isDigit(); });
        lists << entry.name.left(digit - entry.name.begin())
                + (digit == entry.name.end() ? u""_s : u"#"_s) + u' '
                + QString::number(rows.size());
    }
    return lists.join(u' ');
}

} // namespace

class SalvageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatCanBeReadIsSaved()
    {
        enum Damaged
        {
            Nothing,
            IndexPage,
            PageAboveRows,
            ListsPage,
        };
        for (const Damaged damage : { Nothing, IndexPage, PageAboveRows, ListsPage }) {
            Damage file;
            if (damage == IndexPage)
                file.Lose(file.PageOf(kIndexLeaf, NameOfRow(200)));
            else if (damage == PageAboveRows)
                file.Lose(file.InnerPage());
            else if (damage == ListsPage)
                file.Lose(file.PageOf(kTableLeaf, u"Pantry"_s, u"InvLists"_s));
            const auto report = SalvageLists(file.Path(), file.Target());
            QVERIFY(report);
            QCOMPARE(report->mayListsBeLost, damage == ListsPage);
            QCOMPARE(Saved(file.Target()),
                damage == ListsPage ? u"Pantry# 401 Tools# 4"_s : u"Pantry 401 Tools 4"_s);
            QCOMPARE(FileBytes(file.Path()), file.bytes);
            const auto examined = ExamineLists(file.Path());
            QVERIFY(examined);
            QCOMPARE(examined->lists.size(), size_t { 2 });
            QCOMPARE(examined->lists.front().rows, kRows + 1);
            QCOMPARE(examined->lists.front().lostRows, 0);
        }
    }

    void aCutFileLosesItsEnd()
    {
        Damage whole;
        const qsizetype rowsPage = whole.PageOf(kTableLeaf, NameOfRow(200));
        for (const bool isCut : { false, true }) {
            Damage file;
            if (isCut)
                file.bytes.truncate(rowsPage * kPageSize + 100);
            file.Write();
            if (!isCut)
                file.Lose(rowsPage);
            const auto report = SalvageLists(file.Path(), file.Target());
            QVERIFY(report);
            QCOMPARE(report->mayListsBeLost, false);
            const SalvageReport::List& pantry = report->lists.front();
            QCOMPARE(pantry.name, u"Pantry"_s);
            QVERIFY(!pantry.isComplete);
            QVERIFY2(pantry.rows < kRows && pantry.rows > kRows / 10,
                qPrintable(QString::number(pantry.rows)));
            if (!isCut)
                QCOMPARE(pantry.rows + pantry.lostRows, kRows + 1);
            QVERIFY2(Saved(file.Target()).startsWith(u"Pantry %1"_s.arg(pantry.rows)),
                qPrintable(Saved(file.Target())));
            QCOMPARE(FileBytes(file.Path()), file.bytes);
        }
    }

    void aListWithoutItsColumnOfNamesIsSaved()
    {
        constexpr int kLists = 60;
        ListFixture file;
        for (int i = 0; i < kLists; ++i) {
            InventoryList list = NewInventoryList();
            list.Name = u"List"_s;
            file.OpenList(file.catalogue->CreateListRedrawing(list).oid);
            file.Add({ u"row"_s, u"7"_s });
        }
        file.rows.reset();
        file.data->Unmount();
        // The first page of columns. The first list of which the next page has something has lost
        // its first column.
        QByteArray bytes = FileBytes(file.Path());
        qsizetype page = bytes.size() / kPageSize;
        do {
            --page;
        } while (bytes[page * kPageSize] != kIndexLeaf
            || !bytes.mid(page * kPageSize, kPageSize).contains(StoredText(u"TableWarnStart"_s)));
        WriteFileBytes(
            file.Path(), bytes.replace(page * kPageSize, kPageSize, QByteArray(kPageSize, '\0')));
        const QTemporaryDir folder;
        const QString target = folder.filePath(u"saved.idb"_s);
        const auto report = SalvageLists(file.Path(), target);
        QCOMPARE(report.Error(), ErrorNumber::None);
        QVERIFY(report->lists.size() > kLists / 4 && report->lists.size() < kLists);
        QVERIFY(!report->lists.front().isComplete);

        DataVolume data;
        QCOMPARE(data.Mount(target, Disposition::OpenExisting), ErrorNumber::None);
        ListCatalogue catalogue(data);
        QCOMPARE(catalogue.OpenCatalogue(), ListCatalogue::OpenOutcome::Opened);
        InventoryList list;
        QVERIFY(catalogue.OpenList(catalogue.FindList(report->lists.front().name), list));
        QCOMPARE(list.columns.size(), size_t { 2 });
        const ValueContext context = TestContext();
        RowStore store(data, list, context);
        const ObjectId row = store.FillRows().rows.at(0);
        QCOMPARE(store.FormatCellText(PropName, row), QString());
        QCOMPARE(store.FormatCellText(PropCount, row), u"7"_s);
    }

    void whereNothingIsLeftNothingIsMade()
    {
        Damage file;
        const QByteArray whole = file.bytes;
        const QByteArray firstPage = QByteArray(kPageSize, '\0') + whole.mid(kPageSize);
        // The columns of all lists.
        file.Lose(file.PageOf(kIndexLeaf, u"Shelf"_s));
        const std::pair<QByteArray, ErrorNumber> cases[] { { firstPage, ErrorNumber::FileCorrupt },
            { file.bytes, ErrorNumber::FileCorrupt }, { whole.left(2000), ErrorNumber::BadFormat },
            { QByteArray(10'000, 'x'), ErrorNumber::BadFormat }, { {}, ErrorNumber::BadFormat } };
        for (const auto& [bytes, error] : cases) {
            file.bytes = bytes;
            file.Write();
            QCOMPARE(SalvageLists(file.Path(), file.Target()).Error(), error);
            QVERIFY(!QFile::exists(file.Target()));
            QCOMPARE(QDir(QFileInfo(file.Path()).path()).entryList(QDir::Files).size(), 1);
            QCOMPARE(FileBytes(file.Path()), bytes);
        }
    }

    void aBitThatTurnedIsTurnedBack()
    {
        Damage file;
        const QByteArray sound = file.bytes;
        for (qsizetype page = 0; page < sound.size() / kPageSize; ++page) {
            file.bytes = sound;
            file.FlipBit(page);
            const auto report = SalvageLists(file.Path(), file.Target());
            const QByteArray place = QByteArray::number(page);
            // Not every page is read.
            QVERIFY2(report.IsOk() && report->mendedPages <= 1, place);
            QVERIFY2(report->mendedPages == 1 || page > 0, place);
            QVERIFY2(!report->mayListsBeLost && Saved(file.Target()) == kWhole, place);
            QVERIFY(QFile::remove(file.Target()));
        }
    }

    void whatIsAsItMustBeIsBelieved()
    {
        const Damage sound;
        const auto tables = static_cast<int>(sound.PageOf(kTableLeaf, u"object_counter"_s));
        // Page 1 before its tree begins, the first record of the tables, and the last bytes of the
        // pages that say which lists and columns there are.
        for (const auto& [page, from, size] : { std::tuple(0, 0, 100), { tables, 4072, 16 },
                 { 2, 200, 100 }, { 3, 200, 16 }, { 2, 4088, 8 }, { 3, 4088, 8 } }) {
            Damage file;
            file.Lose(page, from, size);
            const auto report = SalvageLists(file.Path(), file.Target());
            QVERIFY(report);
            QVERIFY(report->mayListsBeLost || !report->lists.front().isComplete);
            QCOMPARE(Saved(file.Target()), kWhole);
        }
    }

    void whatAnotherProgramWroteIsTakenAndTold()
    {
        Damage file;
        file.Write();
        RunSql(file.Path(), "CREATE TABLE guest(a); DROP TABLE guest", nullptr);
        QCOMPARE(
            Volume::Mount(file.Path(), Disposition::OpenExisting, VolumeAccess::ReadOnly).Error(),
            ErrorNumber::ChangedOutside);
        const auto report = SalvageLists(file.Path(), file.Target());
        QVERIFY(report && report->wasChangedOutside && !report->mayListsBeLost);
        QCOMPARE(Saved(file.Target()), kWhole);
        // A table more, or pages that do not fit together, are damage.
        RunSql(file.Path(), "CREATE TABLE guest(a)", nullptr);
        QCOMPARE(
            Volume::Mount(file.Path(), Disposition::OpenExisting, VolumeAccess::ReadOnly).Error(),
            ErrorNumber::FileCorrupt);
    }

    void aJournalIsPlayedBackFirst()
    {
        Damage file;
        file.Write();
        // What a program leaves that is killed in a change which has begun to reach the file.
        const QByteArray change = "PRAGMA cache_size = 1; BEGIN; PRAGMA user_version = 1;"
                                  "DELETE FROM \"Pantry"
            + file.TableNumber() + "\" WHERE oid % 2";
        QByteArray torn;
        QByteArray journal;
        RunSql(file.Path(), change, [&] {
            torn = FileBytes(file.Path());
            journal = FileBytes(file.Path() + u"-journal"_s);
        });
        QVERIFY(torn != file.bytes);
        WriteFileBytes(file.Path(), torn);
        WriteFileBytes(file.Path() + u"-journal"_s, journal);
        QVERIFY(SalvageLists(file.Path(), file.Target()));
        QCOMPARE(Saved(file.Target()), kWhole);
    }
};

QUILLORY_TEST(QCoreApplication, SalvageTest)
#include "salvage_test.moc"
