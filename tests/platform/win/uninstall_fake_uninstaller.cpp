// A stand-in uninstaller for the Wine lane:
//   fake_uninstaller.exe [--delete <folder>] [--sleep <ms>] [--exit <code>]
// sleeps, removes the folder, and exits with the code, in that order (so a caller can look at
// the folder while the uninstaller is still running).

#include <windows.h>

#include <shellapi.h>

#include <cwchar>
#include <filesystem>
#include <string>

int main()
{
    int argc = 0;
    wchar_t** argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    if (!argv)
        return 99;
    std::wstring folder;
    DWORD sleepMs = 0;
    int code = 0;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::wstring option = argv[i];
        if (option == L"--delete")
            folder = argv[i + 1];
        else if (option == L"--sleep")
            sleepMs = static_cast<DWORD>(std::wcstoul(argv[i + 1], nullptr, 10));
        else if (option == L"--exit")
            code = static_cast<int>(std::wcstol(argv[i + 1], nullptr, 10));
    }
    LocalFree(argv);
    if (sleepMs)
        Sleep(sleepMs);
    if (!folder.empty()) {
        std::error_code ignored;
        std::filesystem::remove_all(std::filesystem::path(folder), ignored);
    }
    return code;
}
