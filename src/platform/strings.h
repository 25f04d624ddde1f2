#pragma once

#include <string>

namespace platform {

std::string toUtf8(const std::wstring& text);
std::wstring fromUtf8(const std::string& text);
// ASCII-only case folding, as the registry and the file system compare names.
std::wstring lowerAscii(std::wstring text);
bool equalsNoCase(const std::wstring& a, const std::wstring& b);

} // namespace platform
