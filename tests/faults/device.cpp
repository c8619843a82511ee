// SPDX-License-Identifier: MIT
#include "tests/faults/device.h"

#include "merge/contents.h"
#include "store/kept_copies.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kKeptCopies = 3;
/// The columns of all lists.
enum DeviceColumn : size_t
{
    DeviceName,
    DeviceCount,
    /// Changed as the name is.
    DeviceShelf,
    /// Tells the row; nobody changes it.
    DeviceMark,
};

void Require(bool isDone, const char* what)
{
    if (!isDone)
        qFatal("a device cannot %s", what);
}

std::unique_ptr<Volume> MountFile(const QString& path, VolumeAccess access)
{
    auto volume = Volume::Mount(path, Disposition::OpenExisting, access);
    if (!volume)
        qFatal("%s cannot be mounted: %s", qPrintable(path), ErrorPhrase(volume.Error()));
    return std::move(*volume);
}

QString TextOf(const PropertyValue& value)
{
    const auto* text = std::get_if<QString>(&value.value);
    const auto* number = std::get_if<qint32>(&value.value);
    return text != nullptr ? *text : number != nullptr ? QString::number(*number) : u"-"_s;
}

} // namespace

DeviceContents ReadDevice(const QString& path)
{
    const auto volume = MountFile(path, VolumeAccess::ReadOnly);
    const auto contents = ReadContents(*volume);
    Require(contents.IsOk(), "read its file");
    DeviceContents found { contents->history.Latest(), {}, {} };
    QStringList lines;
    for (const auto& [key, list] : contents->lists) {
        const InventoryList& definition = list.definition;
        lines << key.first + u' ' + definition.Name
                + u" %1 %2"_s.arg(definition.TableWarnStart).arg(definition.TableOption);
        RowReader reader(*volume, definition);
        for (const RowMark& mark : list.rows) {
            const auto values = reader.Read(mark.row);
            Require(values.IsOk(), "read a row");
            QString line = QString::number(static_cast<quint64>(mark.origin), 16);
            for (const PropertyValue& value : *values)
                line += u'|' + TextOf(value);
            lines << line;
            const auto* count = std::get_if<qint32>(&(*values)[DeviceCount].value);
            found.rows.emplace(TextOf((*values)[DeviceMark]),
                std::pair(mark.origin, count == nullptr ? 0 : *count));
        }
    }
    found.dump = lines.join(u'\n').toUtf8();
    return found;
}

Device::Device(QString folder, Room room, Deeds& deeds)
    : m_folder(std::move(folder))
    , m_room(room)
    , m_deeds(deeds)
    , m_catalogue(m_data)
    , m_context(TestContext())
{
    QDir().mkpath(m_folder);
}

QString Device::Inbox(int device) const
{
    return m_folder + u"/from-%1.idb"_s.arg(device);
}

QString Device::NewText(const QString& stem)
{
    QString text = stem + QString::number(m_deeds.trace.size()) + u'.';
    m_deeds.standing.insert(text);
    return text;
}

void Device::Open()
{
    Require(m_data.Mount(Path(), Disposition::OpenAlways) == ErrorNumber::None, "open its file");
    Volume* volume = m_data.MountedVolume();
    volume->SetFirstChangeListener([this, volume] {
        Require(KeepFound(*volume, Path(), m_folder + u"/copies"_s, m_now, kKeptCopies).IsOk(),
            "keep what it found");
    });
    Require(m_catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened, "open its lists");
}

void Device::Close()
{
    const QString folder = m_folder + u"/copies"_s;
    Require(KeepCopy(m_data, Path(), folder, m_now, kKeptCopies).IsOk(), "keep a copy");
    const auto copies = ListKeptCopies(Path(), folder);
    if (m_room == Room::Short && !copies.empty())
        QFile::resize(copies.front().path, kRoomForOlderCopies);
    m_catalogue.PurgeDeleted();
    m_data.Unmount();
}

void Device::Run(const Draw& draw, const std::function<void()>& meanwhile)
{
    Open();
    for (size_t i = 0; i <= draw(3); ++i) {
        Change(draw);
        meanwhile();
    }
    Close();
}

void Device::Change(const Draw& draw)
{
    const auto lists = m_catalogue.FillHomeList().lists;
    const size_t what = draw(40);
    m_deeds.trace << m_folder.right(1) + u" change %1"_s.arg(what);
    if (!lists.empty())
        Require(m_catalogue.OpenList(lists[draw(lists.size())].oid, m_list), "open a list");
    constexpr size_t kListChanges = 8;
    if (lists.empty() || what < kListChanges)
        ChangeLists(lists.empty() ? 0 : what, draw);
    else
        ChangeRows(what, draw);
}

void Device::ChangeLists(size_t what, const Draw& draw)
{
    const ObjectId list = m_catalogue.FindList(m_list.Name);
    if (what < 2) {
        InventoryList made = NewInventoryList();
        made.Name = NewText(u"List "_s);
        made.columns.push_back({ u"Shelf"_s, 0, MakePropertyId(1, CEVT_LPWSTR) });
        made.columns.push_back({ u"Mark"_s, 0, MakePropertyId(2, CEVT_LPWSTR) });
        Require(m_catalogue.CreateListRedrawing(made).isCommitted, "make a list");
    } else if (what < 4) {
        m_deeds.standing.erase(m_list.Name);
        Require(m_catalogue.RenameList(list, NewText(u"List "_s)), "rename a list");
    } else if (what < 6) {
        m_list.TableWarnStart = static_cast<qint32>(draw(50));
        m_list.TableColSizes = QString::number(draw(50)) + u',';
        Require(m_catalogue.UpdateListOptions(list, m_list), "set a list");
    } else if (what < 7) {
        ForgetRows();
        Require(m_catalogue.DeleteAllRows(list) == ListCatalogue::EmptyOutcome::Done, "empty");
    } else {
        ForgetRows();
        m_deeds.standing.erase(m_list.Name);
        Require(m_catalogue.DeleteList(list), "delete a list");
    }
}

