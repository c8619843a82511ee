// SPDX-License-Identifier: MIT
#include "tests/faults/session.h"

#include "store/data_file_check.h"
#include "tests/list_fixture.h"
#include "transfer/text_export.h"
#include "transfer/text_import.h"

#include <QBuffer>
#include <QFile>
#include <QStringConverter>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

// Two drawn columns of different types: the numbers of the lists' columns are random, and these
// never meet.
constexpr PropertyId kTicked = MakePropertyId(1, CEVT_BOOL);
constexpr PropertyId kPrice = MakePropertyId(2, CEVT_R8);
constexpr size_t kTickedColumn = 2;

/// As they are typed.
std::array<QString, 5> TypedTexts(const ModelRow& row)
{
    auto texts = RowTexts(row);
    texts[kTickedColumn] = row.isTicked ? u"Checked"_s : u"Unchecked"_s;
    return texts;
}

QByteArray ImportText(const std::vector<ModelRow>& rows)
{
    QString text;
    for (const ModelRow& row : rows)
        text += LineOf(row);
    return QStringEncoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom)(text);
}

} // namespace

Session::Session()
    : m_catalogue(m_volume)
    , m_context(TestContext())
{ }

Session::~Session() = default;

ErrorNumber Session::Start(const QByteArray& path, VolumeAccess access)
{
    m_path = path;
    const auto disposition
        = access == VolumeAccess::Exclusive ? Disposition::OpenAlways : Disposition::OpenExisting;
    const ErrorNumber error = m_volume.Mount(QFile::decodeName(path), disposition, access);
    if (error != ErrorNumber::None)
        return error;
    return m_catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened ? ErrorNumber::None
                                                                             : m_volume.LastError();
}

bool Session::AddList(const Step& step)
{
    InventoryList list = NewInventoryList();
    list.Name = step.list;
    list.columns.push_back({ u"Opened"_s, 0, kTicked });
    list.columns.push_back({ u"Price"_s, 0, kPrice });
    list.columns.push_back({ u"Expiry Date"_s, 0, PropExpiryDate });
    return m_catalogue.CreateList(list).isCommitted;
}

Session::Outcome Session::Import(const Step& step)
{
    QByteArray text = ImportText(step.rows);
    QBuffer source(&text);
    source.open(QIODevice::ReadOnly);
    std::vector<PropertyId> columns;
    for (const ColumnDefinition& column : m_list.columns)
        columns.push_back(column.id);
    const ImportBatchLimits limits { kImportBatch, 1'000'000 };
    const auto outcome = Quillory::ImportRows(m_volume, columns, m_context, source, {}, limits);
    const bool isDone
        = outcome.result == ImportResult::Done && outcome.writeError == ErrorNumber::None;
    return { isDone, outcome.rows };
}

bool Session::Backup(int number)
{
    const QString path = QFile::decodeName(BackupPath(m_path, number));
    return m_volume.MountedVolume()->Backup(path).IsOk();
}

bool Session::RunOnRow(const Step& step)
{
    RowStore rows(m_volume, m_list, m_context);
    const auto order = rows.FillRows().rows;
    if (order.empty())
        return false;
    const ObjectId row = order[step.row % order.size()];
    switch (step.action) {
    case Action::ChangeRow:
        return rows.ModifyRow(row, TypedTexts(step.rows.front()));
    case Action::AddOne:
        return rows.AdjustCount(row, 1).has_value();
    case Action::CopyRow:
        return rows.CopyRow(row) != kNoObject;
    case Action::DeleteRow:
        return rows.DeleteRow(row);
    default:
        break;
    }
    const PropertyId column = m_list.columns[kTickedColumn].id;
    const Record record = rows.ReadRow(row);
    const PropertyValue* value = FindProperty(record.values, column);
    return value != nullptr && rows.SetCheckboxValue(row, column, !std::get<bool>(value->value));
}

