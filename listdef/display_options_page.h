// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/page.h"

class QCheckBox;
class QRadioButton;

namespace Quillory {

/// How lists are displayed, whichever they are.
struct DisplayOptions
{
    bool isLandscape = false;
    /// The rotation is right-handed; otherwise left-handed.
    bool isRightHanded = true;
    bool hasAlternateLines = false;

    friend bool operator==(const DisplayOptions&, const DisplayOptions&) = default;
};

class DisplayOptionsPage : public Page
{
    Q_OBJECT

public:
    explicit DisplayOptionsPage(const DisplayOptions& options, QWidget* parent = nullptr);

    [[nodiscard]] DisplayOptions Result() const;

    [[nodiscard]] bool HasUnsavedInput() const override;

private:
    DisplayOptions m_before;
    QCheckBox* m_landscape;
    QRadioButton* m_rightHanded;
    QRadioButton* m_leftHanded;
    QCheckBox* m_alternate;
};

} // namespace Quillory
