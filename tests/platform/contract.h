#pragma once

#include "platform/environment.h"
#include "platform/registry.h"

#include <memory>
#include <optional>
#include <string>

namespace contract {

// The lane's registry: an empty sandbox natively, the Wine prefix's own registry under Wine.
std::unique_ptr<platform::Registry> makeContractRegistry();

// Windows and the sandbox enumerate values as created; Wine's registry sorts them by name.
bool valuesComeInCreationOrder();

// The lane's environment: a sandbox's in a fresh folder natively, the process's own under Wine.
std::unique_ptr<platform::Environment> makeContractEnvironment();

// Sets or removes (nullopt) a variable of an environment made above.
void setContractVariable(
    platform::Environment& environment, const std::wstring& name, const std::optional<std::wstring>& value);

} // namespace contract
