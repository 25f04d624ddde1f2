#pragma once

namespace platform {

// Metadata walks and link-safe deletion inside folders.
class FileSystem {
public:
    virtual ~FileSystem() = default;
};

} // namespace platform
