#pragma once

#include <span>

#include "windows_com/class_factory.h"

namespace morpho {

// The add-ins that this module offers.
std::span<const ComClass> ClassesOfAddIns();

// Registers the classes for the current user, and the add-ins with the host. Throw RunTimeError.
void RegisterAddIns();
void UnregisterAddIns();

}  // namespace morpho
