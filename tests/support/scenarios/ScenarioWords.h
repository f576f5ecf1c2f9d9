#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The words of one line of a scenario, read from left to right.
///
/// The first word that does not fit becomes the problem of the line. Reading goes on with empty
/// values after it, so that verbs need no error handling of their own.
class ScenarioWords {
public:
    explicit ScenarioWords(std::string_view text = {});

    bool isAtEnd() const { return next_ == words_.size(); }
    bool isNext(std::string_view word) const { return !isAtEnd() && words_[next_] == word; }

    /// Takes the words, such as "user selects", if they come next.
    bool take(std::string_view words);

    std::string word();
    /// All that are left, at least one, with single blanks between them.
    std::string rest();
    double number();
    int wholeNumber();
    /// "1500ms": whole milliseconds, not negative.
    int milliseconds();
    /// "on" or "off".
    bool isOn();

    /// The value beside the next word in a table of names and values.
    template <typename Table>
    auto oneOf(const Table& table)
    {
        const auto name = word();
        for (const auto& [known, value] : table)
            if (name == known)
                return value;
        refuse("\"" + name + "\" is unknown");
        return table.begin()->second;
    }

    /// The next word is none that could stand here.
    void refuseNext();
    void refuse(std::string problem);

    /// What does not fit, words that nobody has read included.
    std::optional<std::string> problem() const;

private:
    std::vector<std::string> words_;
    std::size_t next_ = 0;
    std::optional<std::string> problem_;
};

} // namespace brindlex
