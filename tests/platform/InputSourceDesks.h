#pragma once

#include "platform/linux/inputsources/DesktopInputSources.h"
#include "platform/linux/system/SessionBus.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedInputSources.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "support/daemons/FcitxDaemon.h"
#include "support/daemons/IBusDaemon.h"
#include "support/hardware/KeyboardGroup.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/TypingWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace brindlex {

/// A simulated computer with three sources.
class SimulatedDesk {
public:
    static constexpr auto name = "Simulated";
    const std::vector<std::string> ids{"xkb:us::eng", "xkb:de::deu", "pinyin"};

    SimulatedDesk()
    {
        for (const auto& id : ids)
            sources_.install(SimulatedInputSources::keyboard(id, "Name of " + id));
    }

    KeyboardInputSources& sources() { return sources_; }
    void userSelects(const std::string& id) { sources_.userSelects(id); }
    void systemUndoesWith(const std::string& id) { sources_.undoWith(id); }
    void run() { mainThread_.runUntilIdle(); }

private:
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
    SimulatedInputSources sources_{mainThread_};
};

/// A desktop without an input-method daemon.
class XkbDesk {
public:
    static constexpr auto name = "Xkb";
    const std::vector<std::string> ids{"xkb:us::eng", "xkb:de::deu", "xkb:ru::rus"};

    KeyboardInputSources& sources() { return sources_; }
    void userSelects(const std::string& id) { chooseKeyboardGroup(server_, groupOf(id)); }
    void systemUndoesWith(const std::string& id) { selectKeyboardGroup(server_, groupOf(id)); }
    void run() { }

private:
    int groupOf(const std::string& id) const
    {
        return static_cast<int>(std::find(ids.begin(), ids.end(), id) - ids.begin());
    }

    VirtualDesktop desktop_{{.keyboardLayouts = "us,de,ru"}};
    XConnection server_;
    SessionBus bus_;
    X11Connection connection_;
    DesktopInputSources sources_{connection_, bus_.connection()};
};

/// A desktop with IBus.
class IBusDesk {
public:
    static constexpr auto name = "IBus";
    const std::vector<std::string> ids{"xkb:us::eng", "xkb:de::deu", "ibus:libpinyin"};

    IBusDesk()
    {
        EXPECT_TRUE(daemon_.select("xkb:us::eng"));
        // A machine with much to do may let it take longer than anybody waits at the start.
        EXPECT_TRUE(loopUntil([this] { return sources_.backendName() == "IBus"; }));
    }

    KeyboardInputSources& sources() { return sources_; }
    void userSelects(const std::string& id) { EXPECT_TRUE(daemon_.select(engineOf(id))); }
    void systemUndoesWith(const std::string& id) { EXPECT_TRUE(daemon_.change(engineOf(id))); }
    void run() { }

private:
    static std::string engineOf(const std::string& id)
    {
        return id == "ibus:libpinyin" ? "libpinyin" : id;
    }

    VirtualDesktop desktop_;
    IBusDaemon daemon_{desktop_, {"xkb:us::eng", "xkb:de::deu", "libpinyin"}};
    SessionBus bus_;
    X11Connection connection_;
    DesktopInputSources sources_{connection_, bus_.connection()};
};

/// A desktop with Fcitx 5 and a window that types through it.
class FcitxDesk {
public:
    static constexpr auto name = "Fcitx5";
    const std::vector<std::string> ids{"xkb:us::eng", "xkb:de::deu", "fcitx5:pinyin"};

    FcitxDesk()
    {
        EXPECT_TRUE(loopUntil([this] { return sources_.backendName() == "Fcitx 5"; }));
        // A selection goes to the window that has the keyboard, and is lost where none has it yet.
        EXPECT_TRUE(loopUntil([this] { return !daemon_.current().empty(); }));
    }

    KeyboardInputSources& sources() { return sources_; }
    void userSelects(const std::string& id) { EXPECT_TRUE(daemon_.select(methodOf(id))); }
    void systemUndoesWith(const std::string& id) { EXPECT_TRUE(daemon_.change(methodOf(id))); }
    void run() { }

private:
    std::string methodOf(const std::string& id) const
    {
        return id == "fcitx5:pinyin" ? "pinyin" : id == ids[1] ? "keyboard-de" : "keyboard-us";
    }

    VirtualDesktop desktop_;
    FcitxDaemon daemon_{desktop_, {"keyboard-us", "keyboard-de", "pinyin"}};
    XConnection server_;
    DesktopWindows windows_{server_};
    TypingWindow window_{windows_, "Typing"};
    SessionBus bus_;
    X11Connection connection_;
    DesktopInputSources sources_{connection_, bus_.connection()};
};

} // namespace brindlex
