#include "testmachine.h"

#ifdef _WIN32

TestMachine::TestMachine(const std::wstring&)
    : m_machine(platform::createDefault())
{
}

#else

#include "platform/sandbox/sandboxplatform.h"

TestMachine::TestMachine(const std::wstring& root)
    : m_machine(std::make_unique<platform::SandboxPlatform>(root))
{
}

#endif

TestMachine::~TestMachine() = default;
