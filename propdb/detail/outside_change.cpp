// SPDX-License-Identifier: MIT
#include "propdb/detail/outside_change.h"

#include "propdb/detail/confined_vfs.h"
#include "propdb/detail/connection.h"
#include "propdb/detail/page_file.h"
#include "propdb/detail/schema.h"
#include "propdb/detail/statement.h"

#include <QFile>

namespace Quillory {

using namespace Qt::StringLiterals;

bool WasChangedOutside(const QByteArray& path)
{
    {
        const auto file = PageFile::Open(QFile::decodeName(path), PageFile::Trust::Checksums);
        PageBytes first;
        if (!file || file->Read(1, first))
            return false;
    }
    const ConfinedVfs::Permit permit(path, ConfinedVfs::Checksums::Ignored);
    const auto connection = OpenConnection(path, VolumeAccess::ReadOnly, false, false);
    if (!connection || !LoadVolumeSchema(connection->get()))
        return false;
    auto check = Statement::Prepare(connection->get(), u"PRAGMA integrity_check"_s);
    return check && check->Next() && check->Text(0) == "ok"_L1;
}

} // namespace Quillory
