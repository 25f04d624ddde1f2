#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

class Registry;

// The Windows version as the registry stores it, untrimmed.
struct WindowsVersion {
    std::wstring productName;
    std::wstring displayVersion;
    std::wstring buildNumber;
    std::uint32_t ubr = 0; // update build revision; 0 when the value is missing
};

// The machine's static facts, read once from the registry exactly as stored. Making them
// presentable (cleaning the processor name, naming Windows 11) is the caller's business.
struct SystemFacts {
    // Empty when the processor key or its name value cannot be read.
    std::wstring processorName;
    // Absent when the CurrentVersion key does not open.
    std::optional<WindowsVersion> windows;
    // Servicing packages with "KB" in their names; when there are none, the number of
    // ApplicabilityEvaluationCache entries stands in. 0 when neither key opens.
    std::uint32_t updatesInstalled = 0;

    static SystemFacts read(const Registry& registry);

    static std::wstring readProcessorName(const Registry& registry);
    static std::optional<WindowsVersion> readWindowsVersion(const Registry& registry);
    static std::uint32_t countInstalledUpdates(const Registry& registry);
};

} // namespace platform
