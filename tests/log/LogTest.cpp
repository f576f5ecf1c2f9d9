#include "log/Log.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {
namespace {

class Recorder : public LogSink {
public:
    void write(const LogCall& call) override
    {
        text = std::string(rawValue(call.level)) + " " + std::string(rawValue(call.subsystem)) + " "
            + std::string(call.category) + " " + std::string(call.message);
        site = call.site;
    }
    void prune(Date now) override { pruned = now; }
    std::optional<std::filesystem::path> fileURL(Log::Subsystem) override { return "/log"; }

    std::string text;
    CallSite site;
    Date pruned;
};

TEST(Log, handsTheCallAndItsSiteToTheSink)
{
    const auto recorder = std::make_shared<Recorder>();
    const auto before = Log::install(recorder);

    Log::notice("Brindlex launched", logCategory::lifecycle);
    const int line = __LINE__ - 1;
    Log::install(before);
    Log::notice("not heard", logCategory::lifecycle);

    EXPECT_EQ(recorder->text, "NOTICE com.brindlex.Brindlex.app lifecycle Brindlex launched");
    EXPECT_TRUE(recorder->site.file.ends_with("LogTest.cpp")) << recorder->site.file;
    EXPECT_EQ(recorder->site.line, line);
}

} // namespace
} // namespace brindlex
