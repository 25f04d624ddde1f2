#pragma once

namespace platform {

// Program icons extracted to RGBA buffers.
class IconExtractor {
public:
    virtual ~IconExtractor() = default;
};

} // namespace platform
