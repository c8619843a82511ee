// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/page_file.h"
#include "propdb/result.h"

#include <QByteArray>

#include <optional>

namespace Quillory {

/// A hot journal: SQLite's rollback journal of a transaction that nobody ended. It tells whose it
/// is by the first page of the volume, which each transaction journals before any other, and with
/// it how often the file was changed before.
class HotJournal
{
public:
    /// Where SQLite keeps the journal of the volume at `path`.
    [[nodiscard]] static QByteArray PathOf(const QByteArray& path) { return path + "-journal"; }
    /// Gives the journal of the volume at `path`, if there is one, a name by which it is played
    /// into no file. That name; empty if there is none.
    [[nodiscard]] static Result<QByteArray> PutAside(const QByteArray& path);
    /// Looks at the journal of the volume at `path`.
    explicit HotJournal(const QByteArray& path);

    /// Nothing lies there that SQLite would play back or remove.
    [[nodiscard]] bool IsAbsent() const { return m_isAbsent; }
    /// Whether playing it back into the open file undoes the latest transaction of that very file:
    /// none is in it since this journal's, and at most that one.
    [[nodiscard]] bool IsOf(int fileDescriptor) const;
    /// Whether it restores the first page of the open file, which was torn by the crash while other
    /// pages are a volume's.
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
