// A stand-in uninstaller for the Wine lane, acting on its arguments in order, so that a caller can
// look at the folder while it still sleeps:
//   fake_uninstaller.exe [--sleep <ms>] [--delete <folder>] [--exit <code>]

#include <windows.h>

#include <shellapi.h>

#include <filesystem>

int main()
{
    int argc = 0;
    wchar_t** argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    int code = argv ? 0 : 99;
    for (int i = 1; argv && i + 1 < argc; i += 2) {
        const std::wstring option = argv[i];
        std::error_code ignored;
        if (option == L"--sleep")
            Sleep(static_cast<DWORD>(std::stoul(argv[i + 1])));
        else if (option == L"--delete")
            std::filesystem::remove_all(argv[i + 1], ignored);
        else if (option == L"--exit")
            code = std::stoi(argv[i + 1]);
    }
    LocalFree(argv);
    return code;
}
