// ExtractIconExW and the shell's fallback, down to the pixels handed back.

#include "platform/win/winiconextractor.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

// A 16 x 16 icon of opaque 32-bit pixels of one colour.
std::vector<std::uint8_t> solidIcon(std::uint8_t r, std::uint8_t g, std::uint8_t b)
{
    std::vector<std::uint8_t> out;
    auto u16 = [&](unsigned v) {
        out.push_back(std::uint8_t(v));
        out.push_back(std::uint8_t(v >> 8));
    };
    auto u32 = [&](unsigned v) {
        u16(v & 0xFFFF);
        u16(v >> 16);
    };
    const unsigned side = 16, pixels = side * side * 4, mask = side * 4;
    u16(0);
    u16(1);
    u16(1);
    out.insert(out.end(), { std::uint8_t(side), std::uint8_t(side), 0, 0 });
    u16(1);
    u16(32);
    u32(40 + pixels + mask);
    u32(6 + 16);
    for (unsigned v : { 40u, side, side * 2 })
        u32(v);
    u16(1);
    u16(32);
    for (unsigned v : { 0u, pixels, 0u, 0u, 0u, 0u })
        u32(v);
    for (unsigned i = 0; i < side * side; ++i)
        out.insert(out.end(), { b, g, r, 0xFF });
    out.insert(out.end(), mask, 0);
    return out;
}

fs::path tempFolder()
{
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    const fs::path folder = fs::path(temp) / L"norvale-icons-win";
    fs::create_directories(folder);
    return folder;
}

TEST(WinIconExtractor, IconPixelsComeBackAsRgba)
{
    const fs::path file = tempFolder() / L"solid.ico";
    const auto bytes = solidIcon(0x20, 0x80, 0xE0);
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));

    platform::WinIconExtractor extractor;
    const auto result = extractor.extract(file.wstring(), 0);
    ASSERT_FALSE(result.image.rgba.empty()) << result.error;
    ASSERT_GT(result.image.width, 0);
    ASSERT_EQ(result.image.rgba.size(), std::size_t(result.image.width) * std::size_t(result.image.height) * 4);
    const std::size_t centre
        = (std::size_t(result.image.height / 2) * std::size_t(result.image.width) + std::size_t(result.image.width / 2))
        * 4;
    EXPECT_EQ(result.image.rgba[centre + 0], 0x20);
    EXPECT_EQ(result.image.rgba[centre + 1], 0x80);
    EXPECT_EQ(result.image.rgba[centre + 2], 0xE0);
    EXPECT_EQ(result.image.rgba[centre + 3], 0xFF);
    fs::remove(file);
}

} // namespace
