#include "windows/add_ins.h"

#include <gtest/gtest.h>

#include "windows/front_page/private_registry.h"
#include "windows_system/wide.h"

namespace morpho::test {

namespace {

constexpr const wchar_t* kAddIns = L"Software\\Microsoft\\Office\\FrontPage\\Addins";
constexpr DWORD kLoadAtStart = 3;

constexpr IID kAddInContract = {
    0xB65AD801, 0xABAF, 0x11D0, {0xBB, 0x8B, 0x00, 0xA0, 0xC9, 0x0F, 0x27, 0x44}};

}  // namespace

// What a host calls, in the order of the table.
struct AddInContract : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, int mode,
                                                   IDispatch* addIn, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnDisconnection(int mode, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;
};

std::vector<std::wstring> AddInsToLoad() {
    std::vector<std::wstring> found = KeysBelow(HKEY_CURRENT_USER, kAddIns);
    std::erase_if(found, [](const std::wstring& progId) {
        const std::wstring key = std::wstring(kAddIns) + L"\\" + progId;
        DWORD behaviour = 0;
        DWORD size = sizeof behaviour;
        RegGetValueW(HKEY_CURRENT_USER, key.c_str(), L"LoadBehavior", RRF_RT_REG_DWORD, nullptr,
                     &behaviour, &size);
        return behaviour != kLoadAtStart;
    });
    return found;
}

ConnectedAddIn::ConnectedAddIn(FrontPage& host, const std::wstring& progId, CallsBy how)
    : host_(host),
      how_(how),
      application_(ApplicationObject(host)),
      instance_(host.Object("COMAddIn", {})) {
    CLSID id = {};
    EXPECT_EQ(CLSIDFromProgID(progId.c_str(), &id), S_OK) << Narrow(progId);
    EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, kAddInContract,
                               reinterpret_cast<void**>(&addIn_)),
              S_OK)
        << Narrow(progId);
    Tell(Event::kConnection);
}

ConnectedAddIn::~ConnectedAddIn() {
    if (addIn_ == nullptr) return;
    Tell(Event::kDisconnection);
    addIn_->Release();
}

void ConnectedAddIn::ConnectAgain() {
    Tell(Event::kConnection);
}

void ConnectedAddIn::Tell(Event event) {
    if (addIn_ == nullptr) return;
    SAFEARRAY* custom = SafeArrayCreateVector(VT_VARIANT, 1, 0);
    const bool connects = event == Event::kConnection;
    HRESULT done = S_OK;
    if (how_ == CallsBy::kTable) {
        done = connects ? addIn_->OnConnection(application_.Get(), 1, instance_.Get(), &custom)
                        : addIn_->OnDisconnection(0, &custom);
    } else {
        VARIANT arguments[4] = {};  // the last comes first
        arguments[0].vt = VT_ARRAY | VT_VARIANT | VT_BYREF;
        arguments[0].pparray = &custom;
        arguments[connects ? 2 : 1].vt = VT_I4;
        arguments[connects ? 2 : 1].lVal = connects ? 1 : 0;
        if (connects) {
            arguments[1].vt = arguments[3].vt = VT_DISPATCH;
            arguments[1].pdispVal = instance_.Get();
            arguments[3].pdispVal = application_.Get();
        }
        DISPPARAMS given = {arguments, nullptr, connects ? 4U : 2U, 0};
        done = addIn_->Invoke(static_cast<DISPID>(event), IID_NULL, LOCALE_USER_DEFAULT,
                              DISPATCH_METHOD, &given, nullptr, nullptr, nullptr);
    }
    SafeArrayDestroy(custom);
    EXPECT_EQ(done, S_OK);
}

}  // namespace morpho::test
