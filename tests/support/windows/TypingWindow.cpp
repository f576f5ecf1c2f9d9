#include "support/windows/TypingWindow.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr int mostTerminals = 3;

ChildProcess::Start terminal(const std::string& className, const std::vector<std::string>& options,
    const std::filesystem::path& folder)
{
    ChildProcess::Start start{
        .command = {"xterm", "-class", className, "-title", className, "-u8"},
        .output = folder / "terminal",
    };
    start.command.insert(start.command.end(), options.begin(), options.end());
    // Each key reaches the file at once, not only with the end of a line.
    const auto keep = "stty -icanon min 1; touch '" + (folder / "ready").string()
        + "'; exec cat > '" + (folder / "typed").string() + "'";
    start.command.insert(start.command.end(), {"-e", "sh", "-c", keep});
    return start;
}

} // namespace

TypingWindow::TypingWindow(const DesktopWindows& windows, const std::string& className,
    const std::vector<std::string>& terminalOptions)
    : windows_(windows), className_(className), terminalOptions_(terminalOptions),
      file_(folder_.path() / "typed")
{
    open();
}

void TypingWindow::open()
{
    const auto ready = folder_.path() / "ready";
    const auto isReady = [&] {
        const auto found = windows_.withClass(className_);
        if (!found || !windows_.isOnScreen(*found) || !std::filesystem::exists(ready))
            return false;
        window_ = *found;
        return true;
    };
    // Now and then a terminal waits for ever for Fcitx to reply; another one does not.
    bool isOpen = false;
    for (int attempt = 0; attempt < mostTerminals && !isOpen; ++attempt) {
        terminal_.reset();
        std::filesystem::remove(ready);
        std::filesystem::remove(file_);
        forgotten_ = 0;
        terminal_ = std::make_unique<ChildProcess>(
            terminal(className_, terminalOptions_, folder_.path()));
        isOpen = eventually(isReady);
    }
    if (!isOpen)
        fatalError("The terminal " + className_ + " did not open.\n" + terminal_->output());
    if (!windows_.activate(window_))
        fatalError("The terminal " + className_ + " did not come to the front.");
}

std::string TypingWindow::text() const { return contentOf(file_).substr(forgotten_); }

bool TypingWindow::receives(const std::string& text) const
{
    return eventually([&] { return this->text() == text; });
}

bool TypingWindow::receives(const std::string& text, const PlayedInput& input,
    std::string_view keys, const std::function<bool()>& isReady)
{
    for (int attempt = 0; attempt < mostTerminals; ++attempt) {
        if (attempt > 0) {
            terminal_.reset();
            if (!eventually([&] { return !windows_.withClass(className_); }))
                fatalError("The terminal " + className_ + " did not go away.");
            open();
        }
        forget();
        if (!isReady())
            return false;
        input.type(keys);
        if (eventually([&] { return this->text() == text; }, 5s))
            return true;
    }
    return false;
}

} // namespace brindlex
