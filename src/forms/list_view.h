#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/lists.h"

namespace morpho {

// A column of the report view.
struct ListViewColumn {
    std::string_view caption;
    int width = 0;  // twips
};

struct ListViewRow {
    std::string text;
    // The name of its image ("Image"), which the toolkit maps to an icon; empty: none.
    std::string image = {};
    // The texts of the second column and of those after it.
    std::vector<std::string> details = {};
};

// Rows with an image and a text, and in the report view with further columns. Indices are
// zero-based.
class ListView : public Control {
  public:
    enum class View { kList, kReport };
    // A row was clicked, also the selected one, or was selected by key or in code.
    using ItemHandler = std::function<void(int row)>;
    // The first column is that of the rows' texts.
    ListView(Container& parent, const ControlSpec& spec, std::vector<ListViewColumn> columns,
             ItemHandler itemClick = {})
        : Control(parent, spec), columns_(std::move(columns)), itemClick_(std::move(itemClick)) {}

    const std::vector<ListViewColumn>& Columns() const { return columns_; }
    View ShownView() const { return view_; }
    void SetView(View view);

    int RowCount() const { return static_cast<int>(rows_.size()); }
    const ListViewRow& Row(int row) const { return rows_.at(static_cast<std::size_t>(row)); }
    void AddRow(ListViewRow row);
    void Clear();
    // Counts the calls of Clear: as long as it stays the same, rows are only added at the end.
    int Clearings() const { return clearings_; }
    // The row whose whole text equals `text` without regard to case, or kNoEntry.
    int FindRow(std::string_view text) const;

    // The selected row, or kNoEntry. Selecting another one raises ItemClick, ending the selection
    // raises nothing; an index outside the list throws.
    int SelectedRow() const { return selected_; }
    void SelectRow(int row);
    void SelectRowQuietly(int row);
    bool UserClick(int row);
    // The person ends the selection by a click beside the rows.
    bool UserDeselect();
    void Accept(ControlVisitor& visitor) override;

  private:
    void RaiseItemClick();

    std::vector<ListViewColumn> columns_;
    ItemHandler itemClick_;
    View view_ = View::kList;
    std::vector<ListViewRow> rows_;
    int clearings_ = 0;
    int selected_ = kNoEntry;
};

}  // namespace morpho
