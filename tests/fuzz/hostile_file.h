// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <random>
#include <span>
#include <vector>

namespace Quillory {

/// A data file and the journal beside it, if that is not empty, as one input of a fuzzer.
struct HostileFile
{
    QByteArray file;
    QByteArray journal;

    /// Two bytes tell how many sectors of 512 bytes the file has; the journal follows it.
    [[nodiscard]] static HostileFile FromInput(std::span<const quint8> input);
    /// Writes as much of it as there is room for; returns how much that is.
    [[nodiscard]] size_t ToInput(std::span<quint8> input) const;
};

/// Spoils files so that the damage gets past the checksums, as somebody would who knows the format.
class Spoiler
{
public:
    /// `samples` are what to begin with.
    Spoiler(const std::vector<HostileFile>& samples, quint32 seed);

    [[nodiscard]] HostileFile SomeSample();
    /// One change of the file or its journal.
    void Spoil(HostileFile& hostile);

private:
    const std::vector<HostileFile>& m_samples;
    std::mt19937 m_random;

    [[nodiscard]] qsizetype Below(qsizetype limit);
    void SpoilPage(QByteArray& file);
    void MovePage(QByteArray& file);
    void Resize(QByteArray& bytes);
    void SpoilJournal(QByteArray& journal);
    void SpoilBytes(QByteArray& bytes, qsizetype begin, qsizetype size);
};

/// The journal of a transaction that makes `after` of the file `before`.
[[nodiscard]] QByteArray MakeJournal(const QByteArray& before, const QByteArray& after);

} // namespace Quillory
