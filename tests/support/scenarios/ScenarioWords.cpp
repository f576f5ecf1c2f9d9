#include "support/scenarios/ScenarioWords.h"

#include <array>
#include <charconv>
#include <sstream>
#include <utility>

namespace brindlex {
namespace {

std::vector<std::string> wordsOf(std::string_view text)
{
    std::istringstream stream{std::string(text)};
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

template <typename Number>
std::optional<Number> numberOf(std::string_view text)
{
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return {};
    return value;
}

std::string quoted(const std::string& word) { return "\"" + word + "\""; }

} // namespace

ScenarioWords::ScenarioWords(std::string_view text) : words_(wordsOf(text)) { }

bool ScenarioWords::take(std::string_view words)
{
    const auto start = next_;
    for (const auto& word : wordsOf(words)) {
        if (!isNext(word)) {
            next_ = start;
            return false;
        }
        ++next_;
    }
    return true;
}

std::string ScenarioWords::word()
{
    if (!isAtEnd())
        return words_[next_++];
    refuse("a word is missing");
    return {};
}

std::string ScenarioWords::rest()
{
    auto text = word();
    while (!isAtEnd())
        text += " " + word();
    return text;
}

double ScenarioWords::number()
{
    const auto text = word();
    const auto value = numberOf<double>(text);
    if (!value)
        refuse(quoted(text) + " is no number");
    return value.value_or(0);
}

int ScenarioWords::wholeNumber()
{
    const auto text = word();
    const auto value = numberOf<int>(text);
    if (!value)
        refuse(quoted(text) + " is no whole number");
    return value.value_or(0);
}

int ScenarioWords::milliseconds()
{
    const auto text = word();
    const std::string_view unit = "ms";
    const auto value = text.ends_with(unit)
        ? numberOf<int>(std::string_view(text).substr(0, text.size() - unit.size()))
        : std::nullopt;
    if (!value || *value < 0)
        refuse(quoted(text) + " is no time in whole milliseconds, such as 1500ms");
    return value.value_or(0);
}

bool ScenarioWords::isOn()
{
    constexpr std::array states{std::pair{"on", true}, std::pair{"off", false}};
    return oneOf(states);
}

void ScenarioWords::refuseNext()
{
    const auto text = word();
    refuse(quoted(text) + " is unknown");
}

void ScenarioWords::refuse(std::string problem)
{
    if (!problem_)
        problem_ = std::move(problem);
}

std::optional<std::string> ScenarioWords::problem() const
{
    if (problem_ || isAtEnd())
        return problem_;
    return quoted(words_[next_]) + " is one word too many";
}

} // namespace brindlex
