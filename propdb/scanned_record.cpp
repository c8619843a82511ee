// SPDX-License-Identifier: MIT
#include "propdb/scanned_record.h"

#include <QtEndian>

namespace Quillory {

namespace {

void MarkMissing(PropertyValue& value)
{
    value.flags = CEDB_PROPNOTFOUND;
    value.value = std::monostate();
}

void ReadText(QByteArrayView bytes, QString& text)
{
    const qsizetype size = bytes.size() / static_cast<qsizetype>(sizeof(char16_t));
    text.resize(size);
    if (size > 0)
        qFromBigEndian<quint16>(bytes.data(), size, text.data());
}

} // namespace

ScannedRecord::~ScannedRecord() = default;

void ScannedRecord::Read(size_t place, PropertyValue& value) const
{
    value.flags = 0;
    switch (PropertyType(value.id)) {
    case CEVT_I2:
        return ReadNumber(place, value, static_cast<qint16>(Integer(place)));
    case CEVT_I4:
        return ReadNumber(place, value, static_cast<qint32>(Integer(place)));
    case CEVT_UI4:
        return ReadNumber(place, value, static_cast<quint32>(Integer(place)));
    case CEVT_BOOL:
        return ReadNumber(place, value, Integer(place) != 0);
    case CEVT_FILETIME:
        return ReadNumber(place, value, FileTime { static_cast<quint64>(Integer(place)) });
    case CEVT_R8:
        return ReadNumber(place, value, Number(place));
    default:
        break;
    }
    if (IsMissing(place))
        return MarkMissing(value);
    if (PropertyType(value.id) == CEVT_BLOB) {
        value.value = Bytes(place).toByteArray();
        return;
    }
    if (!std::holds_alternative<QString>(value.value))
        value.value = QString();
    ReadText(Bytes(place), std::get<QString>(value.value));
}

template <typename Value>
void ScannedRecord::ReadNumber(size_t place, PropertyValue& value, Value number) const
{
    // What is missing reads as zero, so that only a zero needs a second look.
    if (number == Value {} && IsMissing(place))
        return MarkMissing(value);
    if (auto* current = std::get_if<Value>(&value.value))
        *current = number;
    else
        value.value = number;
}

} // namespace Quillory
