#pragma once

#include "fakesystemcounters.h"

#include <QString>

#include "platform/platform.h"
#include "platform/sandbox/sandboxplatform.h"

// A sandbox machine in a folder whose counters the test controls. Installs itself as the
// process-wide platform for its lifetime.
class FakePlatform final : public platform::Platform {
public:
    explicit FakePlatform(const QString& root)
        : m_sandbox(root.toStdWString())
    {
        platform::setCurrent(this);
    }
    ~FakePlatform() override { platform::setCurrent(nullptr); }

    FakeSystemCounters fakeCounters;

    platform::Registry& registry() override { return m_sandbox.registry(); }
    platform::Environment& environment() override { return m_sandbox.environment(); }
    platform::WindowFrame& windowFrame() override { return m_sandbox.windowFrame(); }
    platform::SystemCounters& counters() override { return fakeCounters; }
    platform::FileSystem& fileSystem() override { return m_sandbox.fileSystem(); }
    platform::Launcher& launcher() override { return m_sandbox.launcher(); }
    platform::IconExtractor& icons() override { return m_sandbox.icons(); }
    std::wstring sandboxRoot() const override { return m_sandbox.sandboxRoot(); }

private:
    platform::SandboxPlatform m_sandbox;
};
