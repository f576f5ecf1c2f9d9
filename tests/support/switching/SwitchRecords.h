#pragma once

#include "inputmethod/InputMethodConfig.h"
#include "inputmethod/SmartInputMethodConfig.h"

#include <string>
#include <vector>

namespace brindlex {

/// Rules and learned data in few words, for tests.

inline const std::string exampleEditor = "com.example.Editor";

/// When something is learned.
inline constexpr Date today{800'000'000};

inline constexpr Seconds days180 = 15'552'000;

InputMethodRule appRule(const std::string& bundleID, const std::string& inputSourceID);

DomainInputMethodRule websiteRule(const std::string& domain, const std::string& inputSourceID);

/// So many samples of one source.
std::vector<SmartInputMethodSample> samples(std::size_t count, const std::string& inputSourceID);

/// Statistics with these samples and nothing derived from them yet.
SmartInputMethodAppStats statsOf(
    const std::string& bundleID, std::vector<SmartInputMethodSample> samples);

/// Learned rules switched on, with one in force for the application.
SmartInputMethodConfig learnedConfig(const std::string& bundleID, const std::string& inputSourceID);

/// The sources of the samples, in order.
std::vector<std::string> sourcesOf(const std::vector<SmartInputMethodSample>& samples);

} // namespace brindlex
