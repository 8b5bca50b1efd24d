#include "qt/peer_factory.h"

#include <utility>

#include "qt/button_peers.h"
#include "qt/check_list_peer.h"
#include "qt/frame_peer.h"
#include "qt/label_peer.h"
#include "qt/list_peers.h"
#include "qt/list_view_peer.h"
#include "qt/picture_peer.h"
#include "qt/slider_peers.h"
#include "qt/text_box_peer.h"
#include "qt/timer_peer.h"
#include "qt/tree_view_peer.h"
#include "qt/web_browser_peer.h"

namespace morpho {

void PeerFactory::MakePeers(const Container& container, QWidget* widget) {
    QWidget* const outer = std::exchange(parent_, widget);
    // A widget that is made later stands above its siblings, as a control does.
    for (Control* const control : container.Controls())
        control->Accept(*this);
    for (Control* const control : container.Controls()) {
        const auto* const label = dynamic_cast<const Label*>(control);
        if (label != nullptr && label->Buddy() != nullptr)
            static_cast<LabelPeer*>(made_.at(label))->SetBuddy(made_.at(label->Buddy())->Widget());
    }
    parent_ = outer;
}

template <typename PeerType, typename ControlType>
PeerType& PeerFactory::Add(ControlType& control) {
    auto peer = std::make_unique<PeerType>(control, parent_, context_);
    PeerType& added = *peer;
    peers_.push_back(std::move(peer));
    made_[&control] = &added;
    control.Attach(&added);
    return added;
}

void PeerFactory::Visit(Frame& control) {
    MakePeers(control, Add<FramePeer>(control).Widget());
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
    auto peer = std::make_unique<TimerPeer>(control);
    TimerPeer& added = *peer;
    peers_.push_back(std::move(peer));
    control.Attach(&added);
}

}  // namespace morpho
