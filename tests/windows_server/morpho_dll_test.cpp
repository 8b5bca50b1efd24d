#include <gmock/gmock.h>

#include "support/own_server.h"
#include "windows_com/com_error.h"
#include "windows_com/dispatch_caller.h"
#include "windows_com/dispatch_object.h"
#include "windows_server/extensibility.h"

namespace morpho::test {
namespace {

const std::vector<std::wstring> kKeys = {
    L"CLSID\\{8F2A4208-5493-4664-84D0-DB42C1443895}", L"Morpho.AddInTM",
    L"CLSID\\{FC405CCE-89DC-4236-A96F-5B62FA828C4C}", L"Morpho.AddInIM"};

std::string AddInText(const wchar_t* addIn, const wchar_t* name) {
    const std::wstring key =
        std::wstring(L"Software\\Microsoft\\Office\\FrontPage\\Addins\\") + addIn;
    wchar_t text[100] = L"";
    DWORD size = sizeof text;
    ::RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
    return Narrow(text);
}

// A host that remembers what it was asked, and then refuses.
class RefusingHost : public DispatchObject<> {
  public:
    explicit RefusingHost(std::vector<std::string>& asked) {
        for (const char* name : {"Version", "LanguageSettings", "CommandBars"}) {
            Members().Property(name, 0, [&asked, name](const CallArguments&) -> Variant {
                asked.push_back(name);
                throw ResultError(RPC_E_DISCONNECTED);
            });
        }
    }
};

class MorphoDllTest : public testing::Test {
  protected:
    MorphoDllTest() {
        ::CoInitialize(nullptr);
        server_ = std::make_unique<OwnServer>(L"Morpho.dll", kKeys);
    }
    ~MorphoDllTest() override {
        server_.reset();
        ::CoUninitialize();
    }

    std::unique_ptr<OwnServer> server_;
};

TEST_F(MorphoDllTest, IsRegisteredWithTheHostUntilItIsUnregistered) {
    ASSERT_EQ(S_OK, server_->Registered());
    EXPECT_EQ("Theme Morpho", AddInText(L"Morpho.AddInTM", L"FriendlyName"));
    EXPECT_EQ("Image Morpho Add-In For FrontPage", AddInText(L"Morpho.AddInIM", L"Description"));
    DWORD behaviour = 0;
    DWORD size = sizeof behaviour;
    ::RegGetValueW(HKEY_CURRENT_USER,
                   L"Software\\Microsoft\\Office\\FrontPage\\Addins\\Morpho.AddInIM",
                   L"LoadBehavior", RRF_RT_REG_DWORD, nullptr, &behaviour, &size);
    EXPECT_EQ(3u, behaviour);
    server_.reset();
    EXPECT_EQ("", AddInText(L"Morpho.AddInTM", L"FriendlyName"));
    CLSID clsid = {};
    EXPECT_NE(S_OK, ::CLSIDFromProgID(L"Morpho.AddInTM", &clsid));
}

TEST_F(MorphoDllTest, AConnectionToAHostThatRefusesSucceedsThroughTheTableAndByName) {
    for (const char* progId : {"Morpho.AddInTM", "Morpho.AddInIM"}) {
        std::vector<std::string> asked;
        const auto host = MakeComObject<RefusingHost>(asked);
        {
            const DispatchCaller addIn = CreateByName(progId);
            const auto table = addIn.Object().As<IDTExtensibility2>();
            ASSERT_TRUE(table);
            EXPECT_EQ(S_OK, table->OnConnection(host.Get(), 1, nullptr, nullptr));
            EXPECT_EQ(S_OK, table->OnDisconnection(0, nullptr));
            EXPECT_FALSE(asked.empty());
            asked.clear();
            addIn.Call("OnConnection", {host, 1, Variant::Missing(), Variant::Missing()});
            EXPECT_FALSE(asked.empty());
            for (const char* told : {"OnAddInsUpdate", "OnStartupComplete", "OnBeginShutdown"})
                addIn.Call(told, {Variant::Missing()});
            // A host may forget to disconnect.
            EXPECT_FALSE(server_->CanBeUnloaded());
        }
        EXPECT_TRUE(server_->CanBeUnloaded());
        host->AddRef();
        EXPECT_EQ(1u, host->Release()) << "nothing keeps the host";
    }
}

TEST_F(MorphoDllTest, NumbersItsMembersAsHostsExpect) {
    const DispatchCaller addIn = CreateByName("Morpho.AddInTM");
    DISPID expected = 0;
    for (const wchar_t* name : {L"OnConnection", L"OnDisconnection", L"OnAddInsUpdate",
                                L"OnStartupComplete", L"OnBeginShutdown"}) {
        DISPID id = 0;
        auto* text = const_cast<wchar_t*>(name);
        EXPECT_EQ(S_OK, addIn.Object()->GetIDsOfNames(IID_NULL, &text, 1, 0, &id));
        EXPECT_EQ(++expected, id);
    }
}

}  // namespace
}  // namespace morpho::test
