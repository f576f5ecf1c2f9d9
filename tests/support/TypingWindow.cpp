#include "support/TypingWindow.h"

#include "foundation/FatalError.h"
#include "support/Eventually.h"

namespace brindlex {
namespace {

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
    : file_(folder_.path() / "typed"),
      terminal_(terminal(className, terminalOptions, folder_.path()))
{
    const auto isReady = [&] {
        const auto found = windows.withClass(className);
        if (!found || !windows.isOnScreen(*found)
            || !std::filesystem::exists(folder_.path() / "ready"))
            return false;
        window_ = *found;
        return true;
    };
    if (!eventually(isReady))
        fatalError("The terminal " + className + " did not open; its window is "
            + (windows.withClass(className) ? "there" : "not there") + ".\n" + terminal_.output());
    if (!windows.activate(window_))
        fatalError("The terminal " + className + " did not come to the front.");
}

std::string TypingWindow::text() const { return contentOf(file_).substr(forgotten_); }

bool TypingWindow::receives(const std::string& text) const
{
    return eventually([&] { return this->text() == text; });
}

} // namespace brindlex
