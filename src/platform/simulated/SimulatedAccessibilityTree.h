#pragma once

#include "platform/AccessibilityTree.h"

#include <utility>
#include <vector>

namespace brindlex {

/// An element that returns what it was given.
class SimulatedElement : public AccessibilityElement {
public:
    void setMessagingTimeout(Seconds timeout) override { messagingTimeout = timeout; }
    std::optional<std::string> role() override { return reply(givenRole); }
    std::optional<std::string> subrole() override { return reply(givenSubrole); }
    std::optional<std::string> roleDescription() override { return reply(givenDescription); }
    std::shared_ptr<AccessibilityElement> parent() override { return reply(givenParent); }
    std::shared_ptr<AccessibilityElement> window() override { return reply(givenWindow); }
    std::optional<Point> position() override { return reply(givenPosition); }
    std::optional<Size> size() override { return reply(givenSize); }

    std::optional<std::string> givenRole{};
    std::optional<std::string> givenSubrole{};
    std::optional<std::string> givenDescription{};
    std::shared_ptr<SimulatedElement> givenParent{};
    std::shared_ptr<SimulatedElement> givenWindow{};
    std::optional<Point> givenPosition{};
    std::optional<Size> givenSize{};

    /// How long a reply takes; longer than the time-out, and there is none.
    Seconds latency = 0;
    std::optional<Seconds> messagingTimeout{};
    int timesAsked = 0;

private:
    template <typename Value>
    Value reply(const Value& given)
    {
        ++timesAsked;
        return messagingTimeout && latency > *messagingTimeout ? Value() : given;
    }
};

/// One element, wherever one looks.
class SimulatedAccessibilityTree : public AccessibilityTree {
public:
    std::shared_ptr<AccessibilityElement> elementAt(Point point, Seconds timeout) override
    {
        questions.emplace_back(point, timeout);
        return latency > timeout ? nullptr : element;
    }

    std::shared_ptr<SimulatedElement> element{};
    /// How long it takes to find the element.
    Seconds latency = 0;
    std::vector<std::pair<Point, Seconds>> questions{};
};

} // namespace brindlex
