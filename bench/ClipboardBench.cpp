// What the clipboard history costs as it grows.

#include "clipboard/ClipboardHistoryStore.h"
#include "clipboard/ClipboardIndex.h"
#include "clipboard/ClipboardPickerSelectionState.h"
#include "clipboard/ClipboardPreferenceKeys.h"
#include "clipboard/ClipboardSearchTexts.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedQueue.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "preferences/PreferenceKey.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

namespace brindlex {
namespace {

/// About 500 bytes of text, in one item of ten not of ASCII alone.
ClipboardItem copiedText(std::int64_t number)
{
    std::string text = "Item " + std::to_string(number) + " of the history: ";
    while (text.size() < 480)
        text += number % 10 == 0 ? "Größere Wörter und naïve Sätze. "
                                 : "Plain words of a sentence. ";
    return {.id = Uuid::random(),
        .kind = ClipboardItemKind::text,
        .createdAt = Date{800'000'000.0 - static_cast<Seconds>(number)},
        .sourceBundleID = "org.example.Editor",
        .fingerprint = "text:" + text,
        .text = text};
}

ClipboardItems historyOf(std::int64_t count)
{
    ClipboardItems items;
    for (std::int64_t number = 0; number < count; ++number)
        items.push_back(std::make_shared<const ClipboardItem>(copiedText(number)));
    return items;
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(200)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
}

void search(benchmark::State& state, const std::string& query)
{
    const auto items = historyOf(state.range(0));
    ClipboardSearchTexts texts{TextFolding()};
    ClipboardPickerSelectionState picker;
    picker.query = query;
    picker.filteredItems(items, texts);
    for (auto _ : state)
        benchmark::DoNotOptimize(picker.filteredItems(items, texts));
}

void searchThatFindsAll(benchmark::State& state) { search(state, "plain history"); }
void searchThatFindsNothing(benchmark::State& state) { search(state, "zyx"); }
BENCHMARK(searchThatFindsAll)->Apply(sizes);
BENCHMARK(searchThatFindsNothing)->Apply(sizes);

/// The first key after the picker has opened.
void searchThatFoldsAll(benchmark::State& state)
{
    const auto items = historyOf(state.range(0));
    ClipboardPickerSelectionState picker;
    picker.query = "plain";
    for (auto _ : state) {
        ClipboardSearchTexts texts{TextFolding()};
        benchmark::DoNotOptimize(picker.filteredItems(items, texts));
    }
}
BENCHMARK(searchThatFoldsAll)->Apply(sizes);

/// A history in a folder that goes away with it.
class HistoryOnDisk {
public:
    explicit HistoryOnDisk(std::int64_t count)
    {
        writePreference(defaults_, ClipboardPreferenceKeys{}.clipboardMaxItems, count);
        static_cast<void>(writeClipboardIndex(folder_ / "index.json", historyOf(count)));
    }
    ~HistoryOnDisk() { std::filesystem::remove_all(folder_); }
    HistoryOnDisk(const HistoryOnDisk&) = delete;
    HistoryOnDisk& operator=(const HistoryOnDisk&) = delete;

    ClipboardHistoryStore open()
    {
        return ClipboardHistoryStore({mainThread_, clock_, queue_, defaults_}, folder_);
    }

private:
    std::filesystem::path folder_ = std::filesystem::temp_directory_path() / "bench_clipboard";
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
    SimulatedQueue queue_;
    SimulatedUserDefaults defaults_;
};

void openTheHistory(benchmark::State& state)
{
    HistoryOnDisk history(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(history.open().items().value().size());
}
BENCHMARK(openTheHistory)->Apply(sizes);

/// What the main thread does for one copy; the index is written elsewhere.
void copyAnotherText(benchmark::State& state)
{
    HistoryOnDisk history(state.range(0));
    auto store = history.open();
    std::int64_t number = 0;
    for (auto _ : state) {
        auto item = copiedText(--number);
        if (!store.contains(item.fingerprint))
            store.add(std::move(item));
    }
}
BENCHMARK(copyAnotherText)->Apply(sizes);

void writeTheIndex(benchmark::State& state)
{
    const auto items = historyOf(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(clipboardIndexText(items)->size());
}
BENCHMARK(writeTheIndex)->Apply(sizes);

} // namespace
} // namespace brindlex

BENCHMARK_MAIN();
