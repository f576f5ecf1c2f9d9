#include "tour/TourSteps.h"

#include "support/basics/Eventually.h"
#include "support/hardware/KeyboardGroup.h"

#include <chrono>
#include <functional>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

std::string nameOf(const std::string& engine)
{
    if (engine == english)
        return "English";
    if (engine == german)
        return "German";
    return engine == pinyin ? "Pinyin" : "\"" + engine + "\"";
}

class Tour {
public:
    Tour(TourDesktop& desk, TourReport& report) : desk_(desk), report_(report) { }

    bool start()
    {
        report_.tell("Brindlex is started.");
        return report_.check(desk_.startProgram(), "It says in its log: Brindlex launched")
            && report_.check(eventually([&] { return desk_.ibus.current() == pinyin; }),
                "Notes is in front, where a rule says Pinyin: Pinyin is selected.");
    }

    void rulesOfApplications()
    {
        report_.tell("The user goes to Letters, where a rule says German.");
        selects(german, [&] { desk_.windows.activate(desk_.letters->window()); });
        types(*desk_.letters, "Gr[-e", "Grüße");
        report_.picture(desk_.server, "1-letters-are-german");

        report_.tell("The user goes to Notes, where a rule says Pinyin.");
        selects(pinyin, [&] { desk_.windows.activate(desk_.notes->window()); });
        types(*desk_.notes, "nihao ", "你好");
        report_.picture(desk_.server, "2-notes-are-chinese");
    }

    void choiceOfTheUser()
    {
        report_.tell("In Notes the user selects English by hand.");
        desk_.hidesOverlay();
        desk_.ibus.select(english);
        types(*desk_.notes, " means hello", " means hello");
        report_.check(throughout(600ms, [&] { return desk_.ibus.current() == english; }),
            "The choice holds: the source is still English.");
        report_.picture(desk_.server, "3-the-users-choice-holds");

        report_.tell("The user goes to Letters and comes back to Notes.");
        selects(german, [&] { desk_.windows.activate(desk_.letters->window()); });
        types(*desk_.letters, " aus ", " aus ");
        selects(pinyin, [&] { desk_.windows.activate(desk_.notes->window()); });
        types(*desk_.notes, "zaijian ", "再见");
        report_.picture(desk_.server, "4-back-in-notes");
    }

    void rulesOfWebsites()
    {
        report_.tell("The user goes to the browser, where a rule says English.");
        selects(english, [&] { desk_.windows.activate(desk_.browser->window()); });

        report_.tell("The user opens forum.example.org, for which a rule says German.");
        selects(german, [&] { desk_.browser->open("forum.example.org"); });
        desk_.input.type("Sch;nen Tag");
        report_.check(desk_.browser->shows("forum.example.org: Schönen Tag"),
            "What was typed stands in the page: Schönen Tag");
        report_.picture(desk_.server, "5-a-website-is-german");

        report_.tell("The user opens www.example.com, which has no rule of its own.");
        selects(english, [&] { desk_.browser->open("www.example.com"); });
        report_.picture(desk_.server, "6-another-is-english");
    }

    void end()
    {
        report_.tell("The session asks Brindlex to end.");
        report_.check(desk_.program->quit() == ProcessEnd{0, {}}, "It ends by itself.");
        const auto messages = desk_.program->messages();
        report_.check(!messages.empty() && messages.back() == "Brindlex will terminate",
            "The last line of its log: Brindlex will terminate");
    }

private:
    /// Does something after which the program is to select an engine, and watches it do so.
    void selects(const std::string& engine, const std::function<void()>& action)
    {
        desk_.hidesOverlay();
        const auto before = std::chrono::steady_clock::now();
        action();
        const auto arrived = std::chrono::steady_clock::now();
        const bool isSelected = eventually([&] { return desk_.ibus.current() == engine; });
        const auto end = std::chrono::steady_clock::now();
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(
            end - (isSelected ? arrived : before));
        report_.check(isSelected,
            nameOf(engine) + " is selected"
                + (isSelected ? ", " + std::to_string(took.count()) + " ms after the window came."
                              : "; it is " + nameOf(desk_.ibus.current()) + "."));
        report_.check(desk_.showsOverlay(), "The overlay names it in the middle of the screen.");
    }

    void types(const TypingWindow& window, const std::string& keys, const std::string& expected)
    {
        const auto before = window.text();
        desk_.input.type(keys);
        const bool arrived = window.receives(before + expected);
        report_.check(arrived,
            "What was typed arrives: "
                + (arrived ? expected : window.text().substr(before.size())));
    }

    TourDesktop& desk_;
    TourReport& report_;
};

} // namespace

void playTour(TourDesktop& desk, TourReport& report)
{
    Tour tour(desk, report);
    if (!tour.start())
        return;
    tour.rulesOfApplications();
    tour.choiceOfTheUser();
    tour.rulesOfWebsites();
    tour.end();
}

} // namespace brindlex
