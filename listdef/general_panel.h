// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLineEdit;

namespace Quillory {

class IconPicker;
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
    QLineEdit* m_name;
    IconPicker* m_icon;
};

} // namespace Quillory
