#include "platform/linux/pasteboard/X11PasteboardRead.h"

#include "platform/linux/pasteboard/PasteboardTargets.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace brindlex {
namespace {

/// Applications offer some dozens.
constexpr std::size_t mostTargets = 256;

std::string inWords(std::chrono::milliseconds time) { return std::to_string(time.count()) + " ms"; }

std::string inWords(SelectionProblem problem, const PasteboardLimits& limits)
{
    switch (problem) {
    case SelectionProblem::silent:
        return "nothing has come for " + inWords(limits.silence);
    case SelectionProblem::tooLarge:
        return "it is larger than " + std::to_string(limits.bytes >> 20) + " MiB";
    case SelectionProblem::refused:
        break;
    }
    return "the application does not send it";
}

std::vector<xcb_atom_t> atomsOf(const std::string& bytes)
{
    std::vector<xcb_atom_t> atoms(std::min(bytes.size() / sizeof(xcb_atom_t), mostTargets));
    if (!atoms.empty())
        std::memcpy(atoms.data(), bytes.data(), atoms.size() * sizeof(xcb_atom_t));
    return atoms;
}

} // namespace

X11PasteboardRead::X11PasteboardRead(X11Connection& connection, X11RequestorWindows& windows,
    ImageConverting& images, xcb_timestamp_t time, const PasteboardLimits& limits, Handler handler)
    : connection_(connection), windows_(windows), images_(images), time_(time), limits_(limits),
      handler_(std::move(handler))
{
    deadline_.setSingleShot(true);
    deadline_.callOnTimeout([this] {
        if (problem_.empty())
            problem_ = "it has not come to its end in " + inWords(limits_.owner);
        finish();
    });
    deadline_.start(limits_.owner);
    request(
        "TARGETS", [this](X11SelectionRead::Outcome outcome) { takeTargets(std::move(outcome)); });
}

void X11PasteboardRead::request(const std::string& target, X11SelectionRead::Handler handler)
{
    read_ = std::make_unique<X11SelectionRead>(connection_, windows_,
        X11SelectionRead::Request{.selection = connection_.atom("CLIPBOARD"),
            .target = connection_.atom(target),
            .time = time_},
        limits_, std::move(handler));
}

void X11PasteboardRead::takeTargets(X11SelectionRead::Outcome outcome)
{
    match(
        outcome,
        [this](const SelectionContent& content) {
            fetch_.emplace(
                content.format == 32 ? namesOf(content.bytes) : std::vector<std::string>{},
                images_);
        },
        [this](SelectionProblem problem) {
            if (problem != SelectionProblem::refused)
                note("TARGETS", problem);
            else
                fetch_.emplace(std::vector{std::string(selectionTarget::utf8Text),
                                   std::string(selectionTarget::latin1Text)},
                    images_);
        });
    requestNext();
}

/// The names that the server has; other numbers are left out.
std::vector<std::string> X11PasteboardRead::namesOf(const std::string& atoms)
{
    std::vector<xcb_get_atom_name_cookie_t> requests;
    for (const auto atom : atomsOf(atoms))
        requests.push_back(xcb_get_atom_name(connection_.get(), atom));
    std::vector<std::string> names;
    for (const auto request : requests) {
        const X11Message<xcb_get_atom_name_reply_t> reply(
            xcb_get_atom_name_reply(connection_.get(), request, nullptr));
        if (reply)
            names.emplace_back(xcb_get_atom_name_name(reply.get()),
                static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get())));
    }
    return names;
}

void X11PasteboardRead::requestNext()
{
    const auto target = fetch_ && !isSilent_ ? fetch_->target() : std::nullopt;
    if (!target)
        return finish();
    request(*target, [this, name = *target](X11SelectionRead::Outcome outcome) {
        takeContent(std::string(name), std::move(outcome));
    });
}

void X11PasteboardRead::takeContent(const std::string& target, X11SelectionRead::Outcome outcome)
{
    match(
        std::move(outcome),
        [this](SelectionContent&& content) {
            fetch_->receive(
                content.format == 8 ? std::optional(std::move(content.bytes)) : std::nullopt);
        },
        [this, &target](const SelectionProblem& problem) {
            note(target, problem);
            fetch_->receive({});
            isSilent_ = problem == SelectionProblem::silent;
        });
    requestNext();
}

void X11PasteboardRead::note(const std::string& target, SelectionProblem problem)
{
    if (problem_.empty())
        problem_ = target + ": " + inWords(problem, limits_);
}

/// The last that is done here.
void X11PasteboardRead::finish()
{
    deadline_.stop();
    read_.reset();
    Outcome outcome{.problem = std::move(problem_)};
    if (fetch_)
        outcome.state = std::move(fetch_->state());
    const auto handler = std::exchange(handler_, nullptr);
    handler(std::move(outcome));
}

} // namespace brindlex
