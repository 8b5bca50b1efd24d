#include "windows_com/com_object.h"

namespace morpho {

namespace {

std::atomic<long> liveObjects = 0;

}  // namespace

long LiveObjects() {
    return liveObjects;
}

LiveObject::LiveObject() {
    ++liveObjects;
}

LiveObject::~LiveObject() {
    --liveObjects;
}

}  // namespace morpho
