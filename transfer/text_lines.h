// SPDX-License-Identifier: MIT
#pragma once

#include "platform/code_page.h"

#include <QByteArray>
#include <QIODevice>

#include <span>
#include <vector>

namespace Quillory {

/// Characters of a line that are held: more than a row has that was typed in the row editor.
constexpr size_t kMaxLine = 1'048'576;

/// The bytes of a device, read as they are needed. What is added to a file while it is read is left
/// out: who adds faster would keep the reader for ever.
class ByteWindow
{
public:
    explicit ByteWindow(QIODevice& source);

    /// What is at hand.
    [[nodiscard]] std::span<char> Bytes();
    /// Puts more behind what is at hand, which must be next to nothing; false at the end and on
    /// failure. Moves the bytes.
    bool Fill();
    /// Lets go of bytes from the front.
    void Drop(qsizetype count) { m_begin += count; }
    /// Lets the text end on a whole unit of `size` bytes: zeros fill it up. Only at the end.
    void PadTo(qsizetype size);

    [[nodiscard]] bool HasFailed() const { return m_hasFailed; }
    /// How many bytes were read in all.
    [[nodiscard]] qint64 BytesRead() const { return m_bytesRead; }

private:
    QIODevice& m_source;
    /// What there is to read.
    qint64 m_size;
    QByteArray m_bytes;
    qsizetype m_begin = 0;
    qsizetype m_end = 0;
    qint64 m_bytesRead = 0;
    bool m_hasFailed = false;
};

/// The lines of a text file, one after another. Memory use does not grow with their length.
///
/// A line ends at a CR; the character after it is dropped, whatever it is. Text after the last CR
/// is no line, and a NUL ends the text. Text is UTF-16 behind a byte-order mark and otherwise in
/// the given code page.
class TextLineReader
{
public:
    /// Of a line that is longer only the first `maxLine` characters, in 8-bit text bytes, are held.
    TextLineReader(QIODevice& source, int codePage, size_t maxLine);

    /// Goes to the next line that is not empty. False at the end of the text and on failure.
    bool Next();
    /// The current line up to a NUL, for its reader to write to; valid until the next call.
    ///
    /// In 8-bit text the line's buffer is cleared only in its first half between lines, so that a
    /// line of more than half its size is followed by what an earlier, longer one left there. A
    /// line that was cut leaves nothing.
    [[nodiscard]] char16_t* Line() { return m_line; }
    /// The current line goes on where what is held of it ends.
    [[nodiscard]] bool IsCut() const { return m_isCut; }

    /// True if there was nothing behind the byte-order mark or the file could not be read.
    [[nodiscard]] bool HasFailed() const { return m_isBlank || m_window.HasFailed(); }
    /// Whether the text ended with characters behind the last line, once Next() gave false.
    [[nodiscard]] bool HasOpenLine() const { return m_hasOpenLine; }
    [[nodiscard]] qint64 BytesRead() const { return m_window.BytesRead(); }
    /// How many lines were read in all, empty ones included.
    [[nodiscard]] qint64 LinesRead() const { return m_linesRead; }

private:
    ByteWindow m_window;
    const CodePage& m_codePage;
    size_t m_maxLine;
    /// The current line as it stands in the file.
    QByteArray m_held;
    std::vector<char16_t> m_buffer;
    char16_t* m_line = nullptr;
    qint64 m_linesRead = 0;
    bool m_isCut = false;
    bool m_isWide = false;
    bool m_isBlank = false;
    bool m_hasOpenLine = false;
    /// The character after a CR is still to be dropped.
    bool m_isSkipping = false;

    void ReadMark();
    template <typename Unit> bool HoldNext();
    template <typename Unit> void Hold(std::span<Unit> units);
    template <typename Unit> std::span<Unit> UnitsAtHand();
    bool NextWide();
    bool NextNarrow();
};

} // namespace Quillory
