#include "windows_toolkit/button_peers.h"

#include "windows_toolkit/window_text.h"

namespace morpho {

namespace {

void WriteButton(HWND window, const Control& button, Aspects changed) {
    if (changed & aspect::kCaption) SetWindowTextW(window, MarkedCaptionOf(button).c_str());
}

void WriteMark(HWND window, bool marked) {
    SendMessageW(window, BM_SETCHECK, marked ? BST_CHECKED : BST_UNCHECKED, 0);
}

}  // namespace

CommandButtonPeer::CommandButtonPeer(CommandButton& button, HWND parent, const PeerContext& context)
    : ControlPeer(button, parent, context, WC_BUTTONW,
                  button.IsDefault() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON),
      button_(button) {}

void CommandButtonPeer::OnCommand(WORD code) {
    if (code == BN_CLICKED) Did([this] { button_.UserClick(); });
}

void CommandButtonPeer::WriteOwn(Aspects changed) {
    WriteButton(Window(), button_, changed);
}

// The mark is the model's: the button itself does not change it.
CheckBoxPeer::CheckBoxPeer(CheckBox& box, HWND parent, const PeerContext& context)
    : ControlPeer(box, parent, context, WC_BUTTONW, BS_CHECKBOX), box_(box) {}

void CheckBoxPeer::OnCommand(WORD code) {
    if (code == BN_CLICKED) Did([this] { box_.UserSet(!box_.Value()); });
}

void CheckBoxPeer::WriteOwn(Aspects changed) {
    WriteButton(Window(), box_, changed);
    if (changed & aspect::kValue) WriteMark(Window(), box_.Value());
}

OptionButtonPeer::OptionButtonPeer(OptionButton& option, HWND parent, const PeerContext& context)
    : ControlPeer(option, parent, context, WC_BUTTONW, BS_RADIOBUTTON), option_(option) {
    // It would take the focus for a click.
    SendMessageW(Window(), BM_SETDONTCLICK, TRUE, 0);
}

void OptionButtonPeer::OnCommand(WORD code) {
    if (code == BN_CLICKED) Did([this] { option_.UserClick(); });
}

void OptionButtonPeer::WriteOwn(Aspects changed) {
    WriteButton(Window(), option_, changed);
    if (changed & aspect::kValue) WriteMark(Window(), option_.Value());
}

}  // namespace morpho
