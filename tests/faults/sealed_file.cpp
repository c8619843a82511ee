// SPDX-License-Identifier: MIT
#include "tests/faults/sealed_file.h"

#include "propdb/detail/confined_vfs.h"

#include <QtEndian>

namespace Quillory {

SampleFile MakeSampleFile(const FaultRun& run, quint32 seed)
{
    constexpr size_t kScriptLength = 60;
    const Script script = MakeScript(seed, kScriptLength);
    const std::vector<Files> stages = MakeStages(run, script);
    return { stages.back().at("data.idb"), script.After(script.steps.size()) };
}

void SealPage(QByteArray& file, qsizetype page)
{
    SealPage(file.data() + page * kPageSize, static_cast<quint32>(page + 1));
}

void SealAllPages(QByteArray& file)
{
    for (qsizetype page = 0; (page + 1) * kPageSize <= file.size(); ++page)
        SealPage(file, page);
}

QByteArray BigEndian(quint32 value)
{
    QByteArray bytes(sizeof(value), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray JournalHead(quint32 recordCount, quint32 nonce, quint32 pageCount)
{
    constexpr qsizetype kHeadSize = 512;
    const QByteArray head = QByteArray::fromHex("d9d505f920a163d7") + BigEndian(recordCount)
        + BigEndian(nonce) + BigEndian(pageCount) + BigEndian(kHeadSize) + BigEndian(kPageSize);
    return head.leftJustified(kHeadSize, '\0');
}

} // namespace Quillory
