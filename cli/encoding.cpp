// SPDX-License-Identifier: MIT
#include "cli/encoding.h"

#include "cli/command_run.h"
#include "platform/code_page.h"

#include <QtEndian>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

TextEncoding ReadEncoding(const QString& name, const ValueContext& context)
{
    TextEncoding encoding { std::nullopt, context };
    if (name.isEmpty())
        return encoding;
    const QString word = name.toLower();
    if (word == u"utf-8" || word == u"utf-16") {
        encoding.unicode = word == u"utf-8" ? QStringConverter::Utf8 : QStringConverter::Utf16LE;
        return encoding;
    }
    bool isNumber = false;
    const int codePage = word.toInt(&isNumber);
    if (!isNumber || CodePage::For(codePage) == nullptr)
        FailUsage(u"“%1” is neither utf-8, utf-16 nor the number of a code page"_s.arg(name));
    encoding.context.userLocale.codePage = codePage;
    return encoding;
}

RecodedText::RecodedText(QIODevice& source, QStringConverter::Encoding encoding)
    : m_source(source)
    , m_isWide(encoding == QStringConverter::Utf16LE)
    , m_decoder(encoding)
    , m_text("\xFF\xFE")
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 RecodedText::readData(char* bytes, qint64 size)
{
    constexpr qint64 kPartSize = 65'536;
    while (m_text.isEmpty()) {
        QByteArray part(kPartSize, Qt::Uninitialized);
        const qint64 got = m_source.read(part.data(), part.size());
        if (got <= 0)
            return got;
        if (m_isAtStart && m_isWide && part.startsWith("\xFE\xFF"))
            m_decoder = QStringDecoder(QStringConverter::Utf16BE);
        m_isAtStart = false;
        const QString text = m_decoder.decode(QByteArrayView(part).first(got));
        if (m_decoder.hasError()) {
            setErrorString(u"the text is not %1"_s.arg(QLatin1StringView(m_decoder.name())));
            return -1;
        }
        m_text.resize(text.size() * qsizetype { sizeof(char16_t) });
        qToLittleEndian<quint16>(text.utf16(), text.size(), m_text.data());
    }
    const qint64 count = std::min<qint64>(size, m_text.size());
    std::copy_n(m_text.constData(), count, bytes);
    m_text.remove(0, count);
    return count;
}

qint64 RecodedText::writeData(const char* /*bytes*/, qint64 /*size*/)
{
    return -1;
}

} // namespace Quillory
