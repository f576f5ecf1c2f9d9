// What one change of application costs in preferences: the learning record is written twice.

#include "inputmethod/SmartInputMethodConfigStore.h"
#include "platform/linux/preferences/JsonFileUserDefaults.h"
#include "platform/linux/system/QtMainThread.h"
#include "platform/posix/SerialQueue.h"
#include "preferences/UserDefaultsStorageBox.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

namespace brindlex {
namespace {

constexpr int samples = 10;
constexpr int dates = 50;

SmartInputMethodConfig learned(std::int64_t applications)
{
    SmartInputMethodConfig config;
    for (std::int64_t number = 0; number < applications; ++number) {
        const AppIdentifier app{"org.example.Application" + std::to_string(number),
            "Application " + std::to_string(number), "/usr/share/icons/example.svg"};
        for (int sample = 0; sample < samples; ++sample)
            config.recordSample("ibus:libpinyin-" + std::to_string(sample % 2), app,
                Date{800'000'000.123 + sample});
        for (int date = 0; date < dates; ++date)
            config.recordActivation(app.bundleID, Date{800'000'000.123 + date});
    }
    return config;
}

/// Preferences in a real file that goes away in the end.
class RealPreferences {
public:
    RealPreferences()
    {
        auto pattern = (std::filesystem::temp_directory_path() / "brindlex.XXXXXX").string();
        folder_ = ::mkdtemp(pattern.data());
        defaults_ = std::make_unique<JsonFileUserDefaults>(folder_ / "p.json", mainThread_, queue_);
    }
    ~RealPreferences()
    {
        defaults_.reset();
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    RealPreferences(const RealPreferences&) = delete;
    RealPreferences& operator=(const RealPreferences&) = delete;

    JsonFileUserDefaults& defaults() { return *defaults_; }

private:
    std::filesystem::path folder_;
    QtMainThread mainThread_;
    SerialQueue queue_{"preferences"};
    std::unique_ptr<JsonFileUserDefaults> defaults_;
};

/// An event that learns nothing: what the state machine gave back is assigned as it is.
void unchangedEvent(benchmark::State& state)
{
    RealPreferences preferences;
    SmartInputMethodConfigStore store(preferences.defaults());
    store.setConfig(learned(state.range(0)));
    for (auto _ : state) {
        store.setConfig(store.config().value());
        store.persist();
    }
}
BENCHMARK(unchangedEvent)->Arg(0)->Arg(20)->Arg(200)->Unit(benchmark::kMicrosecond);

/// An event that learns one sample.
void changedEvent(benchmark::State& state)
{
    RealPreferences preferences;
    SmartInputMethodConfigStore store(preferences.defaults());
    store.setConfig(learned(state.range(0)));
    const AppIdentifier app{"org.example.Application0", "Application 0", {}};
    Seconds now = 810'000'000;
    for (auto _ : state) {
        auto config = store.config().value();
        config.recordSample("ibus:libpinyin-0", app, Date{now});
        config.recordActivation(app.bundleID, Date{now});
        now += 1;
        store.setConfig(std::move(config));
        store.persist();
    }
}
BENCHMARK(changedEvent)->Arg(0)->Arg(20)->Arg(200)->Unit(benchmark::kMicrosecond);

/// How long the text is that each event would have to make.
void encodeAlone(benchmark::State& state)
{
    const auto config = learned(state.range(0));
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes = UserDefaultsStorageBox<SmartInputMethodConfig>{config}.rawValue().size();
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(encodeAlone)->Arg(0)->Arg(20)->Arg(200)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
