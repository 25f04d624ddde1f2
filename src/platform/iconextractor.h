#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

// An icon as the caller receives it: either decoded pixels (Windows hands out icon handles,
// which are converted here) or the bytes of an image file (.ico, .png) for the caller to decode.
struct IconImage {
    int width = 0;
    int height = 0;
    // width * height * 4 bytes, non-premultiplied RGBA, top row first.
    std::vector<std::uint8_t> rgba;
    // The whole image file, used when there are no pixels.
    std::vector<std::uint8_t> encoded;

    bool isNull() const { return rgba.empty() && encoded.empty(); }
};

struct IconResult {
    IconImage image;
    // The Win32 error of the last failing call when no icon was found; 0 otherwise.
    std::uint32_t error = 0;
};

// Program icons extracted to RGBA buffers.
class IconExtractor {
public:
    virtual ~IconExtractor() = default;

    // The icon at the index inside a file (an executable, a library or an icon file), the large
    // one preferred over the small one, falling back to the icon the shell shows for the file.
    virtual IconResult extract(const std::wstring& path, int index) = 0;
};

} // namespace platform
