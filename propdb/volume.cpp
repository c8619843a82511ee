// SPDX-License-Identifier: MIT
#include "propdb/volume.h"

#include "propdb/database.h"
#include "propdb/detail/database_state.h"
#include "propdb/detail/outside_change.h"
#include "propdb/detail/page_file.h"
#include "propdb/detail/sqlite_error.h"
#include "propdb/detail/volume_check.h"
#include "propdb/detail/volume_state.h"
#include "propdb/volume_path.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QScopeGuard>
#include <QtEndian>

#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <set>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Builds an empty volume under a name of its own and gives it its name when it is whole.
Result<void> CreateVolume(const QByteArray& path)
{
    const QByteArray unfinished = UnfinishedName(path);
    const auto removeUnfinished = qScopeGuard([&] { unlink(unfinished.constData()); });
    {
        const ConfinedVfs::Permit permit(unfinished);
        QUILLORY_TRY_VALUE(
            auto connection, OpenConnection(unfinished, VolumeAccess::Exclusive, true, true));
        QUILLORY_TRY(CreateVolumeSchema(connection.get()));
    }
    return PublishFile(unfinished, path);
}

Result<VolumeFile> OpenOrCreate(
    const QByteArray& path, Disposition disposition, VolumeAccess access)
{
    auto file = VolumeFile::Open(path, access);
    if (file.Error() != ErrorNumber::FileNotFound || disposition == Disposition::OpenExisting)
        return file;
    const auto created = CreateVolume(path);
    // Somebody else may have made one in the meantime.
    if (!created && created.Error() != ErrorNumber::FileExists)
        return created.Error();
    return VolumeFile::Open(path, access);
}

/// What a database must be like to be made.
Result<void> CheckSpecs(std::span<const PropertySpec> specs, std::span<const SortOrder> sortOrders)
{
    std::set<PropertyId> ids;
    for (const PropertySpec& spec : specs) {
        if (!IsStorableType(PropertyType(spec.id)))
            return ErrorNumber::InvalidParameter;
        if (!ids.insert(spec.id).second)
            return ErrorNumber::AlreadyExists;
    }
    const bool haveKeys = std::all_of(sortOrders.begin(), sortOrders.end(),
        [&ids](const SortOrder& order) { return ids.contains(order.key); });
    const bool isSound = !specs.empty() && specs.size() <= kMaxDatabaseProperties
        && sortOrders.size() <= 1 && haveKeys;
    return isSound ? ErrorNumber::None : ErrorNumber::InvalidParameter;
}

} // namespace

Volume::Volume(std::unique_ptr<VolumeState> state)
    : m_state(std::move(state))
{ }

Volume::~Volume() = default;

Result<std::unique_ptr<Volume>> Volume::Mount(
    const QString& path, Disposition disposition, VolumeAccess access)
{
    QUILLORY_TRY_VALUE(const auto realPath, ResolveVolumePath(path));
    QUILLORY_TRY_VALUE(auto file, OpenOrCreate(realPath, disposition, access));
    auto state = std::make_unique<VolumeState>(std::move(file), realPath, access);
    if (const auto connected = state->Connect(); !connected) {
        // Looking at the file once more would drop the locks of its connection.
        state.reset();
        const bool isWhole
            = connected.Error() == ErrorNumber::FileCorrupt && WasChangedOutside(realPath);
        return isWhole ? ErrorNumber::ChangedOutside : connected.Error();
    }
    std::unique_ptr<Volume> volume(new Volume(std::move(state)));
    if (volume->m_state->File().HasJournal()) {
        QUILLORY_TRY_VALUE(const auto faults, volume->Check());
        if (!faults.empty())
            return ErrorNumber::FileCorrupt;
        // A journal that only looks like the file's does not make it whole.
        QUILLORY_TRY(volume->m_state->File().VerifySize());
    }
    return volume;
}

Result<std::vector<Volume::DatabaseInfo>> Volume::Databases()
{
    QUILLORY_TRY_VALUE(const VolumeSchema* schema, m_state->Schema());
    std::vector<DatabaseInfo> infos;
    for (const auto& [oid, database] : schema->All())
        infos.push_back({ database->oid, database->name, database->type });
    return infos;
}

Result<ObjectId> Volume::CreateDatabase(const QString& name, DatabaseType type,
    std::span<const PropertySpec> specs, std::span<const SortOrder> sortOrders)
{
    QUILLORY_TRY(CheckSpecs(specs, sortOrders));
    QUILLORY_TRY_VALUE(const VolumeSchema* before, m_state->Schema());
    if (before->Find(name) != nullptr)
        return ErrorNumber::DuplicateName;
    return m_state->ChangeSchema([&](VolumeSchema& schema) -> Result<ObjectId> {
        QUILLORY_TRY_VALUE(const ObjectId oid, m_state->AllocateOid());
        const auto database = std::make_shared<DatabaseSchema>();
        database->oid = oid;
        database->name = name;
        database->type = type;
        database->tableName = MakeTableName(name, oid);
        database->sortOrders.assign(sortOrders.begin(), sortOrders.end());
        for (const PropertySpec& spec : specs)
            database->properties.push_back(MakeColumn(*database, spec));
        schema.Insert(database);
        QUILLORY_TRY(CreateDatabaseSchema(m_state->Connection(), *database));
        return oid;
    });
}

