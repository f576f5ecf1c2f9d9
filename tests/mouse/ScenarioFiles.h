#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace brindlex {

/// The files of the folder `scenarios`, sorted.
std::vector<std::filesystem::path> scenarioFiles();

std::string scenarioText(const std::filesystem::path& file);

/// The file's name with its words joined, as the names of tests allow nothing else.
std::string scenarioTestName(const testing::TestParamInfo<std::filesystem::path>& info);

} // namespace brindlex
