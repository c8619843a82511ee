// SPDX-License-Identifier: MIT
#include "tests/faults/fault_run.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>

using namespace Quillory;

namespace {

struct FaultKind
{
    const char* name;
    const char* description;
    void (*run)(FaultRun&);
};

constexpr std::array kFaultKinds {
    FaultKind { "power", "the process is killed or the power is cut, at a call or amid it",
        &CutPowerEverywhere },
    FaultKind { "careless", "the same on media that ignore syncs, which must be found out",
        &CutPowerOfCarelessMedia },
    FaultKind {
        "calls", "a call fails, once or for good, or the disk is full from it on", &LetCallsFail },
    FaultKind { "memory", "SQLite gets no memory, once or for good", &ExhaustMemory },
    FaultKind { "heap", "operator new gets no memory, once or for good", &ExhaustHeap },
    FaultKind { "meddle", "somebody removes or replaces the open file", &MeddleWithOpenFile },
    FaultKind { "damage", "the file is damaged at rest", &DamageFiles },
    FaultKind { "foreign", "the file is another program's (a table of them)", &RefuseForeignFiles },
    FaultKind { "journals", "a hostile journal lies beside the file", &LayJournals },
    FaultKind { "devices", "three devices change one file apart and merge", &MergeDevices },
    FaultKind { "neighbours", "other processes use the file as well", &ShareTheFile },
};

int Usage()
{
    std::puts("Usage: quillory_faults KIND RUNS [SEED]\n\n"
              "Makes a fault so many times and looks whether the data file kept every promise.\n"
              "SEED is a number, or \"random\".\n");
    for (const FaultKind& kind : kFaultKinds)
        std::printf("  %-12s %s\n", kind.name, kind.description);
    return 2;
}

int RunFault(const FaultKind& kind, int runs, quint32 seed)
{
    QElapsedTimer timer;
    timer.start();
    FaultRun run(runs, seed);
    kind.run(run);
    std::printf("%s: %d times, %d broken promises, seed %u, %.1f s\n", kind.name, run.CountSoFar(),
        run.Blames(), seed, static_cast<double>(timer.elapsed()) / 1000);
    return run.CountSoFar() > 0 && run.Blames() == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 3 && argc != 4)
        return Usage();
    const int runs = QByteArrayView(argv[2]).toInt();
    const bool isRandom = argc == 4 && QByteArrayView(argv[3]) == "random";
    const quint32 seed = isRandom ? std::random_device()()
        : argc == 4               ? QByteArrayView(argv[3]).toUInt()
                                  : 1;
    for (const FaultKind& kind : kFaultKinds) {
        if (QByteArrayView(argv[1]) == kind.name && runs > 0)
            return RunFault(kind, runs, seed);
    }
    return Usage();
}
