#include "windows_server/add_in_classes.h"

#include <array>

#include "addin/add_in_im.h"
#include "addin/add_in_tm.h"
#include "addin/registration.h"
#include "image_editor/frm_image_morpho.h"
#include "windows_com/class_registration.h"
#include "windows_server/add_in_object.h"
#include "windows_system/windows_environment.h"

namespace morpho {

namespace {

constexpr CLSID kThemeClass = {
    0x8F2A4208, 0x5493, 0x4664, {0x84, 0xD0, 0xDB, 0x42, 0xC1, 0x44, 0x38, 0x95}};
constexpr CLSID kImageClass = {
    0xFC405CCE, 0x89DC, 0x4236, {0xA9, 0x6F, 0x5B, 0x62, 0xFA, 0x82, 0x8C, 0x4C}};

ComPointer<IUnknown> MakeThemeAddIn() {
    return MakeComObject<AddInObject>([](const Program& program) { return new AddInTM(program); });
}

ComPointer<IUnknown> MakeImageAddIn() {
    return MakeComObject<AddInObject>([](const Program& program) {
        return new AddInIM(program,
                           [program] { return std::make_unique<frmImageMorpho>(program); });
    });
}

// In the order of `kRegistrations`.
const std::array<ComClass, 2> kClasses = {
    {{kThemeClass, "Morpho.AddInTM", kThemeAddIn.description, MakeThemeAddIn},
     {kImageClass, "Morpho.AddInIM", kImageAddIn.description, MakeImageAddIn}}};
constexpr std::array<AddInRegistration, 2> kRegistrations = {kThemeAddIn, kImageAddIn};

std::string HostKey(std::size_t index) {
    constexpr std::string_view kRoot = "HKEY_CURRENT_USER\\";
    const std::string_view location = kRegistrations[index].location.substr(kRoot.size());
    return std::string(location) + "\\Addins\\" + std::string(kClasses[index].progId);
}

}  // namespace

std::span<const ComClass> ClassesOfAddIns() {
    return kClasses;
}

void RegisterAddIns() {
    RegisterClasses(kClasses, PathOfModule());
    for (std::size_t i = 0; i < kClasses.size(); ++i) {
        const AddInRegistration& registration = kRegistrations[i];
        WriteUserValue(HostKey(i), "FriendlyName", registration.friendlyName);
        WriteUserValue(HostKey(i), "Description", registration.description);
        WriteUserValue(HostKey(i), "LoadBehavior", static_cast<DWORD>(registration.loadBehavior));
    }
}

void UnregisterAddIns() {
    for (std::size_t i = 0; i < kClasses.size(); ++i)
        DeleteUserKey(HostKey(i));
    UnregisterClasses(kClasses);
}

}  // namespace morpho
