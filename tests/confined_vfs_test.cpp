// SPDX-License-Identifier: MIT
#include "propdb/detail/confined_vfs.h"
#include "tests/file_bytes.h"
#include "tests/test_program.h"
#include "tests/volume_fixture.h"

#include <sqlite3.h>

namespace {

/// A file as SQLite has it open, without what SQLite makes of it.
class OpenFile
{
public:
    explicit OpenFile(const QString& path)
        : m_permit(QFile::encodeName(path))
    {
        if (sqlite3_open_v2(QFile::encodeName(path).constData(), &m_connection,
                SQLITE_OPEN_READONLY, ConfinedVfs::Name())
                != SQLITE_OK
            || sqlite3_file_control(m_connection, "main", SQLITE_FCNTL_FILE_POINTER, &m_file)
                != SQLITE_OK)
            qFatal("the file cannot be opened");
    }
    ~OpenFile() { sqlite3_close(m_connection); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Read(QByteArray& bytes, qint64 offset) const
    {
        return m_file->pMethods->xRead(
            m_file, bytes.data(), static_cast<int>(bytes.size()), offset);
    }

private:
    ConfinedVfs::Permit m_permit;
    sqlite3* m_connection = nullptr;
    sqlite3_file* m_file = nullptr;
};

QByteArray WithFlippedBit(QByteArray bytes, qsizetype at)
{
    bytes[at] = static_cast<char>(bytes[at] ^ 1);
    return bytes;
}

} // namespace

class ConfinedVfsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noPieceOfADamagedPageIsRead()
    {
        constexpr qint64 kPage = kPageSize;
        VolumeFixture fixture;
        fixture.Mount();
        fixture.volume.reset();
        const QByteArray intact = FileBytes(fixture.Path());
        const QByteArray damaged = WithFlippedBit(intact, 2 * kPage + 2000);
        const auto read = [&](const QByteArray& file, qint64 offset, int amount, int code) {
            WriteFileBytes(fixture.Path(), file);
            QByteArray bytes(amount, '?');
            QCOMPARE(OpenFile(fixture.Path()).Read(bytes, offset), code);
            if (code != SQLITE_IOERR_DATA)
                QCOMPARE(bytes, file.mid(offset, amount).leftJustified(amount, '\0'));
        };
        // A page, one less its checksum, pieces before and behind the damage, and over its ends.
        for (const auto& [offset, amount] :
            { std::pair { 2 * kPage, kPageSize }, { 2 * kPage, kPageSize - kPageReserve },
                { 2 * kPage, 8 }, { 2 * kPage + 3000, 500 }, { 2 * kPage - 10, 11 },
                { 3 * kPage - 1, 20 }, { kPage + 100, 2 * kPageSize + 100 } }) {
            read(intact, offset, amount, SQLITE_OK);
            read(damaged, offset, amount, SQLITE_IOERR_DATA);
        }
        // The pages around it.
        read(damaged, kPage, kPageSize - 1, SQLITE_OK);
        read(damaged, 3 * kPage, kPageSize + 1, SQLITE_OK);
        // The header and its change counter are read before a journal is played back, which may
        // have to make the first page whole.
        const QByteArray torn = WithFlippedBit(intact, 2000);
        read(torn, 0, 100, SQLITE_OK);
        read(torn, 24, 16, SQLITE_OK);
        read(torn, 0, 101, SQLITE_IOERR_DATA);
        // Over the end of the file and behind it.
        read({}, 0, 100, SQLITE_IOERR_SHORT_READ);
        const qsizetype size = intact.size();
        read(intact, size - 10, 20, SQLITE_IOERR_SHORT_READ);
        read(intact, size, 20, SQLITE_IOERR_SHORT_READ);
        read(intact.chopped(1), size - kPage, 20, SQLITE_IOERR_SHORT_READ);
    }
};

QUILLORY_TEST(QCoreApplication, ConfinedVfsTest)
#include "confined_vfs_test.moc"
