#include "windows_com/event_source.h"

#include "windows_com/com_error.h"

namespace morpho {

void ConnectionPoint::Fire(DISPID id, const DispatchCaller::Arguments& arguments) {
    // A receiver may connect and disconnect while it is called.
    const auto receivers = receivers_;
    for (const auto& [cookie, receiver] : receivers) {
        std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
        DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        receiver->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr,
                         nullptr, nullptr);
    }
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid) {
    if (iid == nullptr) return E_POINTER;
    *iid = events_;
    return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* receiver, DWORD* cookie) {
    if (receiver == nullptr || cookie == nullptr) return E_POINTER;
    return Guarded([&] {
        ComPointer<IDispatch> events;
        if (FAILED(receiver->QueryInterface(events_, events.OutVoid())))
            return CONNECT_E_CANNOTCONNECT;
        *cookie = ++lastCookie_;
        receivers_[*cookie] = events;
        return S_OK;
    });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) {
    return receivers_.erase(cookie) == 1 ? S_OK : CONNECT_E_NOCONNECTION;
}

HRESULT EventSource::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
    if (point == nullptr) return E_POINTER;
    *point = iid == events_ ? ComPointer<IConnectionPoint>(point_).Detach() : nullptr;
    return *point != nullptr ? S_OK : CONNECT_E_NOCONNECTION;
}

}  // namespace morpho
