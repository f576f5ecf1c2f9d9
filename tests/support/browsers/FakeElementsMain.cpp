#include "support/browsers/AccessibleProgram.h"
#include "support/browsers/FakeElements.h"

#include <cstdlib>
#include <nlohmann/json.hpp>

namespace brindlex {
namespace {

using Behaviour = FakeElements::Behaviour;
using Element = FakeElements::Element;

constexpr unsigned ofWindow = 1;
constexpr int program = -1;
constexpr int nobody = -2;

/// The program behind `FakeElements`: reads its offer anew at each question.
struct Program {
    const AccessibleProgram& bus;
    std::string folder;
    std::vector<Element> elements{};
    Behaviour behaviour = Behaviour::replies;

    void readOffer()
    {
        const auto offer
            = nlohmann::json::parse(contentOf(folder + "/offer"), nullptr, /*exceptions*/ false);
        elements.clear();
        if (!offer.is_object())
            return;
        for (const auto& element : offer["elements"]) {
            const auto& area = element["area"];
            elements.push_back({element["role"], element["roleName"], element["name"],
                {{area[0], area[1]}, {area[2], area[3]}}, element["parent"]});
        }
        behaviour = static_cast<Behaviour>(offer["behaviour"].get<int>());
    }

    int size() const { return static_cast<int>(elements.size()); }

    /// The element of an object named "e<number>", or the program itself.
    int numberOf(const std::string& object) const
    {
        return object.starts_with("e") ? std::atoi(object.c_str() + 1) : program;
    }

    void append(sd_bus_message* reply, int element) const
    {
        if (element == nobody)
            AccessibleProgram::appendNone(reply);
        else
            bus.append(reply, element == program ? "root" : "e" + std::to_string(element));
    }

    /// Where the window begins in which the element lies.
    Point windowOf(int element) const
    {
        while (elements[static_cast<std::size_t>(element)].parent != program)
            element = elements[static_cast<std::size_t>(element)].parent;
        return elements[static_cast<std::size_t>(element)].area.origin;
    }

    /// The area in the coordinates that the question is about.
    Rect areaOf(int element, unsigned coordinates) const
    {
        auto area = elements[static_cast<std::size_t>(element)].area;
        const auto origin = windowOf(element);
        if (behaviour == Behaviour::ofWindow && coordinates != ofWindow)
            return {{-10'000, -10'000}, area.size};
        if (coordinates == ofWindow)
            area.origin = {area.origin.x - origin.x, area.origin.y - origin.y};
        return area;
    }

    int childAt(int parent, Point point, unsigned coordinates) const
    {
        if (behaviour == Behaviour::circular)
            return parent;
        for (int child = 0; child < size(); ++child)
            if (elements[static_cast<std::size_t>(child)].parent == parent
                && areaOf(child, coordinates).containsWithin(0, point))
                return child;
        return nobody;
    }

    std::string text(const std::string& given) const
    {
        return behaviour == Behaviour::huge ? std::string(1'000'000, 'x') : given;
    }

    void appendChildren(sd_bus_message* reply, int parent) const
    {
        sd_bus_message_open_container(reply, 'a', "(so)");
        for (int child = 0; child < size(); ++child)
            if (elements[static_cast<std::size_t>(child)].parent == parent)
                append(reply, child);
        sd_bus_message_close_container(reply);
    }

    void appendProperty(sd_bus_message* question, sd_bus_message* reply, int number) const
    {
        const char* interface = "";
        const char* property = "";
        sd_bus_message_read(question, "ss", &interface, &property);
        const bool isElement = number >= 0 && number < size();
        const auto* element = isElement ? &elements[static_cast<std::size_t>(number)] : nullptr;
        if (std::string(property) == "Parent") {
            sd_bus_message_open_container(reply, 'v', "(so)");
            append(reply, element ? element->parent : nobody);
            sd_bus_message_close_container(reply);
        } else {
            sd_bus_message_append(reply, "v", "s", text(element ? element->name : "").c_str());
        }
    }

    int reply(sd_bus_message* question, const std::string& object)
    {
        const std::string member = sd_bus_message_get_member(question);
        readOffer();
        const int number = numberOf(object);
        if (behaviour == Behaviour::silent)
            return 1;
        if (behaviour == Behaviour::garbage && object != "root")
            return sd_bus_reply_method_return(question, "d", 0.5);
        return AccessibleProgram::reply(
            question, [&](sd_bus_message* reply) { return fill(question, reply, member, number); });
    }

    /// Whether the question is one that it replies to.
    bool fill(sd_bus_message* question, sd_bus_message* reply, const std::string& member,
        int number) const
    {
        const bool isElement = number >= 0 && number < size();
        if (member == "GetChildren") {
            appendChildren(reply, number);
        } else if (member == "Get") {
            appendProperty(question, reply, number);
        } else if (member == "GetRole") {
            constexpr unsigned application = 75;
            sd_bus_message_append(reply, "u",
                isElement ? elements[static_cast<std::size_t>(number)].role : application);
        } else if (member == "GetRoleName") {
            sd_bus_message_append(reply, "s",
                text(
                    isElement ? elements[static_cast<std::size_t>(number)].roleName : "application")
                    .c_str());
        } else if (member == "GetExtents" && isElement) {
            unsigned coordinates = 0;
            sd_bus_message_read(question, "u", &coordinates);
            const auto area = areaOf(number, coordinates);
            sd_bus_message_append(reply, "(iiii)", static_cast<int>(area.origin.x),
                static_cast<int>(area.origin.y), static_cast<int>(area.size.width),
                static_cast<int>(area.size.height));
        } else if (member == "GetAccessibleAtPoint" && isElement) {
            int x = 0;
            int y = 0;
            unsigned coordinates = 0;
            sd_bus_message_read(question, "iiu", &x, &y, &coordinates);
            append(reply,
                childAt(number, {static_cast<double>(x), static_cast<double>(y)}, coordinates));
        } else {
            return false;
        }
        return true;
    }
};

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    return brindlex::runAccessibleProgram<brindlex::Program>(count, arguments);
}
