// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"
#include "propdb/result.h"
#include "propdb/volume.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Quillory {

/// What can still be read of a volume that is damaged. It is mounted first, so that its journal is
/// played back; then it is read page by page and never written. A page that one turned bit has
/// damaged is set right, another is passed over; of the pages that say where all else lies, records
/// that are what they must be are believed. A file that another program has changed is taken as it
/// stands. Works on sound volumes too. The volume must not be mounted in this process.
class DamagedVolume
{
public:
    /// The failures of PageFile::Open.
    [[nodiscard]] static Result<DamagedVolume> Open(const QString& path);

    DamagedVolume(DamagedVolume&& other) noexcept;
    DamagedVolume& operator=(DamagedVolume&& other) noexcept;
    ~DamagedVolume();

    struct DatabaseContent
    {
        Volume::DatabaseInfo info;
        /// The declared properties that are still known, in the order of their declaration.
        std::vector<PropertySpec> properties;
        /// Whether all that there were are still known.
        bool isComplete = false;
    };
    /// The databases that are still known, oldest first.
    [[nodiscard]] const std::vector<DatabaseContent>& Databases() const;
    /// Whether databases may be missing among these.
    [[nodiscard]] bool AreDatabasesLost() const;

    /// Whether its checksums were not looked at, because another program has written into it.
    [[nodiscard]] bool WasChangedOutside() const;
    /// How many of the pages read so far were set right.
    [[nodiscard]] qint64 MendedPages() const;

    struct ReadOutcome
    {
        qint64 records = 0;
        /// Records that the index names and that cannot be read; more may be lost.
        qint64 lostRecords = 0;
        /// Pages of the records that could not be read.
        qint64 lostPages = 0;
    };
    /// Visits the records of the database at `place` in Databases() that can be read, oldest first,
    /// with the properties that they have.
    [[nodiscard]] ReadOutcome ReadRecords(
        size_t place, const std::function<void(const Record& record)>& visitor) const;

private:
    struct State;

    explicit DamagedVolume(std::unique_ptr<State> state);

    std::unique_ptr<State> m_state;
};

} // namespace Quillory
