#pragma once

#include "platform/packagecatalogue.h"
#include "platform/registry.h"

#include <memory>

namespace contract {

// The lane's registry: an empty sandbox natively, the Wine prefix's own registry under Wine.
std::unique_ptr<platform::Registry> makeContractRegistry();

// Windows and the sandbox enumerate values as created; Wine's registry sorts them by name.
bool valuesComeInCreationOrder();

// The lane's packaged-app catalogue: a sandbox without a catalogue file natively, the real
// package manager under Wine; neither has the package runtime.
std::unique_ptr<platform::PackageCatalogue> makeContractCatalogue();

} // namespace contract
