#include "support/daemons/IBusDaemon.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"
#include "support/bus/BusConnection.h"
#include "support/hardware/PlayedInput.h"
#include "support/windows/XInputMethodServer.h"

#include <csignal>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto ibusName = "org.freedesktop.IBus";
constexpr auto ibusPath = "/org/freedesktop/IBus";

void set(const VirtualDesktop& desktop, const std::string& key, const std::string& value)
{
    const ChildProcess::Start write{
        .command = {"dconf", "write", key, value},
        .output = desktop.outputFolder() / "dconf",
    };
    if (run(write, 60s) != ProcessEnd{0, {}})
        fatalError("A setting could not be written.\n" + contentOf(write.output));
}

} // namespace

IBusDaemon::IBusDaemon(VirtualDesktop& desktop, const std::vector<std::string>& engines)
    : IBusDaemon(desktop)
{
    std::string list;
    for (const auto& engine : engines)
        list += (list.empty() ? "'" : ", '") + engine + "'";
    // The daemon reads its settings itself, whatever place programs are told to keep theirs.
    set(desktop, "/desktop/ibus/general/preload-engines", "[" + list + "]");
    start();
}

std::unique_ptr<IBusDaemon> IBusDaemon::inGnome(VirtualDesktop& desktop, const std::string& sources)
{
    enableInGnome(desktop, sources);
    auto daemon = std::unique_ptr<IBusDaemon>(new IBusDaemon(desktop));
    daemon->start();
    return daemon;
}

void IBusDaemon::enableInGnome(const VirtualDesktop& desktop, const std::string& sources)
{
    set(desktop, "/org/gnome/desktop/input-sources/sources", sources);
}

IBusDaemon::IBusDaemon(VirtualDesktop& desktop) : desktop_(desktop)
{
    for (const auto variable : {"GTK_IM_MODULE", "QT_IM_MODULE"})
        desktop.setVariable(variable, "ibus");
    desktop.setVariable("XMODIFIERS", "@im=ibus");
}

void IBusDaemon::start()
{
    daemon_ = std::make_unique<ChildProcess>(ChildProcess::Start{
        .command = {"ibus-daemon", "--replace", "--xim", "--panel", "disable"},
        .output = desktop_.outputFolder() / "ibus-daemon",
    });
    const auto replies = [this] {
        const auto bus = address();
        return bus && BusConnection(*bus).hasOwner("org.freedesktop.IBus.Config")
            && hasXInputMethodServer("ibus");
    };
    if (!eventually(replies, 60s))
        fatalError("IBus did not start.\n" + daemon_->output());
}

void IBusDaemon::stop()
{
    daemon_->signal(SIGKILL);
    daemon_.reset();
    // Its helper for X programs ends after it, and new programs would still turn to that.
    if (!eventually([] { return !hasXInputMethodServer("ibus"); }, 60s))
        fatalError("The helper of IBus did not end.");
}

std::optional<std::string> IBusDaemon::address() const
{
    // The name of the file in this folder is made of machine and display, both ours alone.
    std::error_code ignored;
    for (const auto& file :
        std::filesystem::directory_iterator(desktop_.configFolder() / "ibus/bus", ignored)) {
        const auto content = contentOf(file.path());
        const std::string key = "IBUS_ADDRESS=";
        if (const auto start = content.find("\n" + key); start != std::string::npos) {
            const auto from = start + 1 + key.size();
            return content.substr(from, content.find('\n', from) - from);
        }
    }
    return std::nullopt;
}

std::string IBusDaemon::current() const
{
    const auto bus = address();
    if (!bus)
        return {};
    // A variant in a variant: (type, attachments, name, ...).
    auto reply = BusConnection(*bus).property(ibusName, ibusPath, ibusName, "GlobalEngine");
    reply.enter();
    reply.enter();
    reply.skip();
    reply.skip();
    return reply.text();
}

bool IBusDaemon::select(const std::string& engine)
{
    const XConnection server;
    PlayedInput(server).showHand();
    return change(engine);
}

bool IBusDaemon::change(const std::string& engine)
{
    // While the daemon has much to do, an engine may not start in its time.
    return eventually([&] {
        const auto bus = address();
        return bus
            && BusConnection(*bus).call(ibusName, ibusPath, ibusName, "SetGlobalEngine", {engine});
    });
}

} // namespace brindlex
