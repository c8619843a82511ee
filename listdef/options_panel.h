#pragma once

#include <QWidget>

class QCheckBox;

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

private:
    QCheckBox* m_warnOnCount;
    ThresholdEdit* m_threshold;
    ColourButton* m_countColour;
    QCheckBox* m_warnOnExpiry;
    ColourButton* m_expiryColour;
    bool m_hasExpiryDate = false;

    void Build();
    void UpdateEnabled();
};

} // namespace Quillory
