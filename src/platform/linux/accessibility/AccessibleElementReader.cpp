#include "platform/linux/accessibility/AccessibleElementReader.h"

#include "platform/linux/accessibility/AccessibilityInterfaces.h"
#include "platform/linux/accessibility/AccessibilityReply.h"
#include "platform/linux/accessibility/AccessibilityRole.h"

#include <algorithm>
#include <cmath>
#include <unistd.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using accessibilityInterface::accessible;
using accessibilityInterface::component;
using accessibilityInterface::properties;

/// The time of a question ends with its deadline, not before.
constexpr AccessibilityLimits untilDeadline{1000ms, 1000ms};
constexpr AccessibilityBus::Loss loss{"the dividers of split views are found by the cursor alone",
    "the dividers in programs started meanwhile are found by the cursor alone", logCategory::mouse};

/// Elements lie in each other no deeper, and a program has no more windows, than are looked at.
constexpr int deepest = 32;
constexpr std::size_t mostFrames = 32;
constexpr int longestName = 64;

/// A reference, alone in a reply or in a property.
std::optional<AccessibleObject> reference(const QVariant& value)
{
    const auto structure = container(value, "(so)");
    if (!structure)
        return {};
    QString service;
    QDBusObjectPath path;
    structure->beginStructure();
    *structure >> service >> path;
    structure->endStructure();
    AccessibleObject object{service, path.path()};
    return object.isNull() ? std::nullopt : std::optional(object);
}

double distance(const Rect& one, const Rect& other)
{
    return std::abs(one.minX() - other.minX()) + std::abs(one.minY() - other.minY())
        + std::abs(one.maxX() - other.maxX()) + std::abs(one.maxY() - other.maxY());
}

Point minus(Point point, Point origin) { return {point.x - origin.x, point.y - origin.y}; }

} // namespace

AccessibleElementReader::AccessibleElementReader() : bus_(untilDeadline, loss) { }

bool AccessibleElementReader::begin(Clock::time_point deadline)
{
    const auto left
        = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    return left > 0ms && bus_.begin(left);
}

std::optional<AccessibleElementReader::Element> AccessibleElementReader::elementAt(
    const X11WindowAtPoint& window, Point point, Clock::time_point deadline)
{
    // A question to this very process would wait for the thread that waits for the reply.
    if (window.processIdentifier == getpid() || !begin(deadline))
        return {};
    const auto program = application(window.processIdentifier);
    const auto frame = program ? frameOf(*program, window, point) : std::nullopt;
    if (!frame)
        return {};
    if (const auto found = deepestAt(*frame, point, Coordinates::ofScreen))
        return Element{*found, *frame, {}, true};
    const auto origin = window.contents.origin;
    if (const auto found = deepestAt(*frame, minus(point, origin), Coordinates::ofWindow))
        return Element{*found, *frame, origin, true};
    return Element{*frame, *frame, {}, true};
}

std::optional<AccessibleObject> AccessibleElementReader::application(std::int64_t process)
{
    const auto all = bus_.applications();
    if (!all)
        return {};
    for (const auto& program : *all) {
        const auto identifier = bus_.processIdentifier(program.service);
        if (identifier && *identifier == process)
            return program;
    }
    return {};
}

std::optional<AccessibleObject> AccessibleElementReader::frameOf(
    const AccessibleObject& application, const X11WindowAtPoint& window, Point point)
{
    const auto frames = bus_.children(application);
    if (!frames || frames->empty())
        return {};
    if (frames->size() == 1)
        return frames->front();
    std::optional<AccessibleObject> best;
    double least = 0;
    for (std::size_t index = 0; index < std::min(frames->size(), mostFrames); ++index) {
        const auto& frame = (*frames)[index];
        const auto area = extents(frame, Coordinates::ofScreen);
        if (!area || !area->containsWithin(0, point))
            continue;
        const auto difference = distance(*area, window.contents);
        if (!best || difference < least) {
            best = frame;
            least = difference;
        }
    }
    return best;
}

