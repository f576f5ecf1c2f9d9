#pragma once

#include "platform/Identities.h"
#include "support/basics/TemporaryFolder.h"
#include "support/processes/ChildProcess.h"

#include <string>
#include <vector>

namespace brindlex {

/// A program on the accessibility bus of the desktop that offers windows as a browser does, and
/// behaves badly when it is told to.
class FakeBrowser {
public:
    struct Window {
        std::string name{};
        std::string url{};
        bool isActive = false;
        /// What the browser calls the address of a document.
        std::string attribute = "URI";
        /// Whether it says what its page is; otherwise the page is only to be found in its tree.
        bool embeds = true;
    };

    /// How it replies to every question about its windows and documents.
    enum class Behaviour {
        replies,
        /// Each reply comes after 0.8 s.
        busy,
        silent,
        /// Numbers where lists and texts belong.
        garbage,
        /// A hundred thousand children and relations, and an address of a million letters.
        huge,
        /// Each window embeds itself and has itself as its child.
        circular,
        /// It embeds a document of a program that does not exist.
        dangling,
        /// It ends at the question for what a window embeds.
        dies,
    };

    /// Starts it and waits until it is on the bus.
    FakeBrowser();

    int process() const { return program_.id(); }
    ProcessIdentity identity() const { return ProcessIdentity{process()}; }
    bool isRunning() const { return program_.isRunning(); }

    /// What it offers from the next question on.
    void offer(const std::vector<Window>& windows, Behaviour behaviour = Behaviour::replies) const;

    /// The operations that others have called of its windows and documents, in order.
    std::vector<std::string> questions() const;

private:
    TemporaryFolder folder_;
    ChildProcess program_;
};

} // namespace brindlex
