// SPDX-License-Identifier: MIT
#include "cli/text_source.h"

namespace Quillory {

using namespace Qt::StringLiterals;

bool IsStream(const QString& path)
{
    return path == u"-";
}

TextSource::TextSource(const CommandRun& run, const QString& path,
    const std::optional<QStringConverter::Encoding>& encoding)
    : m_input(run.environment.input)
{
    if (!IsStream(path))
        m_file = OpenListFile(path, run.DataFile());
    if (!m_file.failure.isEmpty())
        Fail(u"cannot open %1: %2"_s.arg(path, m_file.failure));
    if (encoding)
        m_recoded = std::make_unique<RecodedText>(Bytes(), *encoding);
}

QIODevice& TextSource::Device() const
{
    return m_recoded == nullptr ? Bytes() : *m_recoded;
}

QIODevice& TextSource::Bytes() const
{
    return m_file.file == nullptr ? m_input : *m_file.file;
}

Database::VisitOutcome WriteTextFile(const CommandRun& run, const QString& path,
    const std::function<Database::VisitOutcome(TextOutput&)>& write)
{
    if (IsStream(path))
        return write(run.output);
    const ListFile target = CreateListFile(path, run.DataFile());
    if (target.file == nullptr)
        Fail(u"cannot make %1: %2"_s.arg(path, target.failure));
    TextOutput text(*target.file);
    const auto outcome = write(text);
    QString failure = text.Flush();
    if (failure.isEmpty())
        failure = target.Commit();
    if (!failure.isEmpty())
        Fail(u"cannot write %1: %2"_s.arg(path, failure));
    return outcome;
}

} // namespace Quillory
