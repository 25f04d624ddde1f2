#include "strings.h"

#include <cstdint>

namespace platform {

std::string toUtf8(const std::wstring& text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t c = static_cast<std::uint32_t>(text[i]);
        // wchar_t is UTF-16 on Windows: join surrogate pairs there.
        if (sizeof(wchar_t) == 2 && c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size()) {
            const std::uint32_t low = static_cast<std::uint32_t>(text[i + 1]);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
        }
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

std::wstring fromUtf8(const std::string& text)
{
    std::wstring out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        const unsigned char b = static_cast<unsigned char>(text[i]);
        std::uint32_t c = 0xFFFD;
        std::size_t len = 1;
        if (b < 0x80) {
            c = b;
        } else if ((b & 0xE0) == 0xC0) {
            len = 2;
            c = b & 0x1F;
        } else if ((b & 0xF0) == 0xE0) {
            len = 3;
            c = b & 0x0F;
        } else if ((b & 0xF8) == 0xF0) {
            len = 4;
            c = b & 0x07;
        } else {
            len = 0;
        }
        bool ok = len > 0 && i + len <= text.size();
        for (std::size_t k = 1; ok && k < len; ++k) {
            const unsigned char cont = static_cast<unsigned char>(text[i + k]);
            if ((cont & 0xC0) != 0x80)
                ok = false;
            else
                c = (c << 6) | (cont & 0x3F);
        }
        if (!ok) {
            c = 0xFFFD;
            len = 1;
        }
        i += len;
        if (sizeof(wchar_t) == 2 && c >= 0x10000) {
            c -= 0x10000;
            out += static_cast<wchar_t>(0xD800 + (c >> 10));
            out += static_cast<wchar_t>(0xDC00 + (c & 0x3FF));
        } else {
            out += static_cast<wchar_t>(c);
        }
    }
    return out;
}

std::wstring lowerAscii(std::wstring text)
{
    for (wchar_t& c : text) {
        if (c >= L'A' && c <= L'Z')
            c = static_cast<wchar_t>(c - L'A' + L'a');
    }
    return text;
}

bool equalsNoCase(const std::wstring& a, const std::wstring& b)
{
    return a.size() == b.size() && lowerAscii(a) == lowerAscii(b);
}

} // namespace platform
