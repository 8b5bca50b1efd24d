#pragma once

#include <string>

#include "windows_system/win32.h"

#include <commctrl.h>

namespace morpho {

// Calls of a list view's window (SysListView32) with rows of which at most one is selected.

// Appends a row; the image is an index in the window's image list.
void AppendRow(HWND list, const std::string& text, int image);
void SetCell(HWND list, int row, int column, const std::string& text);

// The selected row; -1: none.
int SelectedRow(HWND list);
// Selects the row and brings it into sight; -1 ends the selection.
void SelectRow(HWND list, int row);

// The row at this point of the window (LPARAM of a mouse message), and the part of it that is hit
// (LVHT_). The row is -1 beside the rows.
LVHITTESTINFO HitRow(HWND list, POINT at);
POINT PointOf(LPARAM mouse);

}  // namespace morpho
