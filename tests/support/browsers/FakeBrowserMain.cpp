#include "support/browsers/AccessibleProgram.h"
#include "support/browsers/FakeBrowser.h"

#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <systemd/sd-bus.h>
#include <thread>

namespace brindlex {
namespace {

using Behaviour = FakeBrowser::Behaviour;
using namespace std::chrono_literals;

/// The program behind `FakeBrowser`: reads its offer anew at each question.
struct Program {
    const AccessibleProgram& bus;
    std::string folder;
    std::vector<FakeBrowser::Window> windows{};
    Behaviour behaviour = Behaviour::replies;

    void readOffer()
    {
        const auto offer
            = nlohmann::json::parse(contentOf(folder + "/offer"), nullptr, /*exceptions*/ false);
        windows.clear();
        if (!offer.is_object())
            return;
        for (const auto& window : offer["windows"])
            windows.push_back({window["name"], window["url"], window["isActive"],
                window["attribute"], window["embeds"]});
        behaviour = static_cast<Behaviour>(offer["behaviour"].get<int>());
    }

    /// The window of an object named "w<number>" or "d<number>", its document.
    const FakeBrowser::Window* windowOf(const std::string& object) const
    {
        const auto number = static_cast<std::size_t>(std::atoi(object.substr(1).c_str()));
        return number < windows.size() ? &windows[number] : nullptr;
    }

    void appendChildren(sd_bus_message* reply, const std::string& object) const
    {
        sd_bus_message_open_container(reply, 'a', "(so)");
        if (behaviour == Behaviour::huge)
            for (int index = 0; index < 100'000; ++index)
                bus.append(reply, "x" + std::to_string(index));
        else if (behaviour == Behaviour::circular && object != "root")
            bus.append(reply, object);
        else if (object == "root")
            for (std::size_t index = 0; index < windows.size(); ++index)
                bus.append(reply, "w" + std::to_string(index));
        sd_bus_message_close_container(reply);
    }

    void appendRelation(sd_bus_message* reply, unsigned type, const std::string& target) const
    {
        sd_bus_message_open_container(reply, 'r', "ua(so)");
        sd_bus_message_append(reply, "u", type);
        sd_bus_message_open_container(reply, 'a', "(so)");
        if (behaviour == Behaviour::dangling)
            sd_bus_message_append(reply, "(so)", ":1.987654", "/nowhere");
        else
            bus.append(reply, target);
        sd_bus_message_close_container(reply);
        sd_bus_message_close_container(reply);
    }

    void appendRelations(sd_bus_message* reply, const std::string& object) const
    {
        constexpr unsigned labelledBy = 2;
        constexpr unsigned embeds = 13;
        sd_bus_message_open_container(reply, 'a', "(ua(so))");
        if (behaviour == Behaviour::huge)
            for (int index = 0; index < 100'000; ++index)
                appendRelation(reply, labelledBy, object);
        appendRelation(reply, labelledBy, object);
        const auto* window = windowOf(object);
        if (!window || window->embeds)
            appendRelation(
                reply, embeds, behaviour == Behaviour::circular ? object : "d" + object.substr(1));
        sd_bus_message_close_container(reply);
    }

    /// Replies to the question for what is on the screen and a document of the web, and to no
    /// other.
    static bool asksForShowingDocument(sd_bus_message* question)
    {
        constexpr int showing = 1 << 25;
        constexpr int documentWeb = static_cast<int>(1U << (95 - 64));
        if (!sd_bus_message_has_signature(question, "(aiia{ss}iaiiasib)uib"))
            return false;
        int states[2]{};
        int roles[4]{};
        int ignored = 0;
        sd_bus_message_enter_container(question, 'r', "aiia{ss}iaiiasib");
        sd_bus_message_enter_container(question, 'a', "i");
        for (auto& word : states)
            sd_bus_message_read(question, "i", &word);
        sd_bus_message_exit_container(question);
        sd_bus_message_read(question, "i", &ignored);
        sd_bus_message_skip(question, "a{ss}i");
        sd_bus_message_enter_container(question, 'a', "i");
        for (auto& word : roles)
            sd_bus_message_read(question, "i", &word);
        sd_bus_message_exit_container(question);
        sd_bus_message_skip(question, "iasib");
        sd_bus_message_exit_container(question);
        int goesBelowChildren = 0;
        sd_bus_message_skip(question, "ui");
        sd_bus_message_read(question, "b", &goesBelowChildren);
        return states[0] == showing && states[1] == 0 && roles[2] == documentWeb && roles[0] == 0
            && roles[1] == 0 && roles[3] == 0 && goesBelowChildren != 0;
    }

    int reply(sd_bus_message* question, const std::string& object)
    {
        const std::string member = sd_bus_message_get_member(question);
        std::ofstream(folder + "/questions", std::ios::app) << member << '\n';
        readOffer();
        if (behaviour == Behaviour::busy)
            std::this_thread::sleep_for(800ms);
        if (behaviour == Behaviour::silent)
            return 1;
        if (behaviour == Behaviour::garbage)
            return sd_bus_reply_method_return(question, "i", 42);
        return AccessibleProgram::reply(
            question, [&](sd_bus_message* reply) { return fill(question, reply, member, object); });
    }

    /// Whether the question is one that it replies to.
    bool fill(sd_bus_message* question, sd_bus_message* reply, const std::string& member,
        const std::string& object) const
    {
        const auto* window = windowOf(object);
        if (member == "GetChildren") {
            appendChildren(reply, object);
        } else if (member == "Get") {
            sd_bus_message_append(reply, "v", "s", window ? window->name.c_str() : "Fake Browser");
        } else if (member == "GetState") {
            sd_bus_message_append(reply, "au", 2, window && window->isActive ? 2U : 0U, 0U);
        } else if (member == "GetRelationSet") {
            if (behaviour == Behaviour::dies)
                std::_Exit(1);
            appendRelations(reply, object);
        } else if (member == "GetMatches" && asksForShowingDocument(question)) {
            sd_bus_message_open_container(reply, 'a', "(so)");
            if (window && !window->url.empty())
                bus.append(reply, "d" + object.substr(1));
            sd_bus_message_close_container(reply);
        } else if (member == "GetAttributeValue" && object.starts_with("d") && window) {
            const char* attribute = "";
            sd_bus_message_read(question, "s", &attribute);
            const auto url = behaviour == Behaviour::huge ? std::string(1'000'000, 'x')
                : attribute == window->attribute          ? window->url
                                                          : std::string();
            sd_bus_message_append(reply, "s", url.c_str());
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
