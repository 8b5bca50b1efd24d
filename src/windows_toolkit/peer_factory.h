#pragma once

#include <memory>
#include <vector>

#include "forms/control_visitor.h"
#include "windows_toolkit/control_peer.h"

namespace morpho {

// Makes and attaches peers for everything in a container, in order of declaration.
class PeerFactory : private ControlVisitor {
  public:
    explicit PeerFactory(const PeerContext& context) : context_(context) {}

    void MakePeers(const Container& container, HWND window);
    // The peers, a container's before those of what it holds.
    std::vector<std::unique_ptr<Peer>> Take() { return std::move(peers_); }

  private:
    void Visit(Frame& control) override;
    void Visit(Label& control) override;
    void Visit(CommandButton& control) override;
    void Visit(CheckBox& control) override;
    void Visit(OptionButton& control) override;
    void Visit(TextBox& control) override;
    void Visit(ComboBox& control) override;
    void Visit(ListBox& control) override;
    void Visit(CheckListBox& control) override;
    void Visit(TreeView& control) override;
    void Visit(ListView& control) override;
    void Visit(Slider& control) override;
    void Visit(ScrollBar& control) override;
    void Visit(PictureBox& control) override;
    void Visit(WebBrowser& control) override;
    void Visit(Timer& control) override;

    template <typename PeerType, typename ControlType>
    PeerType& Add(ControlType& control);
    template <typename PeerType, typename ControlType>
    PeerType& Keep(ControlType& control, std::unique_ptr<PeerType> peer);

    PeerContext context_;
    HWND parent_ = nullptr;
    std::vector<std::unique_ptr<Peer>> peers_;
};

}  // namespace morpho
