// SPDX-License-Identifier: MIT
#pragma once

#include "values/value_text.h"

#include <QString>
#include <QStringView>

#include <span>
#include <vector>

namespace Quillory {

/// Looks in a text file for a date that another country reads as another day: 10/05/2026 is in May
/// or in October.
class AmbiguousDates
{
public:
    AmbiguousDates(std::span<const PropertyId> columns, const ValueContext& context);

    /// Takes the fields of a line, field i for column i.
    void Look(std::span<const QStringView> fields);
    /// The first such date as it stands in the file; empty if there was none.
    [[nodiscard]] const QString& First() const { return m_first; }

private:
    const ValueContext& m_context;
    LocaleProfile m_dayFirst;
    LocaleProfile m_monthFirst;
    /// The places of fields that hold dates.
    std::vector<size_t> m_places;
    QString m_first;

    [[nodiscard]] bool IsAmbiguous(QStringView text) const;
};

} // namespace Quillory
