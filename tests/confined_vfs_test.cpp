// SPDX-License-Identifier: MIT
#include "propdb/confined_vfs.h"
#include "tests/file_bytes.h"
#include "tests/test_program.h"
#include "tests/volume_fixture.h"

#include <sqlite3.h>

using namespace Quillory;

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
    void noPieceOfADamagedPageIsRead_data();
    void noPieceOfADamagedPageIsRead();
};

void ConfinedVfsTest::noPieceOfADamagedPageIsRead_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<int>("amount");
    QTest::addColumn<int>("code");
    constexpr qint64 kPage = kPageSize;
    VolumeFixture fixture;
    fixture.Mount();
    fixture.volume.reset();
    const QByteArray intact = FileBytes(fixture.Path());
    const QByteArray damaged = WithFlippedBit(intact, 2 * kPage + 2000);
    const auto row = [](const char* name, const QByteArray& file, qint64 offset, int amount,
                         int code) { QTest::newRow(name) << file << offset << amount << code; };
    const auto both = [&](const char* name, qint64 offset, int amount) {
        row(qPrintable(QLatin1StringView(name) + QStringLiteral(", intact")), intact, offset,
            amount, SQLITE_OK);
        row(name, damaged, offset, amount, SQLITE_IOERR_DATA);
    };
    both("a page", 2 * kPage, kPageSize);
    both("a page less its checksum", 2 * kPage, kPageSize - kPageReserve);
    both("a piece before the damage", 2 * kPage, 8);
    both("a piece behind the damage", 2 * kPage + 3000, 500);
    both("from the page before", 2 * kPage - 10, 11);
    both("to the page behind", 3 * kPage - 1, 20);
    both("with the pages around", kPage + 100, 2 * kPageSize + 100);
    row("the page before", damaged, kPageSize, kPageSize - 1, SQLITE_OK);
    row("the pages behind", damaged, 3 * kPage, kPageSize + 1, SQLITE_OK);
    // Read before a journal is played back, which may have to make the first page whole.
    const QByteArray torn = WithFlippedBit(intact, 2000);
    row("the header of a torn file", torn, 0, 100, SQLITE_OK);
    row("the change counter of a torn file", torn, 24, 16, SQLITE_OK);
    row("more of a torn file's first page", torn, 0, 101, SQLITE_IOERR_DATA);
    row("the header of an empty file", {}, 0, 100, SQLITE_IOERR_SHORT_READ);
    const qsizetype size = intact.size();
    row("over the end", intact, size - 10, 20, SQLITE_IOERR_SHORT_READ);
    row("behind the end", intact, size, 20, SQLITE_IOERR_SHORT_READ);
    row("a page cut short", intact.chopped(1), size - kPageSize, 20, SQLITE_IOERR_SHORT_READ);
}

void ConfinedVfsTest::noPieceOfADamagedPageIsRead()
{
    QFETCH(QByteArray, file);
    QFETCH(qint64, offset);
    QFETCH(int, amount);
    const VolumeFixture fixture;
    WriteFileBytes(fixture.Path(), file);
    QByteArray bytes(amount, '?');
    QTEST(OpenFile(fixture.Path()).Read(bytes, offset), "code");
    QFETCH(int, code);
    if (code != SQLITE_IOERR_DATA)
        QCOMPARE(bytes, file.mid(offset, amount).leftJustified(amount, '\0'));
}

QUILLORY_TEST(QCoreApplication, ConfinedVfsTest)
#include "confined_vfs_test.moc"
