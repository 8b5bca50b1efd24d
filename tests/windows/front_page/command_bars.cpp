// Menus and toolbars. Clicks come by the connection point of a button.

#include "text/ignoring_case.h"
#include "windows/front_page/front_page.h"
#include "windows_com/com_error.h"
#include "windows_com/event_source.h"

namespace morpho::test {

namespace {

using Control = std::shared_ptr<HostControl>;
using Controls = std::shared_ptr<HostControls>;

// The events of a button.
constexpr IID kButtonEvents = {0x000C0351, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr DISPID kClick = 1;

HostControl& Standing(const Control& control) {
    if (control->Parent() == nullptr) throw ErrorOf(E_FAIL, "The control was deleted.");
    return *control;
}

// Tells who listens of the control's clicks for as long as it lives.
class ButtonObject : public EventSource {
  public:
    ButtonObject(FrontPage& host, const Control& control, const HostMembers& members)
        : EventSource(kButtonEvents), clicks_(control->OnClick([this] { TellClick(); })) {
        host.Enter(Members(), "CommandBarButton", members);
    }

  private:
    void TellClick() {
        const HostObject self(this);
        Variant cancelDefault(false);
        Events().Fire(kClick, {Variant(self), Variant::Reference(cancelDefault)});
    }

    std::unique_ptr<ClickEvents> clicks_;
};

// The bytes of a BMP file.
std::string BytesOfPicture(const VARIANT& value) {
    const auto picture = ObjectOf(value).As<IPicture>();
    if (!picture) throw ErrorOf(DISP_E_TYPEMISMATCH);
    ComPointer<IStream> stream;
    LONG size = 0;
    Check(CreateStreamOnHGlobal(nullptr, TRUE, stream.Out()));
    Check(picture->SaveAsFile(stream.Get(), TRUE, &size));
    Check(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    std::string bytes(static_cast<std::size_t>(size), '\0');
    Check(stream->Read(bytes.data(), static_cast<ULONG>(size), nullptr));
    return bytes;
}

bool ValueOf(const VARIANT& value, bool) {
    return TruthOf(value);
}
int ValueOf(const VARIANT& value, int) {
    return IntegerOf(value);
}
std::string ValueOf(const VARIANT& value, const std::string&) {
    return TextOf(value);
}

template <typename Value>
HostMember LookMember(const char* name, const Control& control, Value HostControlLook::*property) {
    HostMember member = Get(name, [=] { return Standing(control).Look().*property; });
    member.put = [=](const CallArguments& call) {
        Standing(control).Set(property, ValueOf(call[0], Value()));
        return Variant();
    };
    return member;
}

HostMembers ControlMembers(const Control& control) {
    HostMember tag = Get("Tag", [=] { return Standing(control).Tag(); });
    tag.put = [=](const CallArguments& call) {
        Standing(control).SetTag(TextOf(call[0]));
        return Variant();
    };
    return {tag,
            Get("Type", [=] { return Standing(control).Type(); }),
            Get("Id", [=] { return Standing(control).Id(); }),
            Get("Index", [=] { return Standing(control).Index(); }),
            Order("Delete", [=] { Standing(control).Remove(); }),
            LookMember("Caption", control, &HostControlLook::caption),
            LookMember("TooltipText", control, &HostControlLook::tooltip),
            LookMember("BeginGroup", control, &HostControlLook::beginsGroup)};
}

HostMembers ButtonMembers(const Control& control) {
    HostMembers members = ControlMembers(control);
    members.push_back(LookMember("Style", control, &HostControlLook::style));
    const HostCommandBars& bars = control->Parent()->Host();
    members.push_back(Order("PasteFace", [control, &bars] {
        std::string picture = bars.PictureOnClipboard();
        if (picture.empty()) throw ErrorOf(E_FAIL, "The clipboard has no picture.");
        Standing(control).Set(&HostControlLook::face, std::move(picture));
    }));
    HostMember picture = LookMember("Picture", control, &HostControlLook::face);
    picture.put = [control](const CallArguments& call) {
        Standing(control).Set(&HostControlLook::face, BytesOfPicture(call[0]));
        return Variant();
    };
    if (bars.CanSetPicture()) members.push_back(picture);
    return members;
}

HostObject ControlsObject(FrontPage& host, const Controls& controls);

HostObject ControlObject(FrontPage& host, const Control& control) {
    if (!control->Controls())
        return MakeComObject<ButtonObject>(host, control, ButtonMembers(control));
    HostMembers members = ControlMembers(control);
    members.push_back(Get("Controls", [&host, control] {
        return ControlsObject(host, Standing(control).Controls());
    }));
    return host.Object("CommandBarPopup", members);
}

HostObject ControlsObject(FrontPage& host, const Controls& controls) {
    // Type, Id, Parameter, Before, Temporary
    const auto add = [&host, controls](const CallArguments& call) {
        HostControlSpec spec;
        if (call.Has(0)) spec.type = IntegerOf(call[0]);
        if (call.Has(1)) throw ErrorOf(E_NOTIMPL, "Commands of the host are not added here.");
        if (call.Has(2)) spec.parameter = TextOf(call[2]);
        const int before = call.Has(3) ? IntegerOf(call[3]) : controls->Count() + 1;
        return ControlObject(host, controls->Insert(before, std::move(spec)));
    };
    const auto item = [&host, controls](int index) {
        return ControlObject(host, controls->All()[static_cast<std::size_t>(index)]);
    };
    return host.Collection("Controls", 1, [controls] { return controls->Count(); }, item,
                           {Call("Add", 5, add)});
}

HostObject BarObject(FrontPage& host, const std::shared_ptr<HostBar>& bar) {
    // Type, Id, Tag, Visible, Recursive
    const auto find = [&host, bar](const CallArguments& call) -> HostObject {
        std::optional<int> id;
        std::optional<std::string> tag;
        if (call.Has(1)) id = IntegerOf(call[1]);
        if (call.Has(2)) tag = TextOf(call[2]);
        const auto control = bar->controls->Find(id, tag, call.Has(4) && TruthOf(call[4]));
        return control ? ControlObject(host, control) : nullptr;
    };
    return host.Object(
        "CommandBar",
        {Get("Name", [bar] { return bar->name; }),
         Get("Controls", [&host, bar] { return ControlsObject(host, bar->controls); }),
         Call("FindControl", 5, find)});
}

}  // namespace

HostObject CommandBarsObject(FrontPage& host) {
    const auto item = [&host](const CallArguments& call) {
        const std::string name = TextOf(call[0]);
        for (const auto& bar : host.standIn.HostBars().All()) {
            if (EqualIgnoringCase(bar->name, name)) return BarObject(host, bar);
        }
        throw ErrorOf(E_INVALIDARG, "There is no command bar of this name.");
    };
    return host.Object("CommandBars",
                       {Get("ActiveMenuBar",
                            [&host] { return BarObject(host, host.standIn.HostBars().MenuBar()); }),
                        Call("Item", 1, item)});
}

}  // namespace morpho::test