std::optional<AccessibleObject> AccessibleElementReader::deepestAt(
    const AccessibleObject& frame, Point point, Coordinates coordinates)
{
    std::optional<AccessibleObject> found;
    auto next = childAt(frame, point, coordinates);
    for (int depth = 0; next && next != found && depth < deepest; ++depth) {
        found = next;
        next = childAt(*found, point, coordinates);
    }
    return found;
}

std::optional<AccessibleObject> AccessibleElementReader::childAt(
    const AccessibleObject& object, Point point, Coordinates coordinates)
{
    const auto reply = bus_.ask(object, component, QStringLiteral("GetAccessibleAtPoint"),
        {static_cast<int>(std::floor(point.x)), static_cast<int>(std::floor(point.y)),
            static_cast<unsigned>(coordinates)});
    return reply ? reference(*reply) : std::nullopt;
}

std::optional<std::string> AccessibleElementReader::role(
    const Element& element, Clock::time_point deadline)
{
    if (!begin(deadline))
        return {};
    const auto number = bus_.ask(element.object, accessible, QStringLiteral("GetRole"));
    if (!number || number->metaType() != QMetaType::fromType<unsigned>())
        return {};
    AccessibilityRole role{.number = number->toUInt(), .isDeepest = element.isDeepest};
    if (role.needsNames()) {
        if (const auto reply = bus_.ask(element.object, accessible, QStringLiteral("GetRoleName")))
            if (const auto name = text(*reply))
                role.roleName = name->left(longestName).toStdString();
        if (const auto name = bus_.name(element.object))
            role.name = name->left(longestName).toStdString();
    }
    if (role.number == AccessibilityRole::separator)
        if (const auto area = frameNow(element))
            role.thickness = std::min(area->size.width, area->size.height);
    return role.text();
}

std::optional<std::string> AccessibleElementReader::roleName(
    const Element& element, Clock::time_point deadline)
{
    if (!begin(deadline))
        return {};
    const auto reply = bus_.ask(element.object, accessible, QStringLiteral("GetRoleName"));
    const auto name = reply ? text(*reply) : fail(AccessibilityProblem::refused);
    if (!name)
        return {};
    return name->left(longestName).toStdString();
}

std::optional<AccessibleElementReader::Element> AccessibleElementReader::parent(
    const Element& element, Clock::time_point deadline)
{
    if (!begin(deadline))
        return {};
    const auto reply = bus_.ask(
        element.object, properties, QStringLiteral("Get"), {accessible, QStringLiteral("Parent")});
    const auto parent = reply ? reference(unpacked(*reply)) : std::nullopt;
    if (!parent)
        return {};
    return Element{*parent, element.frame, element.windowOrigin, false};
}

std::optional<Rect> AccessibleElementReader::frame(
    const Element& element, Clock::time_point deadline)
{
    return begin(deadline) ? frameNow(element) : std::nullopt;
}

std::optional<Rect> AccessibleElementReader::frameNow(const Element& element)
{
    if (!element.windowOrigin)
        return extents(element.object, Coordinates::ofScreen);
    auto area = extents(element.object, Coordinates::ofWindow);
    if (area)
        area->origin
            = {area->origin.x + element.windowOrigin->x, area->origin.y + element.windowOrigin->y};
    return area;
}

std::optional<Rect> AccessibleElementReader::extents(
    const AccessibleObject& object, Coordinates coordinates)
{
    const auto reply = bus_.ask(
        object, component, QStringLiteral("GetExtents"), {static_cast<unsigned>(coordinates)});
    const auto structure = reply ? container(*reply, "(iiii)") : std::nullopt;
    if (!structure)
        return {};
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    structure->beginStructure();
    *structure >> x >> y >> width >> height;
    structure->endStructure();
    return Rect{{static_cast<double>(x), static_cast<double>(y)},
        {static_cast<double>(width), static_cast<double>(height)}};
}

} // namespace brindlex
