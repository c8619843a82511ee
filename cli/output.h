// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QJsonValue>
#include <QList>
#include <QStringList>
#include <QTemporaryFile>

#include <memory>
#include <utility>

namespace Quillory {

/// What a command prints, as UTF-8 text or as whatever bytes are written to it as a device. A lone
/// surrogate becomes a question mark.
///
/// All of it is kept until Flush(), in an unnamed temporary file if it is much: whoever reads the
/// output may stand still, and a data file that is being read meanwhile could not be written.
class TextOutput : public QIODevice
{
public:
    explicit TextOutput(QIODevice& target);

    void WriteLine(QStringView line);
    /// A line of fields with a TAB between two. Control characters in them become blanks, so that
    /// the line keeps its fields.
    void WriteFields(const QStringList& fields);
    void WriteRaw(QByteArrayView bytes);

    /// Nothing can be kept any more, and what comes is dropped.
    [[nodiscard]] bool HasFailed() const { return !m_failure.isEmpty(); }
    /// Hands everything to the target. The first failure, of the target or while it was kept, for a
    /// person to read; empty if there was none.
    [[nodiscard]] QString Flush();

protected:
    qint64 readData(char* bytes, qint64 size) override;
    qint64 writeData(const char* bytes, qint64 size) override;

private:
    QIODevice& m_target;
    QByteArray m_buffer;
    /// What came before the buffer; null if nothing did.
    std::unique_ptr<QTemporaryFile> m_file;
    QString m_failure;

    void PutAside();
    void WriteTo(QIODevice& target, QByteArrayView bytes);
};

/// The members of a JSON object in the order in which they are written.
using JsonMembers = QList<std::pair<QString, QJsonValue>>;

/// Writes a JSON array of objects one by one, an object per line, where JSON is wanted.
class JsonArrayWriter
{
public:
    JsonArrayWriter(TextOutput& output, bool isWanted);

    [[nodiscard]] bool IsWanted() const { return m_isWanted; }
    /// Only where it is wanted.
    void Add(const JsonMembers& members);
    void End();

private:
    TextOutput& m_output;
    bool m_isWanted;
    bool m_isEmpty = true;
};

} // namespace Quillory
