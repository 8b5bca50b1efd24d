#pragma once

#include <functional>

#include "windows_com/member_table.h"

namespace morpho {

class EventReceiver;

// Receives one event of an object for as long as it lives.
class EventConnection {
  public:
    using Handler = std::function<void(const CallArguments&)>;

    // `events` is the object's event interface, `id` the event's number there. What `handler`
    // throws is told the object as the result of the call. Throws RunTimeError when the object has
    // no such events.
    EventConnection(IDispatch* source, REFIID events, DISPID id, Handler handler);
    // May be called by the handler itself.
    ~EventConnection();
    EventConnection(const EventConnection&) = delete;
    EventConnection& operator=(const EventConnection&) = delete;

  private:
    ComPointer<EventReceiver> receiver_;
    ComPointer<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

}  // namespace morpho
