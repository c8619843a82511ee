// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace Quillory {

/// Bytes of a page of a volume, the last kPageReserve of which hold its checksum.
constexpr int kPageSize = 4096;
constexpr int kPageReserve = 8;

/// Whether the kPageSize bytes at `page` bear the checksum of the page of this number, from 1.
[[nodiscard]] bool HasRightChecksum(const void* page, quint32 number);
/// Gives the page that checksum.
void SealPage(void* page, quint32 number);

/// The VFS, SQLite's view of the file system, under which connections to volumes are opened.
///
/// It reaches the permitted volumes, their journals and nameless temporary files, and nothing else,
/// whatever a file's content asks for. Every page of a volume is written with a checksum of its
/// content and its number, and verified when any of it but the file's header is read: altered
/// content fails the read with SQLITE_IOERR_DATA.
class ConfinedVfs
{
public:
    /// The name to open connections with; registers the VFS at the first call.
    [[nodiscard]] static const char* Name();

    enum class Checksums
    {
        Verified,
        /// For looking at a file whose checksums are known to be wrong; never for writing.
        Ignored,
    };
    /// While it lives, connections may open the volume at an absolute path.
    class Permit
    {
    public:
        explicit Permit(QByteArray path, Checksums checksums = Checksums::Verified);
        ~Permit();
        Permit(const Permit&) = delete;
        Permit& operator=(const Permit&) = delete;

    private:
        QByteArray m_path;
        Checksums m_checksums;
    };
};

} // namespace Quillory
