// How long the screens take to be made and drawn, with as much in their lists as users may have,
// without a display: what remains of a frame is for the X server. A frame has 16.7 ms.

#include "applications/views/ApplicationChooser.h"
#include "shell/views/MainWindow.h"
#include "support/views/ScreenGallery.h"
#include "ui/controls/SearchField.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

namespace brindlex {
namespace {

constexpr int many = 200;

/// Makes, lays out and draws all that waits.
void drawAll() { QApplication::processEvents(); }

/// Two hundred rules for applications, and as many applications of which something was learned.
void fillLists(ScreenGallery& gallery)
{
    gallery.inputMethod.change([](InputMethodConfig& config) {
        for (int number = 0; number < many; ++number) {
            const auto name = std::to_string(number);
            config.rules.push_back({Uuid::random(),
                {"org.example.Application" + name, "Application " + name, {}}, "xkb:de::deu"});
        }
    });
    gallery.inputMethod.changeSmart([](SmartInputMethodConfig& config) {
        for (int number = 0; number < many; ++number) {
            const auto name = std::to_string(number);
            config.recordSample(
                "xkb:de::deu", {"org.example.Learned" + name, "Learned " + name, {}}, Date{});
        }
    });
}

void makeTheSettings(benchmark::State& state)
{
    ScreenGallery gallery{StringCatalogue("en")};
    for (auto _ : state) {
        const auto window = gallery.show("general");
        drawAll();
    }
}
BENCHMARK(makeTheSettings)->Unit(benchmark::kMillisecond);

void switchBetweenTabs(benchmark::State& state)
{
    ScreenGallery gallery{StringCatalogue("en")};
    const auto shown = gallery.show("keyboard");
    auto& window = static_cast<MainWindow&>(*shown);
    const std::vector tabs{MainWindowTab::general, MainWindowTab::keyboard, MainWindowTab::mouse,
        MainWindowTab::about};
    std::size_t next = 0;
    for (auto _ : state) {
        window.select(tabs[next++ % tabs.size()]);
        drawAll();
    }
}
BENCHMARK(switchBetweenTabs)->Unit(benchmark::kMillisecond);

void makeTheKeyboardTabWithManyRules(benchmark::State& state)
{
    ScreenGallery gallery{StringCatalogue("en")};
    fillLists(gallery);
    for (auto _ : state) {
        const auto window = gallery.show("keyboard-empty");
        drawAll();
    }
}
BENCHMARK(makeTheKeyboardTabWithManyRules)->Unit(benchmark::kMillisecond);

void scrollManyRules(benchmark::State& state)
{
    constexpr int step = 40;
    ScreenGallery gallery{StringCatalogue("en")};
    fillLists(gallery);
    const auto window = gallery.show("keyboard-empty");
    QScrollBar* bar = nullptr;
    for (auto* const area : window->findChildren<QScrollArea*>())
        if (area->isVisible())
            bar = area->verticalScrollBar();
    for (auto _ : state) {
        bar->setValue(bar->value() >= bar->maximum() ? 0 : bar->value() + step);
        drawAll();
    }
}
BENCHMARK(scrollManyRules)->Unit(benchmark::kMillisecond);

void addARuleToMany(benchmark::State& state)
{
    ScreenGallery gallery{StringCatalogue("en")};
    fillLists(gallery);
    const auto window = gallery.show("keyboard-empty");
    for (auto _ : state) {
        const auto id = gallery.inputMethod.addAppRule("/apps/editor");
        drawAll();
        state.PauseTiming();
        gallery.inputMethod.removeAppRule(*id);
        drawAll();
        state.ResumeTiming();
    }
}
BENCHMARK(addARuleToMany)->Unit(benchmark::kMillisecond);

/// A chooser of as many applications as a computer may have.
std::unique_ptr<ApplicationChooser> makeChooser(const ScreenGallery& gallery)
{
    constexpr int installed = 5'000;
    std::vector<ApplicationChoice> choices;
    for (int number = 0; number < installed; ++number) {
        const auto name = std::to_string(number);
        choices.push_back({"org.example." + name, "Application " + name, "/apps/" + name});
    }
    return std::make_unique<ApplicationChooser>(
        gallery.context(), std::move(choices), [](const std::filesystem::path&) { return QIcon(); },
        [](const auto&) { return Subscription(); }, [](const std::filesystem::path&) {}, nullptr);
}

void openTheChooser(benchmark::State& state)
{
    const ScreenGallery gallery{StringCatalogue("en")};
    for (auto _ : state) {
        const auto chooser = makeChooser(gallery);
        chooser->show();
        drawAll();
    }
}
BENCHMARK(openTheChooser)->Unit(benchmark::kMillisecond);

void searchInTheChooser(benchmark::State& state)
{
    const ScreenGallery gallery{StringCatalogue("en")};
    const auto chooser = makeChooser(gallery);
    chooser->show();
    drawAll();
    auto* const search = chooser->findChild<SearchField*>();
    const std::vector<QString> queries{"a", "ap", "app 1", "49", "nothing"};
    std::size_t next = 0;
    for (auto _ : state) {
        search->setText(queries[next++ % queries.size()]);
        drawAll();
    }
}
BENCHMARK(searchInTheChooser)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&count, arguments);
    const QApplication application(count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
