#include "windows_toolkit/peer_factory.h"

#include <utility>

#include "windows_toolkit/button_peers.h"
#include "windows_toolkit/check_list_peer.h"
#include "windows_toolkit/combo_box_peer.h"
#include "windows_toolkit/frame_peer.h"
#include "windows_toolkit/label_peer.h"
#include "windows_toolkit/list_box_peer.h"
#include "windows_toolkit/list_view_peer.h"
#include "windows_toolkit/picture_peer.h"
#include "windows_toolkit/scroll_bar_peer.h"
#include "windows_toolkit/slider_peer.h"
#include "windows_toolkit/text_box_peer.h"
#include "windows_toolkit/timer_peer.h"
#include "windows_toolkit/tree_view_peer.h"
#include "windows_toolkit/web_browser_peer.h"

namespace morpho {

void PeerFactory::MakePeers(const Container& container, HWND window) {
    const HWND outer = std::exchange(parent_, window);
    for (Control* const control : container.Controls())
        control->Accept(*this);
    parent_ = outer;
}

template <typename PeerType, typename ControlType>
PeerType& PeerFactory::Add(ControlType& control) {
    return Keep(control, std::make_unique<PeerType>(control, parent_, context_));
}

template <typename PeerType, typename ControlType>
PeerType& PeerFactory::Keep(ControlType& control, std::unique_ptr<PeerType> peer) {
    PeerType& kept = *peer;
    peers_.push_back(std::move(peer));
    control.Attach(&kept);
    return kept;
}

void PeerFactory::Visit(Frame& control) {
    MakePeers(control, Add<FramePeer>(control).Window());
}
void PeerFactory::Visit(Label& control) {
    Add<LabelPeer>(control);
}
void PeerFactory::Visit(CommandButton& control) {
    Add<CommandButtonPeer>(control);
}
void PeerFactory::Visit(CheckBox& control) {
    Add<CheckBoxPeer>(control);
}
void PeerFactory::Visit(OptionButton& control) {
    Add<OptionButtonPeer>(control);
}
void PeerFactory::Visit(TextBox& control) {
    Add<TextBoxPeer>(control);
}
void PeerFactory::Visit(ComboBox& control) {
    Add<ComboBoxPeer>(control);
}
void PeerFactory::Visit(ListBox& control) {
    Add<ListBoxPeer>(control);
}
void PeerFactory::Visit(CheckListBox& control) {
    Add<CheckListPeer>(control);
}
void PeerFactory::Visit(TreeView& control) {
    Add<TreeViewPeer>(control);
}
void PeerFactory::Visit(ListView& control) {
    Add<ListViewPeer>(control);
}
void PeerFactory::Visit(Slider& control) {
    Add<SliderPeer>(control);
}
void PeerFactory::Visit(ScrollBar& control) {
    if (control.BarShape() == ScrollBar::Shape::kArrows) {
        Add<ArrowsPeer>(control);
    } else {
        Add<ScrollBarPeer>(control);
    }
}
void PeerFactory::Visit(PictureBox& control) {
    Add<PicturePeer>(control);
}
void PeerFactory::Visit(WebBrowser& control) {
    Add<WebBrowserPeer>(control);
}
void PeerFactory::Visit(Timer& control) {
    Keep(control, std::make_unique<TimerPeer>(control, context_.window));
}

}  // namespace morpho
