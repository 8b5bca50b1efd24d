// Menus and toolbars. Clicks come by the connection point of a button.

#include <map>

#include "text/ignoring_case.h"
#include "windows/front_page/front_page.h"
// After <windows.h>.
#include <olectl.h>

namespace morpho::test {

namespace {

using Control = std::shared_ptr<HostControl>;
using Controls = std::shared_ptr<HostControls>;

// The events of a button.
constexpr IID kButtonEvents = {0x000C0351, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr DISPID kClick = 1;

HostObject ControlObject(FrontPage& host, const Control& control);

HostControl& Standing(const Control& control) {
    if (control->Parent() == nullptr) throw HostRefusal{E_FAIL, "The control was deleted."};
    return *control;
}

void TellClick(FrontPage& host, const Control& control, IDispatch& listener) {
    VARIANT_BOOL cancels = VARIANT_FALSE;
    const HostObject object = ControlObject(host, control);
    VARIANT arguments[2] = {};  // the last comes first
    arguments[0].vt = VT_BOOL | VT_BYREF;
    arguments[0].pboolVal = &cancels;
    arguments[1].vt = VT_DISPATCH;
    arguments[1].pdispVal = object.get();
    DISPPARAMS given = {arguments, nullptr, 2, 0};
    listener.Invoke(kClick, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &given, nullptr,
                    nullptr, nullptr);
}

// Where the owner of a button asks for its clicks. It belongs to the button's object, whose counts
// it uses.
class ClickPoint : public IConnectionPointContainer, public IConnectionPoint {
  public:
    ClickPoint(FrontPage& host, Control control) : host_(host), control_(std::move(control)) {}
    ~ClickPoint() { host_.listeners -= static_cast<int>(listeners_.size()); }
    void SetOwner(IUnknown* owner) { owner_ = owner; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
        return owner_->QueryInterface(id, result);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return owner_->AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return owner_->Release(); }

    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) override {
        *point = nullptr;
        if (id != kButtonEvents) return CONNECT_E_NOCONNECTION;
        AddRef();
        *point = this;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE Advise(IUnknown* listener, DWORD* cookie) override {
        IDispatch* events = nullptr;
        if (FAILED(listener->QueryInterface(kButtonEvents, reinterpret_cast<void**>(&events))))
            return CONNECT_E_CANNOTCONNECT;
        const HostObject held(events, [](IDispatch* object) { object->Release(); });
        // The button's object may go while it tells of a click.
        auto told = [&host = host_, control = control_, held] { TellClick(host, control, *held); };
        *cookie = ++last_;
        listeners_[last_] = control_->OnClick(std::move(told));
        ++host_.listeners;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
        if (listeners_.erase(cookie) == 0) return CONNECT_E_NOCONNECTION;
        --host_.listeners;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) override {
        *id = kButtonEvents;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE
    GetConnectionPointContainer(IConnectionPointContainer** owner) override {
        AddRef();
        *owner = this;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

  private:
    FrontPage& host_;
    Control control_;
    IUnknown* owner_ = nullptr;
    DWORD last_ = 0;
    std::map<DWORD, std::unique_ptr<ClickEvents>> listeners_;
};

// The bytes of a BMP file.
std::string BytesOfPicture(IUnknown* object) {
    IPicture* picture = nullptr;
    if (object == nullptr ||
        FAILED(object->QueryInterface(IID_IPicture, reinterpret_cast<void**>(&picture))))
        throw HostRefusal{DISP_E_TYPEMISMATCH};
    IStream* stream = nullptr;
    LONG size = 0;
    HRESULT done = CreateStreamOnHGlobal(nullptr, TRUE, &stream);
    if (SUCCEEDED(done)) done = picture->SaveAsFile(stream, TRUE, &size);
    picture->Release();
    std::string bytes(SUCCEEDED(done) ? static_cast<std::size_t>(size) : 0, '\0');
    if (SUCCEEDED(done)) done = stream->Seek({}, STREAM_SEEK_SET, nullptr);
    if (SUCCEEDED(done)) done = stream->Read(bytes.data(), static_cast<ULONG>(size), nullptr);
    if (stream != nullptr) stream->Release();
    if (FAILED(done)) throw HostRefusal{done};
    return bytes;
}

// Two entries, to read and to assign a property of the control.
template <typename Value>
void AddProperty(std::vector<HostMember>& members, const char* name, const Control& control,
                 Value HostControlLook::*property) {
    members.push_back({name, kGet, 0, [=](const HostCall&) -> HostValue {
                           return Standing(control).Look().*property;
                       }});
    members.push_back({name, kPut, 1, [=](const HostCall& call) {
                           Value value;
                           if constexpr (std::is_same_v<Value, bool>) value = call.Flag(0, false);
                           if constexpr (std::is_same_v<Value, int>) value = call.Number(0);
                           if constexpr (std::is_same_v<Value, std::string>) value = call.Text(0);
                           Standing(control).Set(property, value);
                           return HostValue();
                       }});
}

void AddButtonMembers(std::vector<HostMember>& members, const Control& control) {
    AddProperty(members, "Style", control, &HostControlLook::style);
    HostCommandBars& bars = control->Parent()->Host();
    members.push_back({"PasteFace", kCall, 0, [control, &bars](const HostCall&) {
                           const std::string picture = bars.PictureOnClipboard();
                           if (picture.empty())
                               throw HostRefusal{E_FAIL, "The clipboard has no picture."};
                           Standing(control).Set(&HostControlLook::face, picture);
                           return HostValue();
                       }});
    // Releases before 5 have no such property.
    if (!bars.CanSetPicture()) return;
    members.push_back({"Picture", kPut, 1, [control](const HostCall& call) {
                           Standing(control).Set(&HostControlLook::face,
                                                 BytesOfPicture(call.Object(0)));
                           return HostValue();
                       }});
}

HostObject ControlsObject(FrontPage& host, const Controls& controls) {
    const auto add = [&host, controls](const HostCall& call) {
        HostControlSpec spec;
        if (call.Has(0)) spec.type = call.Number(0);
        if (call.Has(1)) throw HostRefusal{E_NOTIMPL, "Built-in commands are not added here."};
        if (call.Has(2)) spec.parameter = call.Text(2);
        const int before = call.Has(3) ? call.Number(3) : controls->Count() + 1;
        return ControlObject(host, controls->Insert(before, std::move(spec)));
    };
    const auto item = [&host, controls](int index) {
        return ControlObject(host, controls->All()[static_cast<std::size_t>(index)]);
    };
    return MakeCollection(host.hooks, "Controls", 1, [controls] { return controls->Count(); }, item,
                          {{"Add", kCall, 5, add}});
}

HostObject ControlObject(FrontPage& host, const Control& control) {
    std::vector<HostMember> members = {
        {"Type", kGet, 0, [control](const HostCall&) { return Standing(control).Type(); }},
        {"Id", kGet, 0, [control](const HostCall&) { return Standing(control).Id(); }},
        {"Index", kGet, 0, [control](const HostCall&) { return Standing(control).Index(); }},
        {"Tag", kGet, 0, [control](const HostCall&) { return Standing(control).Tag(); }},
        {"Tag", kPut, 1,
         [control](const HostCall& call) {
             Standing(control).SetTag(call.Text(0));
             return HostValue();
         }},
        {"Delete", kCall, 1, [control](const HostCall&) {
             Standing(control).Remove();
             return HostValue();
         }}};
    AddProperty(members, "Caption", control, &HostControlLook::caption);
    AddProperty(members, "TooltipText", control, &HostControlLook::tooltip);
    AddProperty(members, "BeginGroup", control, &HostControlLook::beginsGroup);
    if (control->Controls()) {
        members.push_back({"Controls", kGet, 0, [&host, control](const HostCall&) {
                               return ControlsObject(host, Standing(control).Controls());
                           }});
        return MakeObject({host.hooks, "CommandBarPopup", std::move(members)});
    }
    AddButtonMembers(members, control);
    const auto clicks = std::make_shared<ClickPoint>(host, control);
    const auto other = [clicks](REFIID id) -> IUnknown* {
        if (id == IID_IConnectionPointContainer)
            return static_cast<IConnectionPointContainer*>(clicks.get());
        return nullptr;
    };
    const HostObject button =
        MakeObject({host.hooks, "CommandBarButton", std::move(members), other});
    clicks->SetOwner(button.get());
    return button;
}

HostObject BarObject(FrontPage& host, const std::shared_ptr<HostBar>& bar) {
    // Type, Id, Tag, Visible, Recursive
    const auto find = [&host, bar](const HostCall& call) -> HostObject {
        std::string tag;
        if (call.Has(2)) tag = call.Text(2);
        const auto control = bar->controls->Find(
            call.Has(1) ? std::optional(call.Number(1)) : std::nullopt,
            call.Has(2) ? std::optional<std::string_view>(tag) : std::nullopt, call.Flag(4, false));
        return control ? ControlObject(host, control) : nullptr;
    };
    return MakeObject(
        {host.hooks,
         "CommandBar",
         {{"Name", kGet, 0, [bar](const HostCall&) { return bar->name; }},
          {"Controls", kGet, 0,
           [&host, bar](const HostCall&) { return ControlsObject(host, bar->controls); }},
          {"FindControl", kCall, 5, find}}});
}

}  // namespace

HostObject CommandBarsObject(FrontPage& host) {
    const auto item = [&host](const HostCall& call) {
        const std::string name = call.Text(0);
        for (const auto& bar : host.host.HostBars().All()) {
            if (EqualIgnoringCase(bar->name, name)) return BarObject(host, bar);
        }
        throw HostRefusal{E_INVALIDARG, "There is no command bar of this name."};
    };
    return MakeObject(
        {host.hooks,
         "CommandBars",
         {{"ActiveMenuBar", kGet, 0,
           [&host](const HostCall&) { return BarObject(host, host.host.HostBars().MenuBar()); }},
          {"Item", kCall | kGet, 1, item}}});
}

}  // namespace morpho::test
