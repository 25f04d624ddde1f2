#include "winenvironment.h"

#include <windows.h>

#include <shlobj.h>

namespace platform {

namespace {

// The known-folder identifiers, spelled out so that no GUID library needs linking.
constexpr GUID DesktopId = { 0xB4BFCC3A, 0xDB2C, 0x424C, { 0xB0, 0x29, 0x7F, 0xE9, 0x9A, 0x87, 0xC6, 0x41 } };
constexpr GUID DocumentsId = { 0xFDD39AD0, 0x238F, 0x46AF, { 0xAD, 0xB4, 0x6C, 0x85, 0x48, 0x03, 0x69, 0xC7 } };
constexpr GUID DownloadsId = { 0x374DE290, 0x123F, 0x4565, { 0x91, 0x64, 0x39, 0xC4, 0x92, 0x5E, 0x46, 0x7B } };

} // namespace

std::wstring WinEnvironment::userFolder(UserFolder which) const
{
    const GUID* id = which == UserFolder::Desktop ? &DesktopId
        : which == UserFolder::Documents          ? &DocumentsId
                                                  : &DownloadsId;
    PWSTR raw = nullptr;
    std::wstring path;
    if (SUCCEEDED(::SHGetKnownFolderPath(*id, KF_FLAG_DONT_VERIFY, nullptr, &raw)) && raw)
        path = raw;
    ::CoTaskMemFree(raw); // owed even when the call failed
    for (wchar_t& c : path) {
        if (c == L'\\')
            c = L'/';
    }
    return path;
}

} // namespace platform
