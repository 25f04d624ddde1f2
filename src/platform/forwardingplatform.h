#pragma once

#include "platform.h"

namespace platform {

// A platform that hands every service on to another one. Wrappers derive from it and replace
// only the services they watch or play, so a new service never has to be threaded through each.
class ForwardingPlatform : public Platform {
public:
    // `inner` may still be under construction (a member of the derived class): it is only used
    // once a service is asked for.
    explicit ForwardingPlatform(Platform& inner)
        : m_inner(inner)
    {
    }

    Registry& registry() override { return m_inner.registry(); }
    Environment& environment() override { return m_inner.environment(); }
    WindowFrame& windowFrame() override { return m_inner.windowFrame(); }
    SystemCounters& counters() override { return m_inner.counters(); }
    FileSystem& fileSystem() override { return m_inner.fileSystem(); }
    Launcher& launcher() override { return m_inner.launcher(); }
    IconExtractor& icons() override { return m_inner.icons(); }
    Processes& processes() override { return m_inner.processes(); }
    PackageCatalogue& packages() override { return m_inner.packages(); }
    std::wstring sandboxRoot() const override { return m_inner.sandboxRoot(); }

protected:
    Platform& inner() const { return m_inner; }

private:
    Platform& m_inner;
};

} // namespace platform
