#pragma once

#include "support/basics/ScopedEnvironment.h"
#include "support/basics/StateReport.h"
#include "support/basics/TemporaryFolder.h"
#include "support/processes/ChildProcess.h"
#include "support/screen/WindowManager.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// A desktop of its own for one test process: an X server without a screen, a session bus, a window
/// manager and a home folder with all the folders that a user has.
///
/// While it exists the environment of the process points to it; afterwards the environment is as it
/// was, every process that was started in it is gone, and so is the home folder. A desktop that
/// cannot be made ends the process with the reason. One at a time, on the main thread.
class VirtualDesktop {
public:
    /// What the screen is made of. `withoutHardware` needs no rights; `withPlayedHardware` has mice
    /// and a keyboard that `PlayedHardware` plays, and runs for the superuser only.
    enum class Server { withoutHardware, withPlayedHardware };

    struct Options {
        int width = 1280;
        int height = 800;
        /// The XKB layouts, one per group, at most four.
        std::string keyboardLayouts = "us,de";
        WindowManager windowManager = WindowManager::quiet;
        bool sessionBus = true;
        /// Whether programs started here offer themselves to assistive technology.
        bool accessibility = false;
        Server server = Server::withoutHardware;
        /// What each mouse of the hardware has, counted as X counts them, the wheel included.
        int mouseButtons = 12;
        /// An extension that the X server does not offer, such as "XTEST"; empty for none.
        std::string disabledExtension{};
    };

    VirtualDesktop();
    explicit VirtualDesktop(const Options& options);
    ~VirtualDesktop();
    VirtualDesktop(const VirtualDesktop&) = delete;
    VirtualDesktop& operator=(const VirtualDesktop&) = delete;

    const std::filesystem::path& home() const { return home_; }
    std::filesystem::path configFolder() const { return home_ / ".config"; }
    std::filesystem::path dataFolder() const { return home_ / ".local/share"; }
    std::filesystem::path stateFolder() const { return home_ / ".local/state"; }
    std::filesystem::path cacheFolder() const { return home_ / ".cache"; }
    std::filesystem::path runtimeFolder() const { return folder_.path() / "run"; }
    /// Where the processes of the desktop leave what they print.
    std::filesystem::path outputFolder() const { return folder_.path() / "output"; }
    /// The socket at which a device of the hardware takes what is played, by its name.
    std::filesystem::path hardwareSocket(const std::string& device) const
    {
        return runtimeFolder() / (device + ".sock");
    }
    /// The server's name, such as `:7`.
    const std::string& display() const { return display_; }

    /// The process of the window manager; nothing where there is none.
    std::optional<pid_t> windowManager() const;

    /// Sets a variable for this process and all that it starts from now on.
    void setVariable(const std::string& name, const std::optional<std::string>& value);

    /// Replaces the keyboard layouts, one per group.
    void setKeyboardLayouts(const std::string& layouts);

    /// Ends the X server, as a crash of it would.
    void endDisplayServer();
    /// Ends the session bus, with all that lives by it.
    void endSessionBus();

    /// Everything the desktop's own processes have printed, for the words of a failure.
    std::string output() const;

private:
    void makeFolders();
    void startDisplayServer(const Options& options);
    void startSessionBus();
    void startWindowManager(WindowManager manager);
    void allowAccessibility();
    void endStragglers();

    TemporaryFolder folder_;
    std::filesystem::path home_;
    std::string display_;
    ScopedEnvironment environment_;
    std::unique_ptr<ChildProcess> displayServer_;
    std::unique_ptr<ChildProcess> sessionBus_;
    std::unique_ptr<ChildProcess> windowManager_;
    std::unique_ptr<StateReport> screenReport_;
};

} // namespace brindlex
