// A regedit export read into the sandbox's registry and written back.

#include "fuzztarget.h"

#include "platform/sandbox/regfile.h"

NORVALE_FUZZ_TARGET(regfile)
{
    platform::RegTree tree;
    platform::RegFile::parse(std::vector<std::uint8_t>(data, data + size), tree);
    const std::string written = platform::RegFile::serialize(tree);
    // Writing the sandbox's registry and reading it back must keep every key and value.
    platform::RegTree again;
    platform::RegFile::parse(std::vector<std::uint8_t>(written.begin(), written.end()), again);
    FUZZ_CHECK(platform::RegFile::serialize(again) == written);
    return 0;
}
