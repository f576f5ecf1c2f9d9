#include "desktop/LearnedSamples.h"

namespace brindlex {

std::vector<std::string> samples(const ProgramFiles& files, const std::string& className)
{
    return samplesOf(files, identifierOf(className));
}

std::vector<std::string> samplesOf(const ProgramFiles& files, const std::string& application)
{
    using nlohmann::json;
    std::vector<std::string> sources;
    const auto record = files.readRecord("smartInputMethodConfig");
    if (!record.is_object())
        return sources;
    for (const auto& statistics : record.value("appStats", json::array()))
        if (statistics["app"]["bundleID"] == application)
            for (const auto& sample : statistics["samples"])
                sources.push_back(sample["inputSourceID"]);
    return sources;
}

} // namespace brindlex
