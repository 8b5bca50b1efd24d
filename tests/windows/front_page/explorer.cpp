#include "platform/run_time_error.h"
#include "windows/front_page/front_page.h"
#include "windows_system/wide.h"

namespace morpho::test {

namespace {

constexpr const char* kMethods[] = {"vtiBringToTop", "vtiCreateFolder", "vtiGetDocToFile",
                                    "vtiIsFolderInWeb", "vtiMakeThemeFresh"};
constexpr std::size_t kMostArguments = 4;

HostValue CallExplorer(AutomationObject& explorer, const char* method, const HostCall& call) {
    std::vector<AutomationValue> arguments;
    for (std::size_t i = 0; i < call.Count(); ++i) {
        if (!call.IsByReference(i)) throw HostRefusal{DISP_E_TYPEMISMATCH};
        // The flags of "vtiMakeThemeFresh" come after two texts.
        if (i < 2) {
            arguments.emplace_back(call.Text(i));
        } else {
            arguments.emplace_back(call.Flag(i, false));
        }
    }
    const AutomationValue answer = explorer.Call(method, arguments);
    const auto* number = std::get_if<std::int32_t>(&answer);
    return number != nullptr ? HostValue(static_cast<int>(*number)) : HostValue();
}

// One explorer for all callers, as the running program hands it out.
class ExplorerFactory : public IClassFactory {
  public:
    explicit ExplorerFactory(FrontPage& host) : host_(host), automation_(host.host) {}
    virtual ~ExplorerFactory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
        *result = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
        if (*result == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --count_;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** result) override {
        *result = nullptr;
        if (outer != nullptr) return CLASS_E_NOAGGREGATION;
        try {
            host_.hooks->before("Explorer");
            const std::string progId = "FrontPage.Explorer." + host_.host.Version();
            return ExplorerObject(host_, automation_.CreateObject(progId))
                ->QueryInterface(id, result);
        } catch (const HostRefusal& refusal) {
            return refusal.result;
        }
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

  private:
    FrontPage& host_;
    DiskAutomation automation_;
    ULONG count_ = 1;
};

}  // namespace

HostObject ExplorerObject(FrontPage& host, std::shared_ptr<AutomationObject> explorer) {
    std::vector<HostMember> members;
    for (const char* method : kMethods) {
        members.push_back({method, kCall, kMostArguments, [explorer, method](const HostCall& call) {
                               return CallExplorer(*explorer, method, call);
                           }});
    }
    return MakeObject({host.hooks, "Explorer", std::move(members)});
}

ExplorerClass::ExplorerClass(FrontPage& host, const std::string& classId) {
    CLSID id;
    IUnknown* factory = new ExplorerFactory(host);
    HRESULT done = CLSIDFromString(Wide(classId).c_str(), &id);
    if (SUCCEEDED(done)) {
        done = CoRegisterClassObject(id, factory, CLSCTX_LOCAL_SERVER | CLSCTX_INPROC_SERVER,
                                     REGCLS_MULTIPLEUSE, &cookie_);
    }
    factory->Release();
    if (FAILED(done))
        throw RunTimeError(ErrorNumber::kAutomation, "The explorer cannot be registered.");
}

ExplorerClass::~ExplorerClass() {
    CoRevokeClassObject(cookie_);
}

}  // namespace morpho::test
