// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/fault_run.h"

namespace Quillory {

/// The bytes of a data file in which a script of this seed was carried out, and what it holds.
struct SampleFile
{
    QByteArray bytes;
    QByteArray contents;
};
[[nodiscard]] SampleFile MakeSampleFile(const FaultRun& run, quint32 seed);

/// Gives the page at this place (from 0) or every whole page the checksum of what it holds now: the
/// work of somebody who knows the format.
void SealPage(QByteArray& file, qsizetype page);
void SealAllPages(QByteArray& file);

/// Of a rollback journal: a number in it, and the header, which fills a sector.
[[nodiscard]] QByteArray BigEndian(quint32 value);
[[nodiscard]] QByteArray JournalHead(quint32 recordCount, quint32 nonce, quint32 pageCount);

} // namespace Quillory
