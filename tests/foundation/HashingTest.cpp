#include "foundation/Hashing.h"

#include <gtest/gtest.h>

#include <string>
#include <unordered_set>

namespace brindlex {
namespace {

struct Leaf {
    std::string text{};
    std::optional<std::string> remark{};

    bool operator==(const Leaf&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("text", &Leaf::text), omittedWhenAbsent("remark", &Leaf::remark)};
    }
};

struct Nothing {
    bool operator==(const Nothing&) const = default;
};
struct Something {
    bool operator==(const Something&) const = default;
};

struct Tree {
    std::vector<Leaf> leaves{};
    std::variant<Nothing, Something, Leaf> crown{};
    int height = 0;

    bool operator==(const Tree&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{required("leaves", &Tree::leaves), required("crown", &Tree::crown),
            required("height", &Tree::height)};
    }
};

TEST(Hashing, isEqualForEqualRecords)
{
    const Tree tree{{{"a", "b"}}, Leaf{"c", {}}, 3};

    EXPECT_EQ(hashValue(tree), hashValue(Tree(tree)));
}

TEST(Hashing, takesInEveryField)
{
    const std::vector<Tree> trees{
        {},
        {{}, {}, 1},
        {{}, Something{}, 0},
        {{}, Leaf{}, 0},
        {{}, Leaf{"x", {}}, 0},
        {{{}}, {}, 0},
        {{{"x", {}}}, {}, 0},
        {{{"", "x"}}, {}, 0},
        {{{"", ""}}, {}, 0},
        {{{"x", {}}, {}}, {}, 0},
        {{{}, {"x", {}}}, {}, 0},
    };
    std::unordered_set<std::size_t> hashes;
    for (const auto& tree : trees)
        hashes.insert(hashValue(tree));

    EXPECT_EQ(hashes.size(), trees.size());
}

TEST(Hashing, makesRecordsKeys)
{
    const std::unordered_set<Leaf> leaves{{"a", {}}, {"a", {}}, {"a", ""}};

    EXPECT_EQ(leaves.size(), 2u);
}

} // namespace
} // namespace brindlex
