#pragma once

#include <map>

#include "windows_com/dispatch_caller.h"
#include "windows_com/dispatch_object.h"

namespace morpho {

// Where the receivers of an object's events are connected: one dispatch interface.
class ConnectionPoint : public ComObject<IConnectionPoint> {
  public:
    explicit ConnectionPoint(REFIID events) : events_(events) {}

    // Calls this member of every receiver; what they answer is not looked at.
    void Fire(DISPID id, const DispatchCaller::Arguments& arguments);

    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
    // The container does not say which object it belongs to.
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* receiver, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

  private:
    IID events_;
    DWORD lastCookie_ = 0;
    std::map<DWORD, ComPointer<IDispatch>> receivers_;
};

// An object that is called by name and has events of one dispatch interface.
class EventSource : public DispatchObject<IDispatch, IConnectionPointContainer> {
  public:
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

  protected:
    explicit EventSource(REFIID events)
        : events_(events), point_(MakeComObject<ConnectionPoint>(events)) {}
    ConnectionPoint& Events() { return *point_.Get(); }

  private:
    IID events_;
    ComPointer<ConnectionPoint> point_;
};

}  // namespace morpho