Result<void> Volume::RenameDatabase(ObjectId oid, const QString& name, DatabaseType type)
{
    QUILLORY_TRY_VALUE(const VolumeSchema* before, m_state->Schema());
    const auto database = before->Find(oid);
    if (database == nullptr)
        return ErrorNumber::NotFound;
    const auto namesake = before->Find(name);
    if (namesake != nullptr && namesake != database)
        return ErrorNumber::DuplicateName;
    if (m_state->IsOpen(oid))
        return ErrorNumber::SharingViolation;
    return m_state->ChangeSchema([&](VolumeSchema& schema) {
        schema.Rename(*database, name, type);
        return RenameDatabaseSchema(m_state->Connection(), *database);
    });
}

Result<void> Volume::DeleteDatabase(ObjectId oid, ChangeKind kind)
{
    QUILLORY_TRY_VALUE(const VolumeSchema* before, m_state->Schema());
    const auto database = before->Find(oid);
    if (database == nullptr)
        return ErrorNumber::NotFound;
    if (m_state->IsOpen(oid))
        return ErrorNumber::SharingViolation;
    return m_state->ChangeSchema(
        [&](VolumeSchema& schema) {
            schema.Remove(*database);
            return DropDatabaseSchema(m_state->Connection(), *database);
        },
        kind);
}

Result<std::unique_ptr<Database>> Volume::OpenDatabase(
    const QString& name, const SortOrder& sortOrder)
{
    QUILLORY_TRY_VALUE(const VolumeSchema* schema, m_state->Schema());
    const auto database = schema->Find(name);
    if (database == nullptr)
        return ErrorNumber::FileNotFound;
    const auto& orders = database->sortOrders;
    if (std::find(orders.begin(), orders.end(), sortOrder) == orders.end())
        return ErrorNumber::InvalidParameter;
    return std::make_unique<Database>(
        std::make_unique<DatabaseState>(*m_state, database, sortOrder));
}

void Volume::SetFirstChangeListener(FirstChangeListener listener)
{
    m_state->SetFirstChangeListener(std::move(listener));
}

Result<History> Volume::ReadHistory()
{
    return m_state->ReadHistory();
}

Result<void> Volume::WriteHistory(const History& history)
{
    return m_state->WriteHistory(history);
}

Result<void> Volume::BeginTransaction()
{
    return m_state->BeginTransaction();
}

Result<void> Volume::EndTransaction(bool commit)
{
    return m_state->EndTransaction(commit);
}

bool Volume::HasChanged() const
{
    return m_state->Transactions().HasCommitted();
}

const QByteArray& Volume::Path() const
{
    return m_state->Path();
}

QString Volume::JournalPutAside() const
{
    return QFile::decodeName(m_state->File().JournalPutAside());
}

Result<void> Volume::VerifyInPlace() const
{
    return m_state->File().VerifyInPlace();
}

Result<void> Volume::VerifyUnchanged() const
{
    return m_state->Transactions().VerifyUnchanged();
}

Result<void> Volume::VerifyPagesOf(const QString& path)
{
    QUILLORY_TRY_VALUE(const auto file, PageFile::Open(path, PageFile::Trust::Checksums));
    PageBytes page;
    const auto isWhole
        = [&](quint32 number) { return file.Read(number, page) && file.MendedPages() == 0; };
    if (!isWhole(1)
        || qFromBigEndian<quint32>(page.data() + HeaderLayout::kPageCount) != file.PageCount())
        return ErrorNumber::FileCorrupt;
    for (quint32 number = 2; number <= file.PageCount(); ++number) {
        if (!isWhole(number))
            return ErrorNumber::FileCorrupt;
    }
    return {};
}

Result<std::vector<QString>> Volume::Check()
{
    return CheckVolume(*m_state);
}

Result<std::vector<QString>> Volume::CheckPages()
{
    return Quillory::CheckPages(*m_state);
}

Result<void> Volume::Backup(const QString& path)
{
    QUILLORY_TRY_VALUE(const auto target, ResolveVolumePath(path));
    if (access(target.constData(), F_OK) == 0)
        return ErrorNumber::FileExists;
    const QByteArray unfinished = UnfinishedName(target);
    const auto removeUnfinished = qScopeGuard([&] { unlink(unfinished.constData()); });
    {
        const ConfinedVfs::Permit permit(unfinished);
        QUILLORY_TRY_VALUE(
            auto copy, OpenConnection(unfinished, VolumeAccess::Exclusive, true, true));
        QUILLORY_TRY(m_state->File().GiveModeTo(unfinished));
        sqlite3_backup* backup
            = sqlite3_backup_init(copy.get(), "main", m_state->Connection(), "main");
        if (backup == nullptr)
            return ErrorFromSqlite(sqlite3_extended_errcode(copy.get()), copy.get());
        // Between two steps a change may come in; the copy then begins again.
        constexpr int kPagesAtOnce = 256;
        constexpr int kPatienceMs = 10'000;
        const QDeadlineTimer patience(kPatienceMs);
        int stepCode = SQLITE_OK;
        while (stepCode == SQLITE_OK)
            stepCode = sqlite3_backup_step(backup, patience.hasExpired() ? -1 : kPagesAtOnce);
        const int code = sqlite3_backup_finish(backup);
        if (stepCode != SQLITE_DONE)
            return ErrorFromSqlite(code == SQLITE_OK ? stepCode : code, copy.get());
    }
    return PublishFile(unfinished, target);
}

} // namespace Quillory
