// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/page.h"

class QLabel;

namespace Quillory {

/// Asks for a place for the data file; ends with a tap on OK.
class WelcomePage : public Page
{
    Q_OBJECT

public:
    explicit WelcomePage(QWidget* parent = nullptr);
};

/// The name of the program and its version.
class AboutPage : public Page
{
    Q_OBJECT

public:
    explicit AboutPage(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QLabel* m_name;

    void FitName();
};

} // namespace Quillory
