// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QBoxLayout;
class QCheckBox;
class QLabel;

namespace Quillory {

class ColourButton;
class ThresholdEdit;
struct InventoryList;

/// The colour warnings of a list. What is greyed keeps its value and is saved with the rest.
class OptionsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit OptionsPanel(const InventoryList& list, QWidget* parent = nullptr);

    /// The expiry warning can be set only for a list with that column.
    void SetHasExpiryDate(bool hasExpiryDate);
    /// Puts the warnings into `list`; option bits of others are kept.
    void Apply(InventoryList& list) const;

    /// Lays the panel out for a page of this width, in logical pixels.
    void FitTo(int pageWidth);

private:
    QCheckBox* m_warnOnCount;
    ThresholdEdit* m_threshold;
    QLabel* m_toColour;
    ColourButton* m_countColour;
    /// The threshold and its colour: side by side where there is room.
    QBoxLayout* m_countLine;
    QCheckBox* m_warnOnExpiry;
    ColourButton* m_expiryColour;
    QLabel* m_noExpiry;
    bool m_hasExpiryDate = false;

    void Build();
    [[nodiscard]] QBoxLayout* MakeCountLine();
    void UpdateEnabled();
};

} // namespace Quillory
