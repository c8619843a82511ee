// SPDX-License-Identifier: MIT
#include "store/data_volume.h"

#include "store/list_catalogue.h"

#include <algorithm>
#include <utility>

namespace Quillory {

namespace {

bool LiesWithMedium(ErrorNumber error)
{
    switch (error) {
    case ErrorNumber::None:
    case ErrorNumber::InvalidData:
    case ErrorNumber::BadLength:
    case ErrorNumber::DuplicateName:
    case ErrorNumber::InvalidParameter:
    case ErrorNumber::InvalidName:
    case ErrorNumber::AlreadyExists:
    case ErrorNumber::NameTooLong:
    case ErrorNumber::NotFound:
        return false;
    default:
        return true;
    }
}

} // namespace

DataVolume::DataVolume() = default;

DataVolume::~DataVolume()
{
    Unmount();
}

template <typename T> bool DataVolume::Note(const Result<T>& result)
{
    if (!result)
        m_lastError = result.Error();
    return result.IsOk();
}

template <typename T> bool DataVolume::NoteWrite(const Result<T>& result)
{
    const bool isDone = Note(result);
    m_hasChangedContent = m_hasChangedContent || isDone;
    if (!isDone && m_writeFailureListener && LiesWithMedium(result.Error()))
        m_writeFailureListener(result.Error());
    return isDone;
}

Database* DataVolume::Find(DatabaseType type)
{
    const auto found = m_open.find(type);
    if (found != m_open.end())
        return found->second.database.get();
    m_lastError = ErrorNumber::InvalidHandle;
    return nullptr;
}

Volume* DataVolume::FindVolume()
{
    if (m_volume == nullptr)
        m_lastError = ErrorNumber::InvalidHandle;
    return m_volume.get();
}

ErrorNumber DataVolume::Mount(const QString& path, Disposition disposition, VolumeAccess access)
{
    if (m_volume != nullptr)
        return m_lastError = ErrorNumber::AlreadyExists;
    auto mounted = Volume::Mount(path, disposition, access);
    if (Note(mounted))
        m_volume = std::move(*mounted);
    return mounted.Error();
}

bool DataVolume::Unmount()
{
    Close(ListCatalogue::kCatalogueType);
    m_open.clear();
    m_hasSession = false;
    m_hasChangedContent = false;
    m_volume.reset();
    return true;
}

bool DataVolume::Flush()
{
    return FindVolume() != nullptr;
}

bool DataVolume::OpenSession()
{
    m_hasSession = FindVolume() != nullptr;
    return m_hasSession;
}

bool DataVolume::Exists(DatabaseType type)
{
    return !DatabasesOf(type).empty();
}

std::vector<ObjectId> DataVolume::DatabasesOf(DatabaseType type)
{
    std::vector<ObjectId> oids;
    if (FindVolume() == nullptr)
        return oids;
    const auto databases = m_volume->Databases();
    if (!Note(databases))
        return oids;
    for (const Volume::DatabaseInfo& info : *databases) {
        if (info.type == type)
            oids.push_back(info.oid);
    }
    return oids;
}

ObjectId DataVolume::Create(const QString& name, DatabaseType type,
    std::span<const PropertySpec> specs, std::span<const SortOrder> sortOrders)
{
    if (specs.empty())
        return static_cast<ObjectId>(ErrorNumber::InvalidParameter);
    if (FindVolume() == nullptr)
        return kNoObject;
    const auto created = m_volume->CreateDatabase(name, type, specs, sortOrders);
    return NoteWrite(created) ? *created : kNoObject;
}

bool DataVolume::Open(const QString& name, DatabaseType type, const SortOrder& sortOrder,
    quint32 /*flags*/, const NotifyRequest* notifyRequest)
{
    if (m_open.contains(type))
        return true;
    if (!m_hasSession) {
        m_lastError = ErrorNumber::InvalidHandle;
        return false;
    }
    auto opened = m_volume->OpenDatabase(name, sortOrder);
    if (!Note(opened))
        return false;
    OpenEntry entry { std::move(*opened), std::nullopt };
    if (notifyRequest != nullptr)
        entry.request = *notifyRequest;
    m_open.emplace(type, std::move(entry));
    return true;
}

void DataVolume::Close(DatabaseType type)
{
    m_open.erase(type);
}

ObjectId DataVolume::DatabaseOid(DatabaseType type) const
{
    const auto found = m_open.find(type);
    return found == m_open.end() ? kNoObject : found->second.database->Oid();
}

qint64 DataVolume::RecordCount(DatabaseType type)
{
    Database* database = Find(type);
    if (database == nullptr)
        return -1;
    const auto count = database->RecordCount();
    return Note(count) ? *count : -1;
}

int DataVolume::PropertyCount(DatabaseType type)
{
    const Database* database = Find(type);
    return database == nullptr ? -1 : static_cast<int>(database->Properties().size());
}

std::vector<PropertySpec> DataVolume::PropertySpecs(DatabaseType type, int count)
{
    const Database* database = Find(type);
    if (database == nullptr || count <= 0)
        return {};
    auto specs = database->Properties();
    specs.resize(std::min(specs.size(), static_cast<size_t>(count)));
    return specs;
}

ObjectId DataVolume::SeekFirst(DatabaseType type)
{
    Database* database = Find(type);
    if (database == nullptr)
        return kNoObject;
    const auto oid = database->SeekFirst();
    return Note(oid) ? *oid : kNoObject;
}

ObjectId DataVolume::SeekNext(DatabaseType type, int n)
{
    Database* database = Find(type);
    if (database == nullptr)
        return kNoObject;
    const auto oid = database->SeekNext(n);
    return Note(oid) ? *oid : kNoObject;
}

ObjectId DataVolume::SeekTo(DatabaseType type, ObjectId oid)
{
    Database* database = Find(type);
    if (database == nullptr)
        return kNoObject;
    const auto found = database->SeekTo(oid);
    if (Note(found) && *found == kNoObject)
        m_lastError = ErrorNumber::NotFound;
    return found ? *found : kNoObject;
}

Record DataVolume::ReadAll(DatabaseType type)
{
    Database* database = Find(type);
    if (database == nullptr)
        return {};
    auto record = database->ReadAll();
    return Note(record) ? std::move(*record) : Record {};
}

Record DataVolume::Read(DatabaseType type, std::span<const PropertyId> ids)
{
    Database* database = Find(type);
    if (database == nullptr)
        return {};
    auto record = database->Read(ids);
    return Note(record) ? std::move(*record) : Record {};
}

ObjectId DataVolume::Write(DatabaseType type, ObjectId oid, std::span<const PropertyValue> values)
{
    Database* database = Find(type);
    if (database == nullptr)
        return kNoObject;
    const auto written = database->Write(oid, values);
    return NoteWrite(written) ? *written : kNoObject;
}

ObjectId DataVolume::AddBack(DatabaseType type, const Record& record)
{
    Database* database = Find(type);
    if (database == nullptr)
        return kNoObject;
    const auto written = database->AddBack(record);
    return NoteWrite(written) ? *written : kNoObject;
}

bool DataVolume::WriteLayout(DatabaseType type, ObjectId oid, std::span<const PropertyValue> values)
{
    const bool hadChanged = m_hasChangedContent;
    Database* database = Find(type);
    const bool isWritten
        = database != nullptr && NoteWrite(database->Write(oid, values, ChangeKind::Layout));
    m_hasChangedContent = hadChanged;
    return isWritten;
}

bool DataVolume::DeleteRecord(DatabaseType type, ObjectId oid)
{
    Database* database = Find(type);
    return database != nullptr && NoteWrite(database->DeleteRecord(oid));
}

QString DataVolume::DatabaseName(ObjectId oid)
{
    if (FindVolume() == nullptr)
        return {};
    const auto databases = m_volume->Databases();
    if (!Note(databases))
        return {};
    const auto found = std::find_if(databases->begin(), databases->end(),
        [oid](const Volume::DatabaseInfo& info) { return info.oid == oid; });
    if (found != databases->end())
        return found->name;
    m_lastError = ErrorNumber::NotFound;
    return {};
}

bool DataVolume::RenameDatabase(ObjectId oid, const QString& name, DatabaseType type)
{
    return FindVolume() != nullptr && NoteWrite(m_volume->RenameDatabase(oid, name, type));
}

bool DataVolume::DeleteDatabase(ObjectId oid)
{
    return FindVolume() != nullptr && NoteWrite(m_volume->DeleteDatabase(oid));
}

bool DataVolume::PurgeDatabase(ObjectId oid)
{
    const bool hadChanged = m_hasChangedContent;
    const bool isDone
        = FindVolume() != nullptr && NoteWrite(m_volume->DeleteDatabase(oid, ChangeKind::Layout));
    m_hasChangedContent = hadChanged;
    return isDone;
}

bool DataVolume::BeginTransaction()
{
    if (!m_hasSession) {
        m_lastError = ErrorNumber::InvalidHandle;
        return false;
    }
    return NoteWrite(m_volume->BeginTransaction());
}

bool DataVolume::EndTransaction(bool commit)
{
    return FindVolume() != nullptr && NoteWrite(m_volume->EndTransaction(commit));
}

bool DataVolume::WriteHistory(const History& history)
{
    return FindVolume() != nullptr && NoteWrite(m_volume->WriteHistory(history));
}

void DataVolume::SetWriteFailureListener(WriteFailureListener listener)
{
    m_writeFailureListener = std::move(listener);
}

Database* DataVolume::OpenDatabase(DatabaseType type)
{
    return Find(type);
}

Transaction::Transaction(DataVolume& volume)
    : m_volume(volume)
    , m_isOpen(volume.BeginTransaction())
{ }

Transaction::~Transaction()
{
    if (m_isOpen)
        m_volume.EndTransaction(false);
}

bool Transaction::Commit()
{
    if (!m_isOpen)
        return false;
    m_isOpen = false;
    return m_volume.EndTransaction(true);
}

} // namespace Quillory
