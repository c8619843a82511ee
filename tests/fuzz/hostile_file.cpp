// SPDX-License-Identifier: MIT
#include "tests/fuzz/hostile_file.h"

#include "propdb/confined_vfs.h"
#include "tests/faults/sealed_file.h"

#include <QtEndian>

#include <algorithm>

/// Of libFuzzer: changes `size` bytes, or makes up to `maxSize` of them, and returns how many.
extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t maxSize);

namespace Quillory {

namespace {

constexpr qsizetype kSectorSize = 512;
constexpr size_t kSizeBytes = 2;

/// Where the parts of a journal lie: a header that fills a sector, and records.
constexpr qsizetype kNoncePlace = 12;
constexpr qsizetype kPageNumberSize = 4;
constexpr qsizetype kRecordSize = kPageNumberSize + kPageSize + 4;

/// The sum that stands behind a page in a journal.
quint32 JournalSum(const char* page, quint32 nonce)
{
    constexpr qsizetype kStep = 200;
    quint32 sum = nonce;
    for (qsizetype place = kPageSize - kStep; place > 0; place -= kStep)
        sum += static_cast<quint8>(page[place]);
    return sum;
}

} // namespace

HostileFile HostileFile::FromInput(std::span<const quint8> input)
{
    HostileFile hostile;
    if (input.size() < kSizeBytes)
        return hostile;
    const size_t wanted = qFromLittleEndian<quint16>(input.data()) * size_t { kSectorSize };
    const auto bytes = input.subspan(kSizeBytes);
    const auto file = bytes.first(std::min(wanted, bytes.size()));
    hostile.file = QByteArray(reinterpret_cast<const char*>(file.data()), std::ssize(file));
    const auto journal = bytes.subspan(file.size());
    hostile.journal
        = QByteArray(reinterpret_cast<const char*>(journal.data()), std::ssize(journal));
    return hostile;
}

size_t HostileFile::ToInput(std::span<quint8> input) const
{
    const auto sectors = static_cast<quint16>(file.size() / kSectorSize);
    QByteArray bytes(kSizeBytes, '\0');
    qToLittleEndian(sectors, bytes.data());
    bytes += file.left(sectors * kSectorSize) + journal;
    const size_t size = std::min(input.size(), static_cast<size_t>(bytes.size()));
    std::copy_n(bytes.constData(), size, input.begin());
    return size;
}

Spoiler::Spoiler(const std::vector<HostileFile>& samples, quint32 seed)
    : m_samples(samples)
    , m_random(seed)
{ }

qsizetype Spoiler::Below(qsizetype limit)
{
    return limit <= 0 ? 0 : static_cast<qsizetype>(m_random()) % limit;
}

HostileFile Spoiler::SomeSample()
{
    return m_samples[static_cast<size_t>(Below(std::ssize(m_samples)))];
}

void Spoiler::Spoil(HostileFile& hostile)
{
    constexpr int kWays = 16;
    const qsizetype way = Below(kWays);
    if (way == 0)
        Resize(hostile.file);
    else if (way == 1)
        MovePage(hostile.file);
    else if (way == 2)
        Resize(hostile.journal);
    else if (way == 3)
        hostile.journal = MakeJournal(SomeSample().file, hostile.file);
    else if (way < 8)
        SpoilJournal(hostile.journal);
    else
        SpoilPage(hostile.file);
}

void Spoiler::SpoilBytes(QByteArray& bytes, qsizetype begin, qsizetype size)
{
    QByteArray part = bytes.mid(begin, size);
    const auto length = static_cast<size_t>(part.size());
    if (length == 0)
        return;
    LLVMFuzzerMutate(reinterpret_cast<uint8_t*>(part.data()), length, length);
    bytes.replace(begin, part.size(), part);
}

void Spoiler::SpoilPage(QByteArray& file)
{
    // The head of a page says where everything on it lies.
    constexpr qsizetype kHeadSize = 120;
    constexpr int kSeldom = 8;
    const qsizetype page = Below(file.size() / kPageSize);
    const bool isHead = Below(2) == 0;
    const qsizetype begin = isHead ? 0 : Below(kPageSize);
    SpoilBytes(file, page * kPageSize + begin, isHead ? kHeadSize : kPageSize - begin);
    if (file.size() >= (page + 1) * kPageSize && Below(kSeldom) != 0)
        SealPage(file, page);
}

void Spoiler::MovePage(QByteArray& file)
{
    const qsizetype pages = file.size() / kPageSize;
    if (pages == 0)
        return;
    const qsizetype target = Below(pages);
    file.replace(target * kPageSize, kPageSize, file.mid(Below(pages) * kPageSize, kPageSize));
    SealPage(file, target);
}

void Spoiler::Resize(QByteArray& bytes)
{
    if (Below(4) == 0)
        bytes.clear();
    else if (Below(2) == 0)
        bytes.truncate(Below(bytes.size()) / kSectorSize * kSectorSize);
    else
        bytes += bytes.left(kPageSize * (1 + Below(3)));
}

void Spoiler::SpoilJournal(QByteArray& journal)
{
    const qsizetype records = (journal.size() - kSectorSize) / kRecordSize;
    if (records <= 0 || Below(3) == 0)
        return SpoilBytes(journal, 0, Below(2) == 0 ? kSectorSize / 8 : journal.size());
    const qsizetype begin = kSectorSize + Below(records) * kRecordSize;
    const qsizetype part = Below(3) == 0 ? 0 : Below(kRecordSize);
    SpoilBytes(journal, begin + part, std::min(kRecordSize - part, 1 + Below(kRecordSize)));
    char* const page = journal.data() + begin + kPageNumberSize;
    SealBytes(page, qFromBigEndian<quint32>(journal.constData() + begin));
    const auto nonce = qFromBigEndian<quint32>(journal.constData() + kNoncePlace);
    qToBigEndian(JournalSum(page, nonce), page + kPageSize);
}

QByteArray MakeJournal(const QByteArray& before, const QByteArray& after)
{
    constexpr quint32 kNonce = 1;
    QByteArray records;
    quint32 count = 0;
    for (qsizetype begin = 0; begin + kPageSize <= before.size(); begin += kPageSize) {
        const QByteArray page = before.mid(begin, kPageSize);
        if (page == after.mid(begin, kPageSize))
            continue;
        const auto number = static_cast<quint32>(begin / kPageSize + 1);
        records += BigEndian(number) + page + BigEndian(JournalSum(page.constData(), kNonce));
        ++count;
    }
    return JournalHead(count, kNonce, static_cast<quint32>(before.size() / kPageSize)) + records;
}

} // namespace Quillory
