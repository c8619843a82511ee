// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QJsonObject>
#include <QStringList>

namespace Quillory {

/// Buffered UTF-8 text on a stream. A lone surrogate becomes a question mark. After a
/// failed write everything is dropped, and Flush() tells.
class TextOutput
{
public:
    explicit TextOutput(QIODevice& device);

    void WriteLine(QStringView line);
    /// A line of fields with a TAB between two. Control characters in them become blanks, so that
    /// the line keeps its fields.
    void WriteFields(const QStringList& fields);
    void WriteRaw(QByteArrayView bytes);

    [[nodiscard]] bool HasFailed() const { return m_hasFailed; }
    /// Hands everything to the device; false if this or an earlier write failed.
    [[nodiscard]] bool Flush();

private:
    QIODevice& m_device;
    QByteArray m_buffer;
    bool m_hasFailed = false;
};

/// Writes a JSON array of objects one by one, an object per line.
class JsonArrayWriter
{
public:
    explicit JsonArrayWriter(TextOutput& output);

    void Add(const QJsonObject& object);
    void End();

private:
    TextOutput& m_output;
    bool m_isEmpty = true;
};

} // namespace Quillory
