#include "windows_server/add_in_object.h"

#include "windows_com/com_error.h"
#include "windows_host/front_page_application.h"

namespace morpho {

namespace {

// The add-in keeps the component, even when it is the last that is left of the two: an open editor
// keeps its add-in.
std::shared_ptr<AddIn> MakeAddIn(const AddInObject::AddInFactory& make) {
    const auto component = LoadedComponent::Get();
    return {make(component->Program()), [component](AddIn* addIn) { delete addIn; }};
}

}  // namespace

AddInObject::AddInObject(const AddInFactory& makeAddIn) : addIn_(MakeAddIn(makeAddIn)) {
    Declare(1, "OnConnection", 4, [this](const CallArguments& given) {
        return OnConnection(ObjectOf(given[0]).Get(), 0, nullptr, nullptr);
    });
    Declare(2, "OnDisconnection", 2,
            [this](const CallArguments&) { return OnDisconnection(0, nullptr); });
    Declare(3, "OnAddInsUpdate", 1,
            [this](const CallArguments&) { return OnAddInsUpdate(nullptr); });
    Declare(4, "OnStartupComplete", 1,
            [this](const CallArguments&) { return OnStartupComplete(nullptr); });
    Declare(5, "OnBeginShutdown", 1,
            [this](const CallArguments&) { return OnBeginShutdown(nullptr); });
}

void AddInObject::Declare(DISPID id, std::string_view name, std::size_t parameters,
                          std::function<HRESULT(const CallArguments&)> tell) {
    Members()
        .Method(name, parameters,
                [tell = std::move(tell)](const CallArguments& given) {
                    Check(tell(given));
                    return Variant();
                })
        .Numbered(id);
}

HRESULT AddInObject::OnConnection(IDispatch* application, int, IDispatch*, SAFEARRAY**) {
    return Guarded([&] {
        const DispatchCaller host{ComPointer<IDispatch>(application)};
        addIn_->OnConnection(std::make_shared<FrontPageApplication>(host));
    });
}

HRESULT AddInObject::OnDisconnection(int, SAFEARRAY**) {
    return Guarded([&] { addIn_->OnDisconnection(); });
}

HRESULT AddInObject::OnAddInsUpdate(SAFEARRAY**) {
    return Guarded([&] { addIn_->OnAddInsUpdate(); });
}

HRESULT AddInObject::OnStartupComplete(SAFEARRAY**) {
    return Guarded([&] { addIn_->OnStartupComplete(); });
}

HRESULT AddInObject::OnBeginShutdown(SAFEARRAY**) {
    return Guarded([&] { addIn_->OnBeginShutdown(); });
}

}  // namespace morpho
