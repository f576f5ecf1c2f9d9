#include "support/scenarios/ScenarioFile.h"

#include "foundation/Text.h"
#include "support/scenarios/ScenarioWords.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace brindlex {
namespace {

using Content = ScenarioLine::Any;
using Step = ScenarioLine::Step;

constexpr std::string_view arrow = "->";
constexpr std::string_view exclusion = "not on ";

/// With single blanks between the words.
std::string normalized(std::string_view text)
{
    ScenarioWords words(text);
    return words.isAtEnd() ? "" : words.rest();
}

bool startsLikeATime(const std::string& line)
{
    return std::string_view("+-.0123456789").find(line.front()) != std::string_view::npos;
}

Result<Content, std::string> parseStep(const std::string& line)
{
    const auto end = line.find(arrow);
    ScenarioWords words(std::string_view(line).substr(0, end));
    Step step;
    step.milliseconds = words.milliseconds();
    step.words = words.rest();
    if (end != std::string::npos)
        step.effects = trimmed(std::string_view(line).substr(end + arrow.size()));
    if (const auto problem = words.problem())
        return fail(*problem);
    return Content{step};
}

Result<Content, std::string> parseExclusion(const std::string& line)
{
    const auto colon = std::min(line.find(':'), line.size());
    ScenarioLine::Exclusion result;
    result.player = normalized(line.substr(exclusion.size(), colon - exclusion.size()));
    result.reason = trimmed(line.substr(std::min(colon + 1, line.size())));
    if (result.player.empty() || result.reason.empty())
        return fail(std::string("lacks the player or the reason: \"not on <player>: <reason>\""));
    return Content{result};
}

Result<Content, std::string> parseLine(const std::string& line)
{
    if (line.front() == '#')
        return Content{ScenarioLine::Comment{line}};
    if (line.starts_with(exclusion))
        return parseExclusion(line);
    if (startsLikeATime(line))
        return parseStep(line);
    return Content{ScenarioLine::Preparation{normalized(line)}};
}

const Step* lastStep(const ScenarioFile& file)
{
    for (auto line = file.lines.rbegin(); line != file.lines.rend(); ++line)
        if (const auto step = std::get_if<Step>(&line->content))
            return step;
    return nullptr;
}

/// What keeps the content from following the lines of the file.
std::optional<std::string> misplacement(const ScenarioFile& file, const Content& content)
{
    const auto last = lastStep(file);
    if (!last || std::holds_alternative<ScenarioLine::Comment>(content))
        return {};
    const auto step = std::get_if<Step>(&content);
    if (!step)
        return "stands after the first step and has no time";
    if (step->milliseconds < last->milliseconds)
        return "goes back in time";
    return {};
}

std::string timeText(const Step& step) { return std::to_string(step.milliseconds) + "ms"; }

std::string padded(std::string text, std::size_t width)
{
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

/// The widths of what stands left of the arrows.
struct Columns {
    explicit Columns(const ScenarioFile& file)
    {
        for (const auto& line : file.lines) {
            const auto step = std::get_if<Step>(&line.content);
            if (!step)
                continue;
            time = std::max(time, timeText(*step).size());
            words = std::max(words, step->words.size());
        }
    }

    std::string text(const Step& step) const
    {
        const auto start = padded(timeText(step), time) + "  ";
        if (step.effects.empty())
            return start + step.words;
        return start + padded(step.words, words) + " " + std::string(arrow) + " " + step.effects;
    }

    std::size_t time = 0;
    std::size_t words = 0;
};

} // namespace

bool ScenarioFile::isPlayedBy(std::string_view player) const
{
    return std::ranges::none_of(lines, [&](const Line& line) {
        const auto found = std::get_if<ScenarioLine::Exclusion>(&line.content);
        return found && found->player == player;
    });
}

std::string ScenarioFile::text() const
{
    const Columns columns(*this);
    bool isAfterPreparation = lines.empty() || std::holds_alternative<Step>(lines[0].content);
    std::string result;
    for (const auto& line : lines) {
        if (std::holds_alternative<Step>(line.content) && !std::exchange(isAfterPreparation, true))
            result += "\n";
        result += match(
            line.content, [](const ScenarioLine::Comment& comment) { return comment.text; },
            [](const ScenarioLine::Exclusion& excluded) {
                return std::string(exclusion) + excluded.player + ": " + excluded.reason;
            },
            [](const ScenarioLine::Preparation& preparation) { return preparation.words; },
            [&](const Step& step) { return columns.text(step); });
        result += "\n";
    }
    return result;
}

Result<ScenarioFile, std::string> parseScenarioFile(std::string name, std::string_view text)
{
    ScenarioFile file{std::move(name), {}};
    std::size_t number = 0;
    for (const auto& written : split(text, '\n')) {
        ++number;
        const auto problem
            = [&](const auto& what) { return fail(scenarioProblem(file.name, number, what)); };
        if (written.ends_with('\r'))
            return problem("ends with CR LF; the lines of scenarios end with LF alone");
        const auto line = trimmed(written);
        if (line.empty())
            continue;
        auto content = parseLine(line);
        if (!content)
            return problem(content.error());
        if (const auto found = misplacement(file, *content))
            return problem(*found);
        file.lines.push_back({number, *content});
    }
    if (!lastStep(file))
        return fail(file.name + ": has no step");
    return file;
}

std::string scenarioProblem(
    const std::string& file, std::size_t lineNumber, const std::string& problem)
{
    return file + ":" + std::to_string(lineNumber) + ": " + problem;
}

} // namespace brindlex
