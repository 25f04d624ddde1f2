// What both icon extractors promise for an icon file and for a file that is not there.

#include "platform/iconextractor.h"

#ifdef _WIN32
#include "platform/win/winiconextractor.h"
#include <windows.h>
#else
#include "platform/sandbox/sandboxiconextractor.h"
#include <cstdlib>
#endif

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

namespace {

// A 16 x 16 icon of 32-bit pixels, all of one opaque colour, in the .ico file format.
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
    const unsigned side = 16;
    const unsigned pixels = side * side * 4;
    const unsigned mask = side * 4; // 1 bit per pixel, rows padded to 4 bytes
    const unsigned image = 40 + pixels + mask;
    u16(0);
    u16(1);
    u16(1); // header: icon, one image
    out.push_back(side);
    out.push_back(side);
    out.push_back(0);
    out.push_back(0);
    u16(1);
    u16(32);
    u32(image);
    u32(6 + 16);
    u32(40);
    u32(side);
    u32(side * 2);
    u16(1);
    u16(32);
    u32(0);
    u32(pixels);
    u32(0);
    u32(0);
    u32(0);
    u32(0);
    for (unsigned i = 0; i < side * side; ++i) {
        out.push_back(b);
        out.push_back(g);
        out.push_back(r);
        out.push_back(0xFF);
    }
    out.insert(out.end(), mask, 0);
    return out;
}

class IconExtractorContract : public ::testing::Test {
protected:
    void SetUp() override
    {
#ifdef _WIN32
        wchar_t temp[MAX_PATH] = {};
        ASSERT_GT(GetTempPathW(MAX_PATH, temp), 0u);
        m_folder = std::filesystem::path(temp) / L"norvale-icon-contract";
        m_extractor = std::make_unique<platform::WinIconExtractor>();
#else
        std::string pattern = (std::filesystem::temp_directory_path() / "norvale-icons-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_root = pattern;
        m_folder = m_root / "C" / "Icons";
        m_extractor = std::make_unique<platform::SandboxIconExtractor>(m_root.wstring());
#endif
        std::filesystem::create_directories(m_folder);
    }
    void TearDown() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_root.empty() ? m_folder : m_root, ignored);
    }

    std::filesystem::path m_folder;
    std::filesystem::path m_root;
    std::unique_ptr<platform::IconExtractor> m_extractor;
};

TEST_F(IconExtractorContract, IconFileGivesAnImage)
{
    const auto file = m_folder / "app.ico";
    const auto bytes = solidIcon(0x20, 0x80, 0xE0);
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
    const platform::IconResult result = m_extractor->extract(file.wstring(), 0);
    EXPECT_FALSE(result.image.isNull());
    EXPECT_EQ(result.error, 0u);
}

TEST_F(IconExtractorContract, MissingFileGivesNothing)
{
    const platform::IconResult result = m_extractor->extract((m_folder / "missing.exe").wstring(), 0);
    EXPECT_TRUE(result.image.isNull());
    EXPECT_NE(result.error, 0u);
}

} // namespace