void Device::ForgetRow(ObjectId row)
{
    RowStore rows(m_data, m_list, m_context);
    for (const size_t column : { DeviceName, DeviceShelf })
        m_deeds.standing.erase(rows.FormatCellText(m_list.columns[column].id, row));
    m_deeds.deletedRows.insert(rows.FormatCellText(m_list.columns[DeviceMark].id, row));
}

void Device::ForgetRows()
{
    for (const ObjectId row : RowStore(m_data, m_list, m_context).FillRows().rows)
        ForgetRow(row);
}

void Device::ChangeRows(size_t what, const Draw& draw)
{
    RowStore rows(m_data, m_list, m_context);
    const auto present = rows.FillRows().rows;
    if (present.empty() || what < 18) {
        const QString mark = u"mark %1"_s.arg(m_deeds.trace.size());
        const std::vector<QString> texts { NewText(u"name "_s), u"10"_s, NewText(u"shelf "_s),
            mark };
        m_deeds.counts[mark] = 10;
        Require(rows.WriteNewRow(texts) != kNoObject, "add a row");
        return;
    }
    const ObjectId row = present[draw(present.size())];
    const auto text
        = [&](size_t column) { return rows.FormatCellText(m_list.columns[column].id, row); };
    const QString mark = text(DeviceMark);
    if (what < 22) {
        ForgetRow(row);
        Require(rows.DeleteRow(row), "delete a row");
        return;
    }
    m_deeds.changedRows.insert(mark);
    if (what < 32) {
        const qint32 step = draw(2) == 0 ? 1 : -2;
        m_deeds.counts[mark] += step;
        Require(rows.AdjustCount(row, step).has_value(), "count");
        return;
    }
    const size_t column = what < 36 ? DeviceName : DeviceShelf;
    m_deeds.standing.erase(text(column));
    const PropertyValue value { m_list.columns[column].id, 0, NewText(u"text "_s) };
    Require(m_data.Write(ListCatalogue::kRowsType, row, std::span(&value, 1)) == row, "write");
}

void Device::Note(const MergePlan& plan)
{
    m_deeds.wasGuessed
        = m_deeds.wasGuessed || (plan.kinship != Kinship::Known && !plan.isBaseExact);
    for (const MergeNote& note : plan.notes) {
        m_deeds.trace << u"  %1 %2 %3 %4 %5 %6"_s.arg(static_cast<int>(note.kind))
                             .arg(note.list, note.row, note.column, TextOf(note.kept),
                                 TextOf(note.other));
        if (note.kind == MergeNote::Kind::ValueDecided)
            m_deeds.told.insert(TextOf(note.other));
        if (note.kind == MergeNote::Kind::RowCopied)
            m_deeds.copiedRows.insert(note.row);
    }
}

QString Device::MergeWith(Volume& theirs)
{
    const CopiesPlace copies { m_folder + u"/copies"_s, kKeptCopies };
    Volume& mine = *m_data.MountedVolume();
    const auto base = OpenBase(mine, theirs, Path(), copies);
    Require(base.IsOk(), "find what both come from");
    const auto plan = PlanMerge(mine, theirs, base->get());
    if (!plan)
        return u"no plan: "_s + QLatin1StringView(ErrorPhrase(plan.Error()));
    m_deeds.trace << m_folder.right(1)
            + u" merges, kin %1, exact %2"_s.arg(static_cast<int>(plan->kinship))
                  .arg(plan->isBaseExact);
    Note(*plan);
    const auto done = ExchangeMerged(*plan, mine, theirs, Path(), copies, m_now);
    if (!done)
        return u"not merged: "_s + QLatin1StringView(ErrorPhrase(done.Error()));
    m_data.Unmount();
    const auto merged = MountFile(Path(), VolumeAccess::ReadOnly);
    const auto again = PlanMerge(*merged, theirs, nullptr);
    return again && again->kinship == Kinship::Known ? QString() : u"merging again does more"_s;
}

QString Device::Merge(const QString& other)
{
    Open();
    const auto theirs = MountFile(other, VolumeAccess::ReadOnly);
    QString wrong = MergeWith(*theirs);
    m_data.Unmount();
    return wrong;
}

QString Device::RunAndBeReplaced(const Draw& draw, const QByteArray& bytes)
{
    Open();
    Change(draw);
    m_deeds.trace << m_folder.right(1) + u" is replaced"_s;
    const QString arrived = m_folder + u"/arrived.idb"_s;
    WriteFileBytes(arrived, bytes);
    QFile::remove(Path());
    Require(QFile::rename(arrived, Path()), "be given a file");
    const auto theirs = MountFile(Path(), VolumeAccess::ReadOnly);
    QString wrong = MergeWith(*theirs);
    m_data.Unmount();
    return wrong;
}

} // namespace Quillory
