#pragma once

// What the contract tests (tests/platform/*_test.cpp) need from their lane. Each lane implements
// these once: the sandbox lane over a fresh temporary folder, the Wine lane over the real
// (Wine prefix's) registry.

#include "platform/registry.h"

#include <memory>
#include <string>

namespace contract {

// A registry of the lane's implementation. Contract tests write only below contractBaseKey().
std::unique_ptr<platform::Registry> makeContractRegistry();

// A key under HKEY_CURRENT_USER that belongs to the tests; fixtures delete it before and after
// each case, so it never holds anything a case did not write itself.
std::wstring contractBaseKey();

// Windows enumerates a key's values in the order they were created, and the sandbox does the
// same; Wine's registry keeps them sorted by name instead.
bool valuesComeInCreationOrder();

} // namespace contract
