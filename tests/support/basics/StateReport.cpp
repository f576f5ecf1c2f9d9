#include "support/basics/StateReport.h"

#include <algorithm>
#include <iostream>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

constexpr std::chrono::seconds shortestReported{5};

using Descriptions = std::vector<std::pair<const StateReport*, StateReport::Describe>>;

Descriptions& descriptions()
{
    static Descriptions all;
    return all;
}

} // namespace

StateReport::StateReport(Describe describe)
{
    descriptions().emplace_back(this, std::move(describe));
}

StateReport::~StateReport()
{
    std::erase_if(descriptions(), [this](const auto& entry) { return entry.first == this; });
}

std::string presentState()
{
    std::string text;
    for (const auto& [report, describe] : descriptions())
        text += describe();
    return text;
}

void reportFailedWait(std::chrono::milliseconds waited)
{
    if (waited < shortestReported || descriptions().empty())
        return;
    std::cerr << "--- waited for " << waited.count() << " ms in vain; instead there is\n"
              << presentState() << std::flush;
}

} // namespace brindlex
