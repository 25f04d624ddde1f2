#pragma once

#include "../filesystem.h"

#include <string>

namespace platform {

class SandboxFileSystem final : public FileSystem {
public:
    explicit SandboxFileSystem(std::wstring root);

private:
    std::wstring m_root;
};

} // namespace platform
