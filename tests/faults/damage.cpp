// SPDX-License-Identifier: MIT
#include "propdb/detail/confined_vfs.h"
#include "tests/faults/sealed_file.h"

#include <QSet>

#include <unistd.h>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// A file that takes longer to read hangs the program.
constexpr unsigned kHangSeconds = 60;
/// So many show altered rows among the sealed ones.
constexpr int kRunsForControl = 1000;

enum class Damage
{
    FlippedBit,
    OtherByte,
    JunkRange,
    ZeroedSector,
    ZeroedPage,
    PageOfAnotherPlace,
    SectorOfAnotherPlace,
    CutShort,
    JunkBehind,
    /// With the right checksum: by somebody who knows the format.
    SealedBytes,
    SealedField,
};
constexpr int kDamageCount = 11;

bool IsSealed(Damage damage)
{
    return damage == Damage::SealedBytes || damage == Damage::SealedField;
}

class Vandal
{
public:
    explicit Vandal(quint32 seed)
        : m_random(seed)
    { }

    QByteArray Spoil(QByteArray bytes, Damage damage)
    {
        constexpr qsizetype kSectorSize = 512;
        const qsizetype at = Below(bytes.size());
        const qsizetype page = Below(bytes.size() / kPageSize);
        const qsizetype other = Below(bytes.size() / kPageSize);
        switch (damage) {
        case Damage::FlippedBit:
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << Below(8)));
            break;
        case Damage::OtherByte:
            bytes[at] = Byte();
            break;
        case Damage::JunkRange:
            for (qsizetype i = at; i < std::min(at + Below(2000), bytes.size()); ++i)
                bytes[i] = Byte();
            break;
        case Damage::ZeroedSector:
            Copy(bytes, QByteArray(kSectorSize, '\0'), at / kSectorSize * kSectorSize);
            break;
        case Damage::ZeroedPage:
            Copy(bytes, QByteArray(kPageSize, '\0'), page * kPageSize);
            break;
        case Damage::PageOfAnotherPlace:
            Copy(bytes, bytes.mid(other * kPageSize, kPageSize), page * kPageSize);
            break;
        case Damage::SectorOfAnotherPlace:
            Copy(bytes, bytes.mid(other * kPageSize, kSectorSize), at / kSectorSize * kSectorSize);
            break;
        case Damage::CutShort:
            bytes.truncate(at / kSectorSize * kSectorSize);
            break;
        case Damage::JunkBehind:
            for (qsizetype i = Below(qsizetype { 3 } * kPageSize); i >= 0; --i)
                bytes.append(Byte());
            break;
        case Damage::SealedBytes:
            for (qsizetype i = Below(8); i >= 0; --i)
                bytes[page * kPageSize + Below(kPageSize)] = Byte();
            SealPage(bytes, page);
            break;
        case Damage::SealedField:
            // The head of a page says where everything on it lies.
            bytes[page * kPageSize + Below(page == 0 ? 120 : 40)] = Byte();
            SealPage(bytes, page);
            break;
        }
        return bytes;
    }

private:
    std::mt19937 m_random;

    qsizetype Below(qsizetype limit) { return static_cast<qsizetype>(m_random()) % limit; }
    char Byte() { return static_cast<char>(m_random()); }
    static void Copy(QByteArray& bytes, const QByteArray& from, qsizetype place)
    {
        const qsizetype size = std::min(from.size(), bytes.size() - place);
        bytes.replace(place, size, from.left(size));
    }
};

/// What is wrong about how the program takes a damaged file; empty if nothing is. Whoever sealed
/// his damage is found only where pages do not fit together.
QString JudgeDamaged(const FaultRun& run, const SampleFile& sample, bool isToBeFound)
{
    Session session;
    const ErrorNumber error = session.Start(run.DataFile());
    if (error != ErrorNumber::None)
        return HasNoReason(error) ? u"refused for no known reason"_s : QString();
    const ErrorNumber checked = session.CheckAll();
    if (checked == ErrorNumber::None && isToBeFound)
        return u"the check finds nothing"_s;
    const auto lists = session.ReadLists();
    const QString original = QString::fromUtf8(sample.contents);
    const QStringList lines = original.split(u"\r\n"_s);
    const QSet<QString> known(lines.begin(), lines.end());
    QString shown;
    bool isWhole = true;
    for (const auto& list : lists) {
        shown += list.heading + list.rows;
        isWhole = isWhole && list.error == ErrorNumber::None;
        for (const QString& line : list.rows.split(u"\r\n"_s)) {
            if (!known.contains(line))
                return u"an altered row is shown: "_s + line;
        }
    }
    if (checked == ErrorNumber::None && (!isWhole || shown != original))
        return u"the check finds nothing and something is missing"_s;
    return {};
}

} // namespace

void DamageFiles(FaultRun& run)
{
    const SampleFile sample = MakeSampleFile(run, run.Seed());
    Vandal vandal(run.Seed());
    int noticedSeals = 0;
    while (run.CountSoFar() < run.Runs()) {
        const auto damage = static_cast<Damage>(run.CountSoFar() % kDamageCount);
        const Files spoilt { { "data.idb", vandal.Spoil(sample.bytes, damage) } };
        run.Place(spoilt);
        alarm(kHangSeconds);
        const QString wrong
            = JudgeDamaged(run, sample, !IsSealed(damage) && spoilt.at("data.idb") != sample.bytes);
        alarm(0);
        run.Count();
        if (IsSealed(damage))
            noticedSeals += wrong.isEmpty() ? 0 : 1;
        else if (!wrong.isEmpty())
            run.Blame(u"damage %1: "_s.arg(static_cast<int>(damage)) + wrong, spoilt);
        else if (run.Taken() != spoilt)
            run.Blame(u"damage %1: the file was changed"_s.arg(static_cast<int>(damage)), spoilt);
    }
    // Whoever can seal a page can write what rows he likes: without the checksums rows do change.
    if (noticedSeals == 0 && run.Runs() >= kRunsForControl)
        run.Blame(u"altered rows are not noticed by this test"_s, {});
    std::printf("  control: %d sealed files show altered rows\n", noticedSeals);
}

} // namespace Quillory
