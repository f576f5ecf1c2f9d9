#include "platform/UserDefaults.h"

#include "platform/linux/preferences/JsonFileUserDefaults.h"
#include "platform/posix/SerialQueue.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "support/basics/TemporaryFolder.h"
#include "support/loops/QtLoop.h"
#include "support/loops/SimulatedLoop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <limits>
#include <memory>
#include <thread>

namespace brindlex {
namespace {

/// A simulated user with preferences that several processes share.
struct SimulatedUser {
    std::unique_ptr<UserDefaults> startProcess()
    {
        return std::make_unique<SimulatedUserDefaults>(disk, loop.mainThread());
    }

    SimulatedLoop loop;
    SimulatedPreferencesDisk disk;
};

/// A real folder, in which each process is stood for by defaults and a queue of its own.
struct LinuxUser {
    struct Process : UserDefaults {
        Process(const std::filesystem::path& file, MainThread& mainThread)
            : defaults(file, mainThread, queue)
        {
        }
        std::optional<PreferenceValue> value(const std::string& key) const override
        {
            return defaults.value(key);
        }
        void set(const std::string& key, std::optional<PreferenceValue> object) override
        {
            defaults.set(key, std::move(object));
        }
        void synchronize() override { defaults.synchronize(); }
        Subscription observeChanges(std::function<void()> handler) override
        {
            return defaults.observeChanges(std::move(handler));
        }

        SerialQueue queue{"preferences"};
        JsonFileUserDefaults defaults;
    };

    std::unique_ptr<UserDefaults> startProcess()
    {
        return std::make_unique<Process>(
            folder.path() / "com.brindlex.Brindlex.json", loop.mainThread());
    }

    QtLoop loop;
    TemporaryFolder folder;
};

template <typename User>
class UserDefaultsContract : public testing::Test {
protected:
    UserDefaultsContract() : process(user.startProcess()), other(user.startProcess()) { }

    bool runUntil(const std::function<bool()>& condition) { return user.loop.runUntil(condition); }

