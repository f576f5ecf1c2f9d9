#include "foundation/Observable.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Values = std::vector<int>;

class ObservableTest : public testing::Test {
protected:
    auto recorder()
    {
        return [this](int value) { heard.push_back(value); };
    }

    Observable<int> observable{1};
    Values heard;
};

TEST_F(ObservableTest, replaysItsValueBeforeASubscriptionReturns)
{
    const auto subscription = observable.subscribe(recorder());
    EXPECT_EQ(heard, Values{1});
    EXPECT_EQ(observable.value(), 1);
}

TEST_F(ObservableTest, deliversEverySetAlsoOfAnEqualValue)
{
    const auto subscription = observable.subscribe(recorder());
    observable.set(2);
    observable.set(2);

    EXPECT_EQ(heard, (Values{1, 2, 2}));
    EXPECT_EQ(observable.value(), 2);
}

TEST_F(ObservableTest, deliversNoMoreAfterASubscriptionHasEnded)
{
    auto subscription = observable.subscribe(recorder());
    subscription.reset();
    observable.set(2);

    EXPECT_EQ(heard, Values{1});
}

TEST_F(ObservableTest, isChangedBeforeItDelivers)
{
    Values seen;
    const auto subscription
        = observable.subscribe([&](int) { seen.push_back(observable.value()); });
    observable.set(2);

    EXPECT_EQ(seen, (Values{1, 2}));
}

TEST_F(ObservableTest, leavesEverybodyWithTheNewestValueAfterASetFromInside)
{
    Values early;
    const auto first = observable.subscribe([&](int value) { early.push_back(value); });
    const auto second = observable.subscribe([&](int value) {
        if (value == 2)
            observable.set(3);
    });
    const auto third = observable.subscribe(recorder());

    observable.set(2);

    EXPECT_EQ(early, (Values{1, 2, 3}));
    EXPECT_EQ(heard, (Values{1, 3}));
    EXPECT_EQ(observable.value(), 3);
}

TEST_F(ObservableTest, deliversASetFromInsideTheReplay)
{
    const auto first = observable.subscribe(recorder());
    Values own;
    const auto second = observable.subscribe([&](int value) {
        own.push_back(value);
        if (value == 1)
            observable.set(2);
    });

    EXPECT_EQ(heard, (Values{1, 2}));
    EXPECT_EQ(own, (Values{1, 2}));
}

TEST_F(ObservableTest, takesASubscriptionFromInsideADelivery)
{
    Subscription late;
    const auto first = observable.subscribe([&](int value) {
        if (value == 2)
            late = observable.subscribe(recorder());
    });
    observable.set(2);
    EXPECT_EQ(heard, Values{2});
    observable.set(3);

    EXPECT_EQ(heard, (Values{2, 3}));
}

TEST_F(ObservableTest, letsASubscriberGoFromInsideADelivery)
{
    Subscription own;
    own = observable.subscribe([&](int value) {
        heard.push_back(value);
        own.reset();
    });
    EXPECT_TRUE(own.isActive());
    observable.set(2);
    observable.set(3);

    EXPECT_EQ(heard, (Values{1, 2}));
}

TEST_F(ObservableTest, keepsTheDeliveredValueWhileAHandlerLooksAtIt)
{
    Observable<std::string> text(std::string(100, 'a'));
    std::string seen;
    const auto subscription = text.subscribe([&](const std::string& value) {
        if (value.front() == 'b') {
            text.set(std::string(100, 'c'));
            seen = value;
        }
    });
    text.set(std::string(100, 'b'));

    EXPECT_EQ(seen, std::string(100, 'b'));
}

TEST_F(ObservableTest, mayEndBeforeOrDuringItsSubscriptions)
{
    auto owned = std::make_unique<Observable<int>>(1);
    const auto stream = owned->stream();
    const auto first = owned->subscribe([&](int value) {
        if (value == 2)
            owned.reset();
    });
    const auto second = owned->subscribe(recorder());
    owned->set(2);

    EXPECT_EQ(owned, nullptr);
    EXPECT_EQ(heard, (Values{1, 2}));
    const auto third = stream.subscribe(recorder());
    EXPECT_EQ(heard, (Values{1, 2, 2}));
}

class StreamTest : public ObservableTest { };

TEST_F(StreamTest, mapsEachValue)
{
    std::vector<std::string> texts;
    const auto subscription
        = observable.stream()
              .map([](int value) { return std::to_string(value * 10); })
              .subscribe([&](const std::string& text) { texts.push_back(text); });
    observable.set(2);

    EXPECT_EQ(texts, (std::vector<std::string>{"10", "20"}));
}

TEST_F(StreamTest, mapsToAMember)
{
    struct Config {
        int limit = 0;
        bool isOn = false;
    };
    Observable<Config> config(Config{5, true});
    const auto subscription = config.stream().map(&Config::limit).subscribe(recorder());
    config.set({6, true});

    EXPECT_EQ(heard, (Values{5, 6}));
}

TEST_F(StreamTest, leavesOutRepeatsNextToEachOther)
{
    const auto subscription = observable.stream().withoutRepeats().subscribe(recorder());
    for (const int value : {1, 2, 2, 1, 1, 3})
        observable.set(value);

    EXPECT_EQ(heard, (Values{1, 2, 1, 3}));
}

TEST_F(StreamTest, leavesOutTheReplay)
{
    const auto subscription = observable.stream().withoutFirst().subscribe(recorder());
    EXPECT_EQ(heard, Values{});
    observable.set(1);
    observable.set(2);

    EXPECT_EQ(heard, (Values{1, 2}));
}

TEST_F(StreamTest, takesItsStepsInTheirOrder)
{
    const auto parity = observable.stream().map([](int value) { return value % 2; });
    const auto first = parity.withoutRepeats().withoutFirst().subscribe(recorder());
    for (const int value : {3, 4, 6, 5})
        observable.set(value);
    EXPECT_EQ(heard, (Values{0, 1}));

    heard.clear();
    const auto second = parity.withoutFirst().withoutRepeats().subscribe(recorder());
    observable.set(7);
    EXPECT_EQ(heard, Values{1});
}

TEST_F(StreamTest, startsItsStepsAfreshForEachSubscription)
{
    const auto stream = observable.stream().withoutRepeats().withoutFirst();
    Values other;
    const auto first = stream.subscribe(recorder());
    observable.set(2);
    const auto second = stream.subscribe([&](int value) { other.push_back(value); });
    observable.set(3);

    EXPECT_EQ(heard, (Values{2, 3}));
    EXPECT_EQ(other, Values{3});
}

TEST_F(StreamTest, leavesOutARepeatOfAValueSetFromInside)
{
    const auto subscription = observable.stream().withoutRepeats().subscribe([&](int value) {
        heard.push_back(value);
        if (value == 2)
            observable.set(2);
    });
    observable.set(2);

    EXPECT_EQ(heard, (Values{1, 2}));
}

} // namespace
} // namespace brindlex
