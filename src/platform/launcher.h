#pragma once

namespace platform {

// Starting programs through the shell and waiting for them.
class Launcher {
public:
    virtual ~Launcher() = default;
};

} // namespace platform
