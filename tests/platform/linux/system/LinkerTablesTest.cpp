#include "platform/linux/system/LinkerTables.h"

#include <QtGlobal>
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <dlfcn.h>
#include <fstream>
#include <link.h>
#include <sstream>
#include <string>

namespace brindlex {
namespace {

/// The first mapping of the library that has the function: its begin, and what is in memory of it.
struct LibraryBegin {
    explicit LibraryBegin(const void* function)
    {
        Dl_info library{};
        EXPECT_NE(dladdr(function, &library), 0);
        begin = reinterpret_cast<std::uintptr_t>(library.dli_fbase);
    }

    /// In kilobytes, by the line of the mapping with that name.
    long memory(const std::string& name) const
    {
        std::ostringstream address;
        address << std::hex << begin << '-';
        std::ifstream mappings("/proc/self/smaps");
        std::string line;
        while (std::getline(mappings, line) && !line.starts_with(address.str())) { }
        while (std::getline(mappings, line))
            if (line.starts_with(name))
                return std::stol(line.substr(name.size()));
        return -1;
    }

    /// Reads each page.
    void touch() const
    {
        constexpr std::uintptr_t page = 4096;
        const auto size = static_cast<std::uintptr_t>(memory("Size:")) * 1024;
        for (std::uintptr_t offset = 0; offset < size; offset += page)
            static_cast<void>(*std::bit_cast<const volatile char*>(begin + offset));
    }

    std::uintptr_t begin = 0;
};

TEST(LinkerTables, areOutOfMemoryOnceTheyAreReleased)
{
    const LibraryBegin core(reinterpret_cast<const void*>(&qVersion));
    core.touch();
    ASSERT_EQ(core.memory("Rss:"), core.memory("Size:"));

    releaseLinkerTables();

    EXPECT_LT(core.memory("Rss:"), core.memory("Size:") / 4);
}

TEST(LinkerTables, areThereAgainWhenTheyAreNeeded)
{
    releaseLinkerTables();

    EXPECT_EQ(dlsym(RTLD_DEFAULT, "qVersion"), reinterpret_cast<void*>(&qVersion));
    EXPECT_EQ(dlsym(RTLD_DEFAULT, "brindlexHasNoSuchFunction"), nullptr);
}

} // namespace
} // namespace brindlex
