#pragma once

#include "platform/registry.h"

#include <memory>

namespace contract {

// The lane's registry: an empty sandbox natively, the Wine prefix's own registry under Wine.
std::unique_ptr<platform::Registry> makeContractRegistry();

// Windows and the sandbox enumerate values as created; Wine's registry sorts them by name.
bool valuesComeInCreationOrder();

} // namespace contract
