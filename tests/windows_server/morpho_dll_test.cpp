#include <gmock/gmock.h>

#include "support/own_server.h"

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

}  // namespace
}  // namespace morpho::test
