#include "support/switching/SwitchScenario.h"

#include "support/switching/SwitchRecords.h"

#include <algorithm>
#include <charconv>
#include <sstream>

namespace brindlex {
namespace {

using Event = SwitchScenarioEvent;
using Words = std::vector<std::string>;

Words wordsOf(const std::string& text)
{
    std::istringstream stream(text);
    Words words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

std::string joined(Words::const_iterator begin, Words::const_iterator end)
{
    std::string text;
    for (auto word = begin; word != end; ++word)
        text += (text.empty() ? "" : " ") + *word;
    return text;
}

std::optional<std::string> known(const std::string& word)
{
    return word == "unknown" ? std::nullopt : std::optional(word);
}

template <typename Number>
std::optional<Number> number(std::string_view text)
{
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return {};
    return value;
}

std::optional<Seconds> milliseconds(std::string_view word)
{
    if (!word.ends_with("ms"))
        return {};
    const auto value = number<int>(word.substr(0, word.size() - 2));
    if (!value)
        return {};
    return *value / 1000.0;
}

std::optional<Event::Any> eventOf(const Words& words)
{
    const auto is = [&](std::initializer_list<const char*> beginning, std::size_t count) {
        return words.size() == count
            && std::equal(beginning.begin(), beginning.end(), words.begin());
    };
    if (is({"start"}, 1))
        return Event::Start{};
    if (is({"stop"}, 1))
        return Event::Stop{};
    if (is({"activate"}, 2))
        return Event::Activate{known(words[1])};
    if (is({"user", "selects"}, 3))
        return Event::UserSelects{known(words[2])};
    if (is({"page"}, 2))
        return Event::ShowPage{known(words[1])};
    if (is({"tick"}, 1))
        return Event::Tick{};
    if (is({"source", "changed"}, 2))
        return Event::SourceChanged{};
    if (is({"set"}, words.size()) && words.size() >= 3)
        return Event::Set{joined(words.begin() + 1, words.end() - 1), words.back()};
    if (is({"refuse"}, 2))
        return Event::Refuse{words[1]};
    if (is({"accept"}, 2))
        return Event::Accept{words[1]};
    if (is({"wait"}, 1))
        return Event::Wait{};
    return {};
}

template <typename Enumeration>
bool setTo(Enumeration& setting, const std::string& value)
{
    std::optional<Enumeration> wanted;
    if constexpr (std::is_same_v<Enumeration, bool>) {
        if (value == "on" || value == "off")
            wanted = value == "on";
    } else if constexpr (std::is_integral_v<decltype(storedValue(Enumeration{}))>) {
        if (const auto stored = number<int>(value))
            wanted = caseWithStoredValue<Enumeration>(*stored);
    } else {
        wanted = caseWithStoredValue<Enumeration>(value);
    }
    if (wanted)
        setting = *wanted;
    return wanted.has_value();
}

/// Reads one line of the header; false when it is none.
bool readHeader(SwitchScenario& scenario, const std::string& line)
{
    const auto colon = line.find(": ");
    if (colon == std::string::npos)
        return false;
    const auto key = line.substr(0, colon);
    const auto words = wordsOf(line.substr(colon + 2));
    if (words.empty())
        return false;
    const auto last = words.back();
    if (key == "plays") {
        for (const auto& word : words)
            scenario.players.insert(word.substr(0, word.find(',')));
    } else if (key == "source" && words.size() >= 2) {
        scenario.sources.push_back({words[0], joined(words.begin() + 1, words.end())});
    } else if (key == "rule" && words.size() == 2) {
        scenario.config.rules.push_back(appRule(words[0], last));
    } else if (key == "website" && words.size() == 2) {
        scenario.config.domainRules.push_back(websiteRule(words[0], last));
    } else if (key == "browser" && words.size() == 1) {
        scenario.browsers.insert(last);
    } else if (key == "front" && words.size() == 1) {
        scenario.frontmostBundleID = last;
    } else if (key == "learned" && words.size() == 3 && number<int>(last)) {
        for (auto left = *number<int>(last); left > 0; --left)
            scenario.smartConfig.recordSample(words[1], {words[0], words[0]}, Date{});
    } else if (key == "set" && words.size() >= 2) {
        return applySetting(
            joined(words.begin(), words.end() - 1), last, scenario.config, scenario.smartConfig);
    } else if (key == "echo" && (line == "echo: by hand" || milliseconds(last))) {
        scenario.echoDelay = milliseconds(last);
    } else {
        return false;
    }
    return true;
}

std::string withoutTrailingBlanks(std::string text)
{
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

} // namespace

bool applySetting(const std::string& name, const std::string& value, InputMethodConfig& config,
    SmartInputMethodConfig& smartConfig)
{
    if (name == "switching")
        return setTo(config.enabled, value);
    if (name == "websites")
        return setTo(config.domainRulesEnabled, value);
    if (name == "hud")
        return setTo(config.showHUD, value);
    if (name == "learning")
        return setTo(smartConfig.learningEnabled, value);
    if (name == "learned rules")
        return setTo(smartConfig.enabled, value);
    if (name == "priority")
        return setTo(smartConfig.priority, value);
    if (name == "threshold")
        return setTo(smartConfig.thresholdRatio, value);
    if (name == "window")
        return setTo(smartConfig.windowSize, value);
    if (name == "limit")
        return setTo(smartConfig.appLimit, value);
    return false;
}

Result<SwitchScenario, std::string> parseSwitchScenario(std::string_view text)
{
    SwitchScenario scenario;
    std::istringstream stream{std::string(text)};
    Seconds lastTime = 0;
    bool isInHeader = true;
    for (std::string line; std::getline(stream, line);) {
        const auto problem = [&](const std::string& reason) {
            return fail(
                "line " + std::to_string(scenario.lines.size() + 1) + " " + reason + ": " + line);
        };
        if (line.empty() || line.starts_with('#')) {
            scenario.lines.push_back({line, {}});
            continue;
        }
        const auto written = withoutTrailingBlanks(line.substr(0, line.find("->")));
        auto words = wordsOf(written);
        const auto time = words.empty() ? std::nullopt : milliseconds(words.front());
        if (!time) {
            if (!isInHeader || !readHeader(scenario, line))
                return problem("is neither of the header nor a step");
            scenario.lines.push_back({line, {}});
            continue;
        }
        isInHeader = false;
        words.erase(words.begin());
        const auto event = eventOf(words);
        if (!event)
            return problem("has an unknown event");
        if (*time < lastTime)
            return problem("goes back in time");
        lastTime = *time;
        scenario.lines.push_back({written, SwitchScenario::Step{*time, *event}});
    }
    if (scenario.players.empty() || scenario.sources.empty() || isInHeader)
        return fail(std::string("the file lacks its players, its sources or its steps"));
    scenario.smartConfig.normalizeStats();
    return scenario;
}

std::string playSwitchScenario(const SwitchScenario& scenario, SwitchScenarioExecutor& executor)
{
    std::size_t width = 0;
    for (const auto& line : scenario.lines)
        if (line.step)
            width = std::max(width, line.written.size());

    const bool showsAll = !scenario.players.contains("desktop");
    executor.begin(scenario);
    std::string text;
    for (const auto& line : scenario.lines) {
        std::string outcomes;
        if (line.step)
            for (const auto& outcome : executor.perform(*line.step))
                if (showsAll || outcome.isVisible)
                    outcomes += (outcomes.empty() ? "" : ", ") + outcome.text;
        text += line.written;
        if (!outcomes.empty())
            text += std::string(width - line.written.size(), ' ') + "  -> " + outcomes;
        text += "\n";
    }
    return text;
}

std::vector<std::filesystem::path> switchScenarioFiles(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error))
        if (entry.path().extension() == ".txt")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace brindlex
