#include "web_host/disk_explorer.h"
#include "windows/front_page/front_page.h"
#include "windows_com/class_factory.h"
#include "windows_com/com_error.h"
#include "windows_system/wide.h"

namespace morpho::test {

namespace {

constexpr const char* kMethods[] = {"vtiBringToTop", "vtiCreateFolder", "vtiGetDocToFile",
                                    "vtiIsFolderInWeb", "vtiMakeThemeFresh"};
constexpr std::size_t kMostArguments = 4;

Variant CallExplorer(AutomationObject& explorer, const char* method, const CallArguments& call) {
    std::vector<AutomationValue> arguments;
    for (std::size_t i = 0; i < call.Count(); ++i) {
        // The callers of this old interface hand everything over by reference.
        if ((call[i].vt & VT_BYREF) == 0) throw ResultError(DISP_E_TYPEMISMATCH);
        // Flags come after two texts only.
        arguments.push_back(i < 2 ? AutomationValue(TextOf(call[i])) : TruthOf(call[i]));
    }
    const AutomationValue answer = explorer.Call(method, arguments);
    const auto* number = std::get_if<std::int32_t>(&answer);
    return number != nullptr ? Variant(*number) : Variant();
}

HostObject ExplorerObject(FrontPage& host) {
    DiskAutomation automation(host.standIn);
    const std::shared_ptr<AutomationObject> explorer =
        automation.CreateObject("FrontPage.Explorer." + host.standIn.Version());
    HostMembers members;
    for (const char* method : kMethods) {
        members.push_back(
            Call(method, kMostArguments, [explorer, method](const CallArguments& call) {
                return CallExplorer(*explorer, method, call);
            }));
    }
    return host.Object("Explorer", members);
}

}  // namespace

ExplorerClass::ExplorerClass(FrontPage& host, const std::string& classId) {
    CLSID id;
    Check(CLSIDFromString(Wide(classId).c_str(), &id));
    const ComClass explorer = {id, {}, {}, [&host]() -> ComPointer<IUnknown> {
                                   host.beforeCall("Explorer");
                                   return ExplorerObject(host);
                               }};
    ComPointer<IUnknown> factory;
    Check(GetClassObject({&explorer, 1}, id, IID_IUnknown, factory.OutVoid()));
    Check(CoRegisterClassObject(id, factory.Get(), CLSCTX_LOCAL_SERVER | CLSCTX_INPROC_SERVER,
                                REGCLS_MULTIPLEUSE, &cookie_));
}

ExplorerClass::~ExplorerClass() {
    CoRevokeClassObject(cookie_);
}

}  // namespace morpho::test
