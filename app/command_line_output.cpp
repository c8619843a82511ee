// SPDX-License-Identifier: MIT
#include "app/command_line_output.h"

#include <QJsonDocument>

#include <algorithm>

namespace Quillory {

namespace {

constexpr qsizetype kBufferSize = 65'536;

} // namespace

TextOutput::TextOutput(QIODevice& device)
    : m_device(device)
{
    m_buffer.reserve(2 * kBufferSize);
}

void TextOutput::WriteLine(QStringView line)
{
    WriteRaw(line.toUtf8());
    WriteRaw("\n");
}

void TextOutput::WriteFields(const QStringList& fields)
{
    QString line;
    for (const QString& field : fields) {
        if (&field != &fields.front())
            line += u'\t';
        const qsizetype start = line.size();
        line += field;
        std::replace_if(
            line.begin() + start, line.end(),
            [](QChar unit) { return unit.category() == QChar::Other_Control; }, QChar(u' '));
    }
    WriteLine(line);
}

void TextOutput::WriteRaw(QByteArrayView bytes)
{
    if (m_hasFailed)
        return;
    m_buffer.append(bytes);
    if (m_buffer.size() >= kBufferSize)
        static_cast<void>(Flush());
}

bool TextOutput::Flush()
{
    const char* next = m_buffer.constData();
    qint64 left = m_buffer.size();
    while (!m_hasFailed && left > 0) {
        const qint64 written = m_device.write(next, left);
        m_hasFailed = written <= 0;
        next += written;
        left -= written;
    }
    m_buffer.resize(0);
    return !m_hasFailed;
}

JsonArrayWriter::JsonArrayWriter(TextOutput& output)
    : m_output(output)
{
    m_output.WriteRaw("[");
}

void JsonArrayWriter::Add(const QJsonObject& object)
{
    m_output.WriteRaw(m_isEmpty ? "\n" : ",\n");
    m_output.WriteRaw(QJsonDocument(object).toJson(QJsonDocument::Compact));
    m_isEmpty = false;
}

void JsonArrayWriter::End()
{
    m_output.WriteRaw(m_isEmpty ? "]\n" : "\n]\n");
}

} // namespace Quillory
