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

/// What can still be read of a volume that is damaged. The file is read page by page and never
/// written; a page that is not as it was written is passed over. Works on sound volumes too. A
/// journal is not looked at: after a write that was cut off some of its records may be new and some
/// old. The volume must not be mounted in this process.
class DamagedVolume
{
public:
    /// FileCorrupt if the first page is lost, without which nothing can be found; otherwise the
    /// failures of Volume::Mount.
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
