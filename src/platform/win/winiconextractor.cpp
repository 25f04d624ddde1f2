#include "winiconextractor.h"

#include "winhandle.h"

#include <windows.h>

#include <shellapi.h>

#include <climits>
#include <utility>

namespace platform {

namespace {

struct HiconTraits {
    using type = HICON;
    static type invalid() { return nullptr; }
    static void close(type icon) { ::DestroyIcon(icon); }
};

struct HbitmapTraits {
    using type = HBITMAP;
    static type invalid() { return nullptr; }
    static void close(type bitmap) { ::DeleteObject(bitmap); }
};

struct MemoryDcTraits {
    using type = HDC;
    static type invalid() { return nullptr; }
    static void close(type dc) { ::DeleteDC(dc); }
};

using UniqueIcon = UniqueAny<HiconTraits>;
using UniqueBitmap = UniqueAny<HbitmapTraits>;
using UniqueDc = UniqueAny<MemoryDcTraits>;

// Icons are 256 pixels wide at most; anything larger is not an icon worth copying.
constexpr LONG MaxIconSide = 1024;

bool readBits(HDC dc, HBITMAP bitmap, LONG width, LONG height, std::vector<std::uint8_t>& bgra)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    bgra.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4, 0);
    return GetDIBits(dc, bitmap, 0, static_cast<UINT>(height), bgra.data(), &info, DIB_RGB_COLORS) == height;
}

// The icon's pixels: the colour bitmap with its own alpha, or, when it has none (older icons),
// with the transparency of its mask. A monochrome icon keeps both halves in the mask.
bool iconToRgba(HICON icon, IconImage& out)
{
    ICONINFO info = {};
    if (!GetIconInfo(icon, &info))
        return false;
    UniqueBitmap color(info.hbmColor);
    UniqueBitmap mask(info.hbmMask);
    BITMAP bm = {};
    HBITMAP sizeSource = color.get() ? color.get() : mask.get();
    if (!sizeSource || !GetObjectW(sizeSource, sizeof(bm), &bm))
        return false;
    const LONG width = bm.bmWidth;
    const LONG height = color.get() ? bm.bmHeight : bm.bmHeight / 2;
    if (width <= 0 || height <= 0 || width > MaxIconSide || height > MaxIconSide)
        return false;

    UniqueDc dc(CreateCompatibleDC(nullptr));
    if (!dc.get())
        return false;
    std::vector<std::uint8_t> colorBits;
    std::vector<std::uint8_t> maskBits;
    if (color.get() && !readBits(dc.get(), color.get(), width, height, colorBits))
        return false;
    if (mask.get() && !readBits(dc.get(), mask.get(), width, color.get() ? height : height * 2, maskBits))
        maskBits.clear();

    const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (!color.get()) {
        if (maskBits.size() < pixels * 8)
            return false;
        // The lower half of a monochrome mask is the picture.
        colorBits.assign(maskBits.begin() + static_cast<std::ptrdiff_t>(pixels * 4), maskBits.end());
        maskBits.resize(pixels * 4);
    }
    bool hasAlpha = false;
    for (std::size_t i = 0; i < pixels && !hasAlpha; ++i)
        hasAlpha = colorBits[i * 4 + 3] != 0;

    out.width = static_cast<int>(width);
    out.height = static_cast<int>(height);
    out.rgba.resize(pixels * 4);
    for (std::size_t i = 0; i < pixels; ++i) {
        const std::uint8_t* src = &colorBits[i * 4];
        std::uint8_t* dst = &out.rgba[i * 4];
        dst[0] = src[2];
        dst[1] = src[1];
        dst[2] = src[0];
        if (hasAlpha)
            dst[3] = src[3];
        else
            dst[3] = (!maskBits.empty() && maskBits[i * 4] != 0) ? 0 : 255;
    }
    return true;
}

} // namespace

IconResult WinIconExtractor::extract(const std::wstring& path, int index)
{
    IconResult result;
    if (GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES) {
        result.error = GetLastError();
        return result;
    }
    UniqueIcon large;
    UniqueIcon small;
    const UINT count = ExtractIconExW(path.c_str(), index, large.put(), small.put(), 1);
    // ExtractIconExW reports UINT_MAX for a file it cannot read.
    UniqueIcon chosen;
    if (count != UINT_MAX && count > 0)
        chosen = large.get() ? std::move(large) : std::move(small);
    if (!chosen.get()) {
        result.error = GetLastError();
        SHFILEINFOW info = {};
        if (SHGetFileInfoW(path.c_str(), 0, &info, sizeof(info), SHGFI_ICON) && info.hIcon)
            chosen.reset(info.hIcon);
        else
            result.error = result.error ? result.error : GetLastError();
    }
    if (!chosen.get()) {
        if (result.error == 0)
            result.error = ERROR_RESOURCE_TYPE_NOT_FOUND; // the calls do not always say why
        return result;
    }
    if (!iconToRgba(chosen.get(), result.image)) {
        result.image = IconImage();
        result.error = GetLastError();
        return result;
    }
    result.error = 0;
    return result;
}

} // namespace platform
