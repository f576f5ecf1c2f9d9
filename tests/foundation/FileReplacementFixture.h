#pragma once

#include "foundation/FileReading.h"
#include "foundation/FileReplacement.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The name of a file in a folder of its own.
struct FileReplacement : testing::Test {
    using Replaced = Result<Done, FileProblem>;
    using Read = Result<std::optional<std::string>, FileProblem>;
    using Names = std::vector<std::string>;

    static constexpr std::size_t oneMebibyte = 1 << 20;

    TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "config.json";
};

} // namespace brindlex