    User user;
    std::unique_ptr<UserDefaults> process;
    std::unique_ptr<UserDefaults> other;
};

using Users = testing::Types<SimulatedUser, LinuxUser>;
TYPED_TEST_SUITE(UserDefaultsContract, Users);

using Value = std::optional<PreferenceValue>;

const std::vector<PreferenceValue> valuesOfEachKind{true, false, std::int64_t{0},
    std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max(), 0.1, 200.0,
    -0.0, 1e300, std::string(), std::string("text"), std::string("a\0b\n\"\\/", 7),
    std::string("键盘 🎹"), std::vector<std::string>{}, std::vector<std::string>{"de", "", "日本"},
    PreferenceJson{R"({"a":[1,null]})"}};

TYPED_TEST(UserDefaultsContract, returnsWhatWasSetAtOnce)
{
    EXPECT_EQ(this->process->value("key"), Value());
    for (const auto& value : valuesOfEachKind) {
        this->process->set("key", value);
        EXPECT_EQ(this->process->value("key"), value);
    }
    this->process->set("key", {});
    EXPECT_EQ(this->process->value("key"), Value());
}

TYPED_TEST(UserDefaultsContract, keepsEveryKindOfValueForTheNextProcess)
{
    for (std::size_t index = 0; index < valuesOfEachKind.size(); ++index)
        this->process->set("key" + std::to_string(index), valuesOfEachKind[index]);
    this->process->set("", std::string("under the empty key"));
    this->process->synchronize();

    const auto next = this->user.startProcess();
    for (std::size_t index = 0; index < valuesOfEachKind.size(); ++index)
        EXPECT_EQ(next->value("key" + std::to_string(index)), valuesOfEachKind[index]) << index;
    EXPECT_EQ(next->value(""), PreferenceValue("under the empty key"));
}

TYPED_TEST(UserDefaultsContract, keepsWhatWasSetRightBeforeTheEnd)
{
    this->process->set("key", std::int64_t{1});
    this->process.reset();
    EXPECT_EQ(this->user.startProcess()->value("key"), PreferenceValue(std::int64_t{1}));
}

TYPED_TEST(UserDefaultsContract, bringsChangesToTheDiskByItself)
{
    const auto start = this->user.loop.clock().continuousTime();
    this->process->set("key", true);
    ASSERT_TRUE(this->runUntil([&] { return this->other->value("key") == PreferenceValue(true); }));
    // The disk of a busy machine is slow; what is meant is 0.1.
    EXPECT_LT(this->user.loop.clock().continuousTime() - start, 2);
}

TYPED_TEST(UserDefaultsContract, notifiesOfEachChangeAndOfNothingElse)
{
    int notified = 0;
    const auto subscription = this->process->observeChanges([&] { ++notified; });
    this->process->set("key", true);
    EXPECT_TRUE(this->runUntil([&] { return notified == 1; }));
    this->process->set("key", true);
    this->process->set("missing", {});
    this->process->synchronize();
    this->user.loop.runFor(0.2);
    EXPECT_EQ(notified, 1);
    this->process->set("key", {});
    EXPECT_TRUE(this->runUntil([&] { return notified == 2; }));
}

TYPED_TEST(UserDefaultsContract, returnsTheNewValueToWhoIsNotified)
{
    std::vector<Value> seen;
    const auto subscription
        = this->process->observeChanges([&] { seen.push_back(this->process->value("key")); });
    this->process->set("key", std::string("new"));
    ASSERT_TRUE(this->runUntil([&] { return !seen.empty(); }));
    EXPECT_EQ(seen, std::vector<Value>{PreferenceValue("new")});
}

TYPED_TEST(UserDefaultsContract, notifiesOfAChangeByAnotherProcess)
{
    int notified = 0;
    const auto subscription = this->process->observeChanges([&] { ++notified; });
    this->other->set("key", std::string("theirs"));
    ASSERT_TRUE(this->runUntil([&] { return notified == 1; }));
    EXPECT_EQ(this->process->value("key"), PreferenceValue("theirs"));

    this->other->set("key", {});
    ASSERT_TRUE(this->runUntil([&] { return notified == 2; }));
    EXPECT_EQ(this->process->value("key"), Value());
}

TYPED_TEST(UserDefaultsContract, isQuietOnceBothProcessesKnow)
{
    int notified = 0;
    int notifiedOther = 0;
    const auto subscription = this->process->observeChanges([&] { ++notified; });
    const auto otherSubscription = this->other->observeChanges([&] { ++notifiedOther; });
    this->process->set("mine", true);
    this->other->set("theirs", true);
    ASSERT_TRUE(this->runUntil([&] {
        return this->process->value("theirs") == PreferenceValue(true)
            && this->other->value("mine") == PreferenceValue(true);
    }));
    this->user.loop.runFor(0.4);
    EXPECT_EQ(notified, 2);
    EXPECT_EQ(notifiedOther, 2);
}

TYPED_TEST(UserDefaultsContract, keepsTheChangesOfBothProcessesUnderDifferentKeys)
{
    this->process->set("shared", std::int64_t{1});
    this->process->set("removed", true);
    this->process->synchronize();
    this->other->synchronize();

    this->process->set("mine", std::string("a"));
    this->process->set("removed", {});
    this->other->set("theirs", std::string("b"));
    this->other->set("shared", std::int64_t{2});
    ASSERT_TRUE(this->runUntil([&] {
        return this->process->value("theirs") && this->other->value("mine")
            && !this->other->value("removed");
    }));

    for (const auto& defaults : {this->process.get(), this->other.get()}) {
        EXPECT_EQ(defaults->value("shared"), PreferenceValue(std::int64_t{2}));
        EXPECT_EQ(defaults->value("mine"), PreferenceValue("a"));
        EXPECT_EQ(defaults->value("theirs"), PreferenceValue("b"));
        EXPECT_EQ(defaults->value("removed"), Value());
    }
}

TYPED_TEST(UserDefaultsContract, keepsWhatThisProcessHasSetAndNotWrittenYet)
{
    this->other->set("key", std::string("theirs"));
    this->other->synchronize();
    this->process->set("key", std::string("mine"));
    this->process->synchronize();
    EXPECT_EQ(this->process->value("key"), PreferenceValue("mine"));
    ASSERT_TRUE(
        this->runUntil([&] { return this->other->value("key") == PreferenceValue("mine"); }));
}

TYPED_TEST(UserDefaultsContract, writesWhatItHasSetAgainOverWhatAnotherHasWrittenBetween)
{
    this->process->set("key", std::string("mine"));
    this->process->set("removed", {});
    this->process->synchronize();
    this->other->synchronize();
    this->other->set("key", std::string("theirs"));
    this->other->set("removed", true);
    this->other->synchronize();

    this->process->set("key", std::string("mine"));
    this->process->set("removed", {});
    this->process->synchronize();

    this->other->synchronize();
    EXPECT_EQ(this->other->value("key"), PreferenceValue("mine"));
    EXPECT_EQ(this->other->value("removed"), Value());
}

TYPED_TEST(UserDefaultsContract, takesOverTheChangesOfOthersWhenAsked)
{
    this->other->set("key", std::string("theirs"));
    this->other->synchronize();
    this->process->synchronize();
    EXPECT_EQ(this->process->value("key"), PreferenceValue("theirs"));
}

TYPED_TEST(UserDefaultsContract, takesASetFromInsideAHandler)
{
    const auto subscription = this->process->observeChanges([&] {
        if (this->process->value("first") && !this->process->value("second"))
            this->process->set("second", true);
    });
    this->process->set("first", true);
    ASSERT_TRUE(
        this->runUntil([&] { return this->process->value("second") == PreferenceValue(true); }));
    this->process->synchronize();
    EXPECT_EQ(this->user.startProcess()->value("second"), PreferenceValue(true));
}

TYPED_TEST(UserDefaultsContract, isReadFromOtherThreadsWhileItChanges)
{
    std::atomic<bool> isOver = false;
    std::atomic<int> strange = 0;
    std::thread reader([&] {
        while (!isOver) {
            const auto value = this->process->value("key");
            if (value && std::get<std::string>(*value).size() != 1'000)
                ++strange;
        }
    });
    for (int change = 0; change < 1'000; ++change)
        this->process->set("key", std::string(1'000, char('a' + change % 26)));
    isOver = true;
    reader.join();
    EXPECT_EQ(strange, 0);
}

} // namespace
} // namespace brindlex