bool Session::RunOnList(const Step& step, ObjectId list)
{
    switch (step.action) {
    case Action::RenameList:
        return m_catalogue.RenameList(list, step.newName);
    case Action::DeleteList:
        return m_catalogue.DeleteList(list);
    case Action::DeleteAllRows:
        return m_catalogue.DeleteAllRows(list) == ListCatalogue::EmptyOutcome::Done;
    default:
        break;
    }
    if (!m_catalogue.OpenList(list, m_list))
        return false;
    if (step.action == Action::ChangeOptions) {
        m_list.TableWarnStart = step.number;
        m_list.TableColSizes = QString::number(step.number) + u',';
        return m_catalogue.UpdateListOptions(list, m_list);
    }
    if (step.action == Action::AddRow) {
        RowStore rows(m_volume, m_list, m_context);
        return rows.WriteNewRow(TypedTexts(step.rows.front())) != kNoObject;
    }
    return RunOnRow(step);
}

Session::Outcome Session::Run(const Step& step)
{
    if (step.action == Action::AddList)
        return { AddList(step), 0 };
    if (step.action == Action::Backup)
        return { Backup(step.number), 0 };
    const ObjectId list = m_catalogue.FindList(step.list);
    if (list == kNoObject)
        return {};
    if (step.action == Action::ImportRows)
        return m_catalogue.OpenList(list, m_list) ? Import(step) : Outcome {};
    return { RunOnList(step, list), 0 };
}

std::vector<Session::ListText> Session::ReadLists()
{
    std::vector<ListText> texts;
    for (const auto& entry : m_catalogue.FillHomeList().lists) {
        InventoryList list;
        ListText text { entry.name, {}, ErrorNumber::None };
        if (m_catalogue.OpenList(entry.oid, list)) {
            QBuffer target;
            target.open(QIODevice::WriteOnly);
            Database& rows = *m_volume.OpenDatabase(ListCatalogue::kRowsType);
            text.error = ExportRows(rows, list, m_context, target).readError;
            text.heading += u' ' + QString::number(list.TableWarnStart) + u"\r\n"_s;
            text.rows = QStringDecoder(QStringDecoder::Utf16LE)(target.data());
        } else {
            text.error = m_volume.LastError();
        }
        texts.push_back(std::move(text));
    }
    m_catalogue.CloseRows();
    return texts;
}

Result<QByteArray> Session::Contents()
{
    QString whole;
    for (const ListText& text : ReadLists()) {
        if (text.error != ErrorNumber::None)
            return text.error;
        whole += text.heading + text.rows;
    }
    return whole.toUtf8();
}

bool Session::CanWrite()
{
    return m_volume.BeginTransaction() && m_volume.EndTransaction(true);
}

ErrorNumber Session::Check()
{
    const auto faults = m_volume.MountedVolume()->Check();
    if (!faults)
        return faults.Error();
    return faults->empty() ? ErrorNumber::None : ErrorNumber::FileCorrupt;
}

ErrorNumber Session::CheckAll()
{
    const auto faults = CheckDataFile(*m_volume.MountedVolume());
    if (!faults)
        return faults.Error();
    return faults->isEmpty() ? ErrorNumber::None : ErrorNumber::FileCorrupt;
}

QByteArray BackupPath(const QByteArray& dataFile, int number)
{
    return dataFile + ".backup-" + QByteArray::number(number);
}

bool HasNoReason(ErrorNumber error)
{
    return QByteArrayView(ErrorPhrase(error)) == "general failure";
}

Reading ReadDataFile(const QByteArray& path)
{
    Session session;
    Reading reading { session.Start(path), {} };
    if (reading.error == ErrorNumber::None)
        reading.error = session.Check();
    if (reading.error != ErrorNumber::None)
        return reading;
    const auto contents = session.Contents();
    reading.error = contents.Error();
    if (contents)
        reading.contents = *contents;
    return reading;
}

} // namespace Quillory
