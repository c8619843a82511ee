// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Quillory {

class IconPicker;
class TextLine;
struct InventoryList;

/// Name and icon of a list.
class GeneralPanel : public QWidget
{
    Q_OBJECT

public:
    explicit GeneralPanel(const InventoryList& list, QWidget* parent = nullptr);

    /// Puts what is entered into `list`, an empty name too.
    void Apply(InventoryList& list) const;

private:
    TextLine* m_name;
    IconPicker* m_icon;
};

} // namespace Quillory
