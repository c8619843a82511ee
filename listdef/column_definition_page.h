// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/page.h"

class QComboBox;

namespace Quillory {

class TextLine;

/// Name and type of a new column.
class ColumnDefinitionPage : public Page
{
    Q_OBJECT

public:
    explicit ColumnDefinitionPage(QWidget* parent = nullptr);

    [[nodiscard]] QString Name() const;
    /// The index of the type, 0 to 4.
    [[nodiscard]] int TypeIndex() const;

    [[nodiscard]] bool HasUnsavedInput() const override;

private:
    TextLine* m_name;
    QComboBox* m_type;
};

} // namespace Quillory
