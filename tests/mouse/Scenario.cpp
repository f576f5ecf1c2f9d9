#include "mouse/Scenario.h"

#include <charconv>
#include <optional>
#include <sstream>

namespace brindlex {
namespace {

constexpr const char* arrow = "->";

ScenarioExecutor::Words wordsIn(const std::string& text)
{
    std::istringstream stream(text);
    ScenarioExecutor::Words words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

/// The time that a word such as "1500ms" says.
std::optional<Seconds> timeIn(const std::string& word)
{
    double milliseconds = 0;
    const auto [end, problem]
        = std::from_chars(word.data(), word.data() + word.size(), milliseconds);
    if (problem != std::errc() || std::string(end, word.data() + word.size()) != "ms")
        return {};
    return milliseconds / 1000;
}

std::string joined(const std::vector<std::string>& parts)
{
    std::string text;
    for (const auto& part : parts)
        text += (text.empty() ? "" : ", ") + part;
    return text.empty() ? "nothing" : text;
}

} // namespace

std::string replayed(const std::string& scenario, ScenarioExecutor& executor)
{
    std::istringstream stream(scenario);
    std::string result;
    for (std::string line; std::getline(stream, line);) {
        const auto left = line.substr(0, line.find(arrow));
        auto words = wordsIn(left);
        const bool isComment = !words.empty() && words.front().starts_with('#');
        const auto time = words.empty() ? std::nullopt : timeIn(words.front());
        if (isComment || words.empty()) {
            result += line + "\n";
        } else if (!time) {
            executor.setUp(words);
            result += line + "\n";
        } else {
            words.erase(words.begin());
            result += left + arrow + " " + joined(executor.run(*time, words)) + "\n";
        }
    }
    return result;
}

} // namespace brindlex
