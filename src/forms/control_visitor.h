#pragma once

#include "forms/controls.h"
#include "forms/list_view.h"
#include "forms/lists.h"
#include "forms/option_button.h"
#include "forms/text_box.h"
#include "forms/tree_view.h"

namespace morpho {

// Tells the kinds of control apart, for a toolkit that makes a peer for each.
class ControlVisitor {
  public:
    virtual ~ControlVisitor() = default;
    virtual void Visit(Frame& control) = 0;
    virtual void Visit(Label& control) = 0;
    virtual void Visit(CommandButton& control) = 0;
    virtual void Visit(CheckBox& control) = 0;
    virtual void Visit(OptionButton& control) = 0;
    virtual void Visit(TextBox& control) = 0;
    virtual void Visit(ComboBox& control) = 0;
    virtual void Visit(ListBox& control) = 0;
    virtual void Visit(CheckListBox& control) = 0;
    virtual void Visit(TreeView& control) = 0;
    virtual void Visit(ListView& control) = 0;
    virtual void Visit(Slider& control) = 0;
    virtual void Visit(ScrollBar& control) = 0;
    virtual void Visit(PictureBox& control) = 0;
    virtual void Visit(WebBrowser& control) = 0;
    virtual void Visit(Timer& control) = 0;
};

}  // namespace morpho
