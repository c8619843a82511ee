// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/page_file.h"

#include <QByteArray>

#include <optional>

namespace Quillory {

/// The journal that a run which did not end well has left beside a volume, as far as it tells whose
/// it is: each transaction keeps the volume's first page before any other, and with it how often
/// the file was changed before.
class HotJournal
{
public:
    /// Where SQLite keeps the journal of the volume at `path`.
    [[nodiscard]] static QByteArray PathOf(const QByteArray& path) { return path + "-journal"; }
    /// Looks at the journal of the volume at `path`.
    explicit HotJournal(const QByteArray& path);

    /// Nothing lies there that SQLite would play back or remove.
    [[nodiscard]] bool IsAbsent() const { return m_isAbsent; }
    /// Whether playing it back into the open file undoes the latest transaction of that very file:
    /// none is in it since this journal's, and at most that one.
    [[nodiscard]] bool IsOf(int fileDescriptor) const;
    /// Whether it restores the first page of the open file, which lies torn among whole pages
    /// of a volume.
    [[nodiscard]] bool Mends(int fileDescriptor) const;

private:
    bool m_isAbsent = true;
    /// As it was before the transaction; none if it is not whole.
    std::optional<PageBytes> m_firstPage;

    /// Whether the open file reaches as far as before the transaction, its last page torn at most:
    /// a volume never shrinks.
    [[nodiscard]] bool Fits(int fileDescriptor) const;
    /// False if SQLite would take it for none yet.
    [[nodiscard]] bool Read(int descriptor);
};

} // namespace Quillory
