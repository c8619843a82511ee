#pragma once

#include "store/inventory_list.h"
#include "values/value_text.h"
#include "widgets/page.h"

#include <vector>

namespace Quillory {

/// The fields of one row, a line each. Ends with Ok, or with CancelKey and nothing to be written.
class RowEditorPage : public Page
{
    Q_OBJECT

public:
    /// `row` holds the values to start with; null for those of a new row.
    RowEditorPage(const QString& title, const InventoryList& list, const Record* row,
        const ValueContext& context, QWidget* parent = nullptr);

    /// One text per column, in column order.
    [[nodiscard]] std::vector<QString> Texts() const;

    void RequestEnd(PageResult result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::vector<QWidget*> m_fields;

    [[nodiscard]] QWidget* MakeField(
        PropertyId column, const QString& text, const ValueContext& context);
    void Step(QWidget* from, int by);
};

} // namespace Quillory
