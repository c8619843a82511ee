// SPDX-License-Identifier: MIT
#pragma once

#include "app/home_list_model.h"
#include "widgets/page.h"

class QToolButton;
class QTreeView;

namespace Quillory {

/// The first page: every list by its icon and name, one line each.
class HomeList : public Page
{
    Q_OBJECT

public:
    explicit HomeList(QWidget* parent = nullptr);

    /// Shows these lists in the current direction, the first one selected.
    void Fill(std::vector<ListCatalogue::HomeListEntry> lists);
    /// Lets `fill` fill it again, and keeps what is selected and how far it is scrolled.
    void KeepPlace(const std::function<void()>& fill);
    /// Adds a line, selected and visible, in its place.
    void AddLine(const ListCatalogue::HomeListEntry& list);
    void UpdateLine(const ListCatalogue::HomeListEntry& list);
    void RemoveLine(ObjectId oid);
    [[nodiscard]] bool Has(ObjectId oid) const;
    void Select(ObjectId oid);
    void SetRenamer(HomeListModel::Renamer renamer);

    /// kNoObject and an empty name if no line is selected.
    [[nodiscard]] ObjectId SelectedList() const;
    [[nodiscard]] QString SelectedName() const;

    /// Starts to edit the selected line's name in place.
    void BeginRename();
    /// Gives the lines the keyboard.
    void FocusLines();

Q_SIGNALS:
    /// The selected list is to be opened.
    void ListChosen();
    void SelectionChanged();

protected:
    /// The first page is never left.
    [[nodiscard]] bool PrepareEnd(PageResult /*result*/) override { return false; }
    [[nodiscard]] bool IsAsWideAsWindow() const override { return true; }
    void TakeReturn() override { Q_EMIT ListChosen(); }
    void resizeEvent(QResizeEvent* event) override;

private:
    HomeListModel* m_model;
    QTreeView* m_view;
    QToolButton* m_help = nullptr;
    SortDirection m_direction = SortDirection::Ascending;

    void BuildView();
    void ConnectView();
    void Sort();
    void FlipDirection();
    void OpenListMenu(const QPoint& position);
};

} // namespace Quillory
