#include "windows_com/event_connection.h"

#include "windows_com/com_error.h"
#include "windows_com/com_object.h"

namespace morpho {

// What the source of the events calls. The source may keep it for longer than the connection lasts.
class EventReceiver : public ComObject<IDispatch> {
  public:
    EventReceiver(REFIID events, DISPID id, EventConnection::Handler handler)
        : events_(events), id_(id), handler_(std::move(handler)) {}

    void Forget() { handler_ = {}; }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count == nullptr) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;  // an event is known by its number
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters,
                                     VARIANT*, EXCEPINFO* info, UINT*) override {
        if (id != id_ || !handler_) return S_OK;
        if (parameters == nullptr) return E_INVALIDARG;
        return Guarded(
            [&] {
                // The handler may end the connection, and release this object.
                const auto handler = handler_;
                handler(CallArguments(*parameters));
            },
            info);
    }

  private:
    void* FindInterface(REFIID iid) override {
        return ComObject::FindInterface(iid == events_ ? IID_IDispatch : iid);
    }

    IID events_;
    DISPID id_;
    EventConnection::Handler handler_;
};

EventConnection::EventConnection(IDispatch* source, REFIID events, DISPID id, Handler handler)
    : receiver_(MakeComObject<EventReceiver>(events, id, std::move(handler))) {
    const auto container = ComPointer<IDispatch>(source).As<IConnectionPointContainer>();
    if (!container) throw ErrorOf(CONNECT_E_CANNOTCONNECT);
    Check(container->FindConnectionPoint(events, point_.Out()));
    Check(point_->Advise(receiver_.Get(), &cookie_));
}

EventConnection::~EventConnection() {
    receiver_->Forget();
    point_->Unadvise(cookie_);
}

}  // namespace morpho
