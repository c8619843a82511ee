// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/database.h"
#include "propdb/volume.h"

#include <QDir>
#include <QTemporaryDir>

#include <memory>
#include <utility>

namespace Quillory {

/// The value of a result that a test relies on; ends the test program if there is none.
template <typename T> T Take(Result<T> result)
{
    if (!result)
        qFatal("unexpected failure: %s", ErrorPhrase(result.Error()));
    return std::move(*result);
}

/// A data file in a folder of its own, mounted on demand.
class VolumeFixture
{
public:
    QString Path(const QString& name = QStringLiteral("data.idb")) const
    {
        return QDir(m_folder.path()).filePath(name);
    }
    QString Folder() const { return m_folder.path(); }

    Volume& Mount(Disposition disposition = Disposition::OpenAlways)
    {
        volume = Take(Volume::Mount(Path(), disposition, VolumeAccess::Exclusive));
        return *volume;
    }
    /// Closes the file and opens it again: what is there now was durable.
    Volume& Remount()
    {
        volume.reset();
        return Mount(Disposition::OpenExisting);
    }

    std::unique_ptr<Volume> volume;

private:
    QTemporaryDir m_folder;
};

} // namespace Quillory
