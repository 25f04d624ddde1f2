#pragma once

#include "platform/platform.h"

#include <QTest>

#include <memory>
#include <string>

// The machine a suite's fixtures stand on. With a sandbox, a fresh one in `root`, so that a test
// lays out exactly the machine it needs; on Windows, the Windows the suite runs on (in the
// Windows-app lane a throw-away Wine prefix), whose files and registry a test does not own.
// Not a ForwardingPlatform on purpose: fixtures pass a TestMachine member to their own
// ForwardingPlatform base, which must bind to Platform& and not copy a machine not yet built.
class TestMachine final : public platform::Platform {
public:
    explicit TestMachine(const std::wstring& root);
    ~TestMachine() override;

    static bool isSandbox()
    {
#ifdef _WIN32
        return false;
#else
        return true;
#endif
    }

    platform::Registry& registry() override
    {
        return m_machine->registry();
    }
    platform::Environment& environment() override
    {
        return m_machine->environment();
    }
    platform::WindowFrame& windowFrame() override
    {
        return m_machine->windowFrame();
    }
    platform::SystemCounters& counters() override
    {
        return m_machine->counters();
    }
    platform::FileSystem& fileSystem() override
    {
        return m_machine->fileSystem();
    }
    platform::Launcher& launcher() override
    {
        return m_machine->launcher();
    }
    platform::IconExtractor& icons() override
    {
        return m_machine->icons();
    }
    platform::Services& services() override
    {
        return m_machine->services();
    }
    platform::Processes& processes() override
    {
        return m_machine->processes();
    }
    platform::PackageCatalogue& packages() override
    {
        return m_machine->packages();
    }
    std::wstring sandboxRoot() const override
    {
        return m_machine->sandboxRoot();
    }

private:
    std::unique_ptr<platform::Platform> m_machine;
};

// For a case that lays out files, registry keys or processes of its own and checks exactly what
// the feature finds there: that needs a machine nothing else lives on.
#define NORVALE_SANDBOX_ONLY(reason)                                                                                   \
    do {                                                                                                               \
        if (!TestMachine::isSandbox())                                                                                 \
            QSKIP("needs a machine of its own (a sandbox): " reason);                                                  \
    } while (false)
