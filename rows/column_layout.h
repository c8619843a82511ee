// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <vector>

class QHeaderView;

namespace Quillory {

struct InventoryList;
class RowsTable;

/// Wider columns are no work of a person's hand.
constexpr int kMaxColumnWidth = 10000;

/// The widths and the order of a rows view's columns. A width that somebody has set stays as it is.
/// The others are fitted to what the columns hold, and those of texts share what room the view then
/// has left, so that a list fills a wide window after it was seen on a narrow one.
class ColumnLayout : public QObject
{
    Q_OBJECT

public:
    /// Takes over what `list` stores, once the view shows its rows. A width that is missing or
    /// absurd was set by nobody; an order that is none is passed over. Both outlive the layout.
    ColumnLayout(RowsTable& view, InventoryList& list);

    /// Puts the widths that were set, 0 for each other, and the order into the list's definition.
    void Store() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    RowsTable& m_view;
    QHeaderView& m_header;
    InventoryList& m_list;
    std::vector<bool> m_isSet;
    /// What each column needs for its title and for what it holds in the first lines.
    std::vector<int> m_needs;
    bool m_isFitting = false;

    [[nodiscard]] bool IsText(int column) const;
    void TakeOverStored();
    void Measure();
    void Fit();
};

} // namespace Quillory
