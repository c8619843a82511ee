// SPDX-License-Identifier: MIT
#include "platform/code_page.h"

#include <QStringDecoder>
#include <QStringList>

#include <algorithm>
#include <map>
#include <span>

namespace Quillory {

namespace {

/// Marks lead bytes; no page decodes to it.
constexpr char16_t kLeadByte = 0xFFFF;
constexpr int kFirstLeadByte = 0x81;
constexpr int kTrailCount = 256;
constexpr int kPairCount = (256 - kFirstLeadByte) * kTrailCount;

/// Bytes that stand for other characters than the decoder of this computer says.
struct BytePatch
{
    int first;
    int last;
    /// The unit of `first`; those up to `last` follow.
    char16_t unit;
};

constexpr std::array kPatches1253 { BytePatch { 0xAA, 0xAA, 0xF8F9 },
    BytePatch { 0xD2, 0xD2, 0xF8FA }, BytePatch { 0xFF, 0xFF, 0xF8FB } };
constexpr std::array kPatches1255 { BytePatch { 0xCA, 0xCA, 0x05BA },
    BytePatch { 0xD9, 0xDF, 0xF88D }, BytePatch { 0xFB, 0xFC, 0xF894 },
    BytePatch { 0xFF, 0xFF, 0xF896 } };
constexpr std::array kPatches1257 { BytePatch { 0xA1, 0xA1, 0xF8FC },
    BytePatch { 0xA5, 0xA5, 0xF8FD } };
constexpr std::array kPatches932 { BytePatch { 0x80, 0x80, 0x0080 },
    BytePatch { 0xA0, 0xA0, 0xF8F0 }, BytePatch { 0xFD, 0xFF, 0xF8F1 } };
constexpr std::array kPatches936 { BytePatch { 0x80, 0x80, 0x20AC },
    BytePatch { 0xFF, 0xFF, 0xF8F5 } };
constexpr std::array kPatches949 { BytePatch { 0x80, 0x80, 0x0080 },
    BytePatch { 0xFF, 0xFF, 0xF8F7 } };
constexpr std::array kPatches950 { BytePatch { 0x80, 0x80, 0x0080 },
    BytePatch { 0xFF, 0xFF, 0xF8F8 } };

struct PageRow
{
    int number;
    /// The name under which Qt's converters know the page.
    const char* name;
    std::span<const BytePatch> patches;
    bool hasPairs = false;
    char16_t defaultUnit = u'?';
};

constexpr std::array kPages {
    PageRow { 874, "windows-874", {} },
    PageRow { 932, "windows-31j", kPatches932, true, 0x30FB },
    PageRow { 936, "windows-936", kPatches936, true },
    PageRow { 949, "windows-949", kPatches949, true },
    PageRow { 950, "windows-950", kPatches950, true },
    PageRow { 1250, "windows-1250", {} },
    PageRow { 1251, "windows-1251", {} },
    PageRow { 1252, "windows-1252", {} },
    PageRow { 1253, "windows-1253", kPatches1253 },
    PageRow { 1254, "windows-1254", {} },
    PageRow { 1255, "windows-1255", kPatches1255 },
    PageRow { 1256, "windows-1256", {} },
    PageRow { 1257, "windows-1257", kPatches1257 },
    PageRow { 1258, "windows-1258", {} },
};

bool IsLeadByte(const PageRow& page, int byte)
{
    if (!page.hasPairs) {
        return false;
    }
    if (page.number == 932) {
        return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
    }
    return byte >= 0x81 && byte <= 0xFE;
}

bool IsDecoded(QStringView text)
{
    return text.size() == 1 && text[0] != QChar::ReplacementCharacter && text[0] != u'\x1A';
}

std::array<char16_t, 256> UnitsOf(const PageRow& page)
{
    std::array<char16_t, 256> units {};
    for (int byte = 0; byte < 256; ++byte) {
        char16_t& unit = units.at(static_cast<std::size_t>(byte));
        unit = static_cast<char16_t>(byte);
        if (byte < 0x80) {
            continue;
        }
        if (IsLeadByte(page, byte)) {
            unit = kLeadByte;
            continue;
        }
        const char bytes[] = { static_cast<char>(byte) };
        const QString text = QStringDecoder(page.name).decode(QByteArrayView(bytes, 1));
        if (IsDecoded(text)) {
            unit = text[0].unicode();
        }
    }
    for (const BytePatch& patch : page.patches) {
        for (int byte = patch.first; byte <= patch.last; ++byte) {
            units.at(static_cast<std::size_t>(byte))
                = static_cast<char16_t>(patch.unit + (byte - patch.first));
        }
    }
    return units;
}

/// All pairs are decoded in one go, parted by line feeds, which no pair swallows.
std::vector<char16_t> PairsOf(const PageRow& page)
{
    QByteArray bytes;
    bytes.reserve(qsizetype(3) * kPairCount);
    for (int lead = kFirstLeadByte; lead < 256; ++lead) {
        for (int trail = 0; trail < kTrailCount; ++trail) {
            const bool isPair = IsLeadByte(page, lead) && trail >= 0x30;
            if (isPair) {
                bytes.append(static_cast<char>(lead)).append(static_cast<char>(trail));
            }
            bytes.append('\n');
        }
    }
    const QString text = QStringDecoder(page.name).decode(bytes);
    std::vector<char16_t> pairs;
    pairs.reserve(kPairCount);
    for (const QStringView pair : QStringView(text).chopped(1).split(u'\n')) {
        pairs.push_back(IsDecoded(pair) ? pair[0].unicode() : u'\0');
    }
    return pairs;
}

} // namespace

const CodePage* CodePage::For(int number)
{
    static std::map<int, std::optional<CodePage>> made;
    auto found = made.find(number);
    if (found == made.end())
        found = made.emplace(number, Make(number)).first;
    return found->second ? &*found->second : nullptr;
}

std::optional<CodePage> CodePage::Make(int number)
{
    const auto row = std::find_if(kPages.begin(), kPages.end(),
        [number](const PageRow& page) { return page.number == number; });
    if (row == kPages.end() || !QStringDecoder(row->name).isValid()) {
        return std::nullopt;
    }
    CodePage page;
    page.m_units = UnitsOf(*row);
    page.m_defaultUnit = row->defaultUnit;
    if (row->hasPairs) {
        page.m_pairs = PairsOf(*row);
    }
    return page;
}

qsizetype CodePage::Decode(QByteArrayView bytes, char16_t* target) const
{
    char16_t* out = target;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        char16_t unit = m_units.at(byte);
        if (unit == kLeadByte) {
            const bool isCut = i + 1 == bytes.size() || bytes[i + 1] == '\0';
            unit = u'\0';
            if (!isCut) {
                const auto trail = static_cast<unsigned char>(bytes[++i]);
                unit = m_pairs.at((byte - std::size_t(kFirstLeadByte)) * kTrailCount + trail);
            }
            unit = unit == u'\0' ? m_defaultUnit : unit;
        }
        *out++ = unit;
    }
    return out - target;
}

char16_t AsciiLookAlike(char16_t unit, int codePage)
{
    constexpr char16_t kMinusSign = 0x2212;
    constexpr char16_t kWideToAscii = 0xFEE0;
    if (unit == kMinusSign) {
        return codePage == 1250 || codePage == 1252 || codePage == 1254 ? u'-' : u'\0';
    }
    const bool isWide = (unit >= 0xFF10 && unit <= 0xFF19) || unit == 0xFF0E || unit == 0xFF0D;
    const bool hasSingleBytes = codePage == 874 || (codePage >= 1250 && codePage <= 1258);
    return isWide && hasSingleBytes ? static_cast<char16_t>(unit - kWideToAscii) : u'\0';
}

} // namespace Quillory
