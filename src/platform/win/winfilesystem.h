#pragma once

#include "../filesystem.h"

namespace platform {

class WinFileSystem final : public FileSystem {
public:
    WinFileSystem() = default;
};

} // namespace platform
