#include "sandboxenvironment.h"

namespace platform {

// The sandbox user keeps the folders where a fresh Windows profile has them.
std::wstring SandboxEnvironment::userFolder(UserFolder which) const
{
    const std::wstring profile = userProfile();
    switch (which) {
    case UserFolder::Desktop:
        return profile + L"/Desktop";
    case UserFolder::Documents:
        return profile + L"/Documents";
    case UserFolder::Downloads:
        return profile + L"/Downloads";
    }
    return std::wstring();
}

} // namespace platform
