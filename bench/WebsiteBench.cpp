// From the title of a browser's window naming the next page to the input source of its website
// being selected, in Chromium and Firefox: pages that load, back and forward in the history, and
// tabs. `bench_website 50` plays 50 changes of each kind.
//
// What is asked of the browser costs its time, too: a page that loads replies when it can.

#include "Distribution.h"
#include "GroupWitness.h"
#include "support/basics/Eventually.h"
#include "support/browsers/LocalWebServer.h"
#include "support/browsers/WebBrowser.h"
#include "support/hardware/KeyboardGroup.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/PlayedInput.h"
#include "support/processes/ProgramFiles.h"
#include "support/processes/RunningProgram.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/screen/XConnection.h"
#include "support/switching/SwitchingRules.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

struct Keys {
    std::uint8_t modifier;
    std::uint8_t key;
};

class Measurement {
public:
    Measurement(const std::string& browser, int rounds) : name_(browser), rounds_(rounds)
    {
        SwitchingRules rules;
        rules.websites = {{"example.com", "xkb:us::eng"}, {"example.org", "xkb:de::deu"}};
        files_.writePreferences(rules.preferences());
        program_.launches();
        browser_.emplace(desktop_, windows_, web_, browser, "one.example.com");
    }

    void run()
    {
        const Keys load{keycode::shift, keycode::enter};
        const Keys back{keycode::alt, keycode::left};
        const Keys forward{keycode::alt, keycode::right};
        const Keys nextTab{keycode::control, keycode::tab};
        measure("load", load, load);
        measure("back and forward", back, forward);
        browser_->open(isAtOrg() ? "two.example.com" : "two.example.org");
        measure("tab", nextTab, nextTab);
    }

private:
    bool isAtOrg() const
    {
        return windows_.titleOf(browser_->window()).find("example.org") != std::string::npos;
    }

    void measure(const char* kind, Keys odd, Keys even)
    {
        eventually([&] { return keyboardGroup(server_) == (isAtOrg() ? 1 : 0); });
        GroupWitness witness(browser_->window(), "_NET_WM_NAME");
        std::vector<double> milliseconds;
        int missed = 0;
        for (int round = 0; round < rounds_; ++round) {
            // Longer than the program keeps what it has read.
            std::this_thread::sleep_for(400ms);
            const bool wasAtOrg = isAtOrg();
            play(round % 2 == 0 ? odd : even);
            const double latency
                = witness.nextSwitch([&] { return isAtOrg() != wasAtOrg; }, 3000ms);
            if (latency < 0)
                ++missed;
            else
                milliseconds.push_back(latency);
        }
        const auto all = distributionOf(milliseconds);
        std::printf("%-10s %-18s median %6.1f ms  p99 %6.1f ms  max %6.1f ms  n %zu  missed %d\n",
            name_.c_str(), kind, all.median, all.worstOfHundred, all.most, all.count, missed);
        std::fflush(stdout);
    }

    void play(Keys keys) const
    {
        hand_.pressKey(keys.modifier);
        hand_.pressKey(keys.key);
        hand_.releaseKey(keys.key);
        hand_.releaseKey(keys.modifier);
    }

    std::string name_;
    int rounds_;
    VirtualDesktop desktop_{{.keyboardLayouts = "us,de", .accessibility = true}};
    XConnection server_;
    DesktopWindows windows_{server_};
    PlayedInput hand_{server_};
    ProgramFiles files_{desktop_};
    LocalWebServer web_;
    RunningProgram program_{desktop_};
    std::optional<WebBrowser> browser_;
};

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    for (const auto* browser : {"chromium", "firefox"})
        brindlex::Measurement(browser, count > 1 ? std::atoi(arguments[1]) : 50).run();
}
