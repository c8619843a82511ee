#include "tests/faults/sealed_file.h"

#include "propdb/confined_vfs.h"

#include <xxhash.h>

#include <cstring>

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
    char* const bytes = file.data() + page * kPageSize;
    XXH64_canonical_t checksum;
    XXH64_canonicalFromHash(&checksum,
        XXH3_64bits_withSeed(bytes, kPageSize - kPageReserve, static_cast<XXH64_hash_t>(page + 1)));
    std::memcpy(bytes + kPageSize - kPageReserve, &checksum, sizeof(checksum));
}

void SealAllPages(QByteArray& file)
{
    for (qsizetype page = 0; (page + 1) * kPageSize <= file.size(); ++page)
        SealPage(file, page);
}

} // namespace Quillory
