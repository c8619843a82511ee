// SPDX-License-Identifier: MIT
#pragma once

#include "values/value_text.h"

#include <QByteArray>
#include <QIODevice>
#include <QStringDecoder>

#include <optional>

namespace Quillory {

/// What `import --encoding` says of a file.
struct TextEncoding
{
    /// Nothing where the file itself or the locale's code page says it.
    std::optional<QStringConverter::Encoding> unicode;
    /// What stands in 8-bit text is read so.
    ValueContext context;
};

/// Reads the name of an encoding: utf-8, utf-16 (low byte first unless a mark says otherwise), a
/// code page's number, or empty for none. Ends the command if it is no such name.
[[nodiscard]] TextEncoding ReadEncoding(const QString& name, const ValueContext& context);

/// A Unicode text as UTF-16 behind a byte-order mark, low byte first, as text files of lists are.
/// Fails where the text is not in its encoding.
class RecodedText : public QIODevice
{
public:
    RecodedText(QIODevice& source, QStringConverter::Encoding encoding);

    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char* bytes, qint64 size) override;
    qint64 writeData(const char* bytes, qint64 size) override;

private:
    QIODevice& m_source;
    bool m_isWide;
    QStringDecoder m_decoder;
    bool m_isAtStart = true;
    /// What was read and not yet given.
    QByteArray m_text;
};

} // namespace Quillory
