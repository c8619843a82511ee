// SPDX-License-Identifier: MIT
#include "cli/output.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kBufferSize = 262'144;

/// A value as it stands in an array of its own.
QByteArray JsonText(const QJsonValue& value)
{
    const QByteArray array = QJsonDocument(QJsonArray { value }).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

} // namespace

TextOutput::TextOutput(QIODevice& target)
    : m_target(target)
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
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
    if (HasFailed())
        return;
    m_buffer.append(bytes);
    if (m_buffer.size() >= kBufferSize)
        PutAside();
}

QString TextOutput::Flush()
{
    if (m_file != nullptr && !HasFailed()) {
        const bool isAtStart = m_file->seek(0);
        while (isAtStart && !HasFailed() && !m_file->atEnd()) {
            const QByteArray part = m_file->read(kBufferSize);
            if (part.isEmpty())
                break;
            WriteTo(m_target, part);
        }
        if (!isAtStart || m_file->error() != QFileDevice::NoError)
            m_failure = m_file->errorString();
    }
    if (!HasFailed())
        WriteTo(m_target, m_buffer);
    m_buffer.clear();
    m_file.reset();
    return m_failure;
}

qint64 TextOutput::readData(char* /*bytes*/, qint64 /*size*/)
{
    return -1;
}

qint64 TextOutput::writeData(const char* bytes, qint64 size)
{
    WriteRaw({ bytes, static_cast<qsizetype>(size) });
    setErrorString(m_failure);
    return HasFailed() ? -1 : size;
}

void TextOutput::PutAside()
{
    if (m_file == nullptr) {
        m_file = std::make_unique<QTemporaryFile>();
        if (!m_file->open())
            m_failure = u"there is no room to keep it in: "_s + m_file->errorString();
    }
    WriteTo(*m_file, m_buffer);
    m_buffer.resize(0);
}

void TextOutput::WriteTo(QIODevice& target, QByteArrayView bytes)
{
    while (!HasFailed() && !bytes.isEmpty()) {
        const qint64 written = target.write(bytes.data(), bytes.size());
        if (written <= 0)
            m_failure = target.errorString();
        else
            bytes = bytes.sliced(written);
    }
}

JsonArrayWriter::JsonArrayWriter(TextOutput& output, bool isWanted)
    : m_output(output)
    , m_isWanted(isWanted)
{
    if (m_isWanted)
        m_output.WriteRaw("[");
}

void JsonArrayWriter::Add(const JsonMembers& members)
{
    m_output.WriteRaw(m_isEmpty ? "\n{" : ",\n{");
    for (const auto& [key, value] : members) {
        if (&key != &members.front().first)
            m_output.WriteRaw(",");
        m_output.WriteRaw(JsonText(key) + ':' + JsonText(value));
    }
    m_output.WriteRaw("}");
    m_isEmpty = false;
}

void JsonArrayWriter::End()
{
    if (m_isWanted)
        m_output.WriteRaw(m_isEmpty ? "]\n" : "\n]\n");
}

} // namespace Quillory
