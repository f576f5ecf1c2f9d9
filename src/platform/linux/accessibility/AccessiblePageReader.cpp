#include "platform/linux/accessibility/AccessiblePageReader.h"

#include <algorithm>
#include <array>
#include <unistd.h>

namespace brindlex {
namespace {

constexpr std::size_t mostKnownFrames = 16;
constexpr std::size_t mostDocuments = 4;

/// What browsers call the address of a document: Chromium the first, Firefox the second.
const std::array addressAttributes{QStringLiteral("URI"), QStringLiteral("DocURL")};

PageProblem pageProblem(AccessibilityProblem problem)
{
    return problem == AccessibilityProblem::noReply ? PageProblem::busy : PageProblem::unknown;
}

} // namespace

Result<std::string, PageProblem> AccessiblePageReader::read(const ActiveWindow& window)
{
    // A question to this very process would wait for the main thread.
    if (window.processIdentifier == ProcessIdentity{getpid()} || !bus_.begin())
        return fail(PageProblem::unknown);

    if (const auto* found = known(window)) {
        const auto page = pageOf(found->frame);
        if (page && page->empty())
            return fail(PageProblem::unknown);
        if (page)
            return *page;
        if (page.error() == AccessibilityProblem::noReply)
            return fail(PageProblem::busy);
        forget(window);
    }

    const auto found = find(window);
    if (!found)
        return fail(pageProblem(found.error()));
    const auto page = pageOf(found->frame);
    if (!page)
        return fail(pageProblem(page.error()));
    if (found->isCertain)
        remember(window, found->frame);
    if (page->empty())
        return fail(PageProblem::unknown);
    return *page;
}

const AccessiblePageReader::KnownFrame* AccessiblePageReader::known(
    const ActiveWindow& window) const
{
    const auto found = std::ranges::find_if(knownFrames_, [&](const KnownFrame& frame) {
        return frame.window == window.window && frame.processIdentifier == window.processIdentifier;
    });
    return found == knownFrames_.end() ? nullptr : &*found;
}

void AccessiblePageReader::remember(const ActiveWindow& window, const AccessibleObject& frame)
{
    forget(window);
    if (knownFrames_.size() == mostKnownFrames)
        knownFrames_.erase(knownFrames_.begin());
    knownFrames_.push_back({window.window, window.processIdentifier, frame});
}

void AccessiblePageReader::forget(const ActiveWindow& window)
{
    std::erase_if(
        knownFrames_, [&](const KnownFrame& frame) { return frame.window == window.window; });
}

AccessibilityResult<AccessiblePageReader::FoundFrame> AccessiblePageReader::find(
    const ActiveWindow& window)
{
    const auto all = bus_.applications();
    if (!all)
        return fail(all.error());
    std::vector<AccessibleObject> own;
    std::vector<AccessibleObject> others;
    for (const auto& application : *all) {
        const auto process = bus_.processIdentifier(application.service);
        if (process && ProcessIdentity{*process} == window.processIdentifier)
            own.push_back(application);
        else if (process && *process != getpid())
            others.push_back(application);
    }
    return own.empty() ? findIn(others, window.title, TitleMatch::same)
                       : findIn(own, window.title, TitleMatch::similar);
}

AccessibilityResult<AccessiblePageReader::FoundFrame> AccessiblePageReader::findIn(
    const std::vector<AccessibleObject>& applications, const std::string& title,
    TitleMatch leastMatch)
{
    auto bestMatch = leastMatch;
    std::vector<AccessibleObject> best;
    auto problem = AccessibilityProblem::refused;
    const auto note = [&](const auto& result) {
        if (!result && result.error() == AccessibilityProblem::noReply)
            problem = AccessibilityProblem::noReply;
        return static_cast<bool>(result);
    };
    for (const auto& application : applications) {
        const auto frames = bus_.children(application);
        if (!note(frames))
            continue;
        for (const auto& frame : *frames) {
            const auto name = bus_.name(frame);
            if (!note(name))
                continue;
            const auto match = titleMatch(title, name->toStdString());
            if (match > bestMatch)
                best.clear();
            bestMatch = std::max(bestMatch, match);
            if (match == bestMatch)
                best.push_back(frame);
        }
    }
    if (best.size() == 1)
        return FoundFrame{best.front(), true};
    const auto active = activeOne(best);
    if (note(active))
        return FoundFrame{*active, false};
    return fail(problem);
}

AccessibilityResult<AccessibleObject> AccessiblePageReader::activeOne(
    const std::vector<AccessibleObject>& frames)
{
    for (const auto& frame : frames) {
        const auto isActive = bus_.isActive(frame);
        if (!isActive)
            return fail(isActive.error());
        if (*isActive)
            return frame;
    }
    return fail(AccessibilityProblem::refused);
}

AccessibilityResult<std::vector<AccessibleObject>> AccessiblePageReader::documentsOf(
    const AccessibleObject& frame)
{
    auto embedded = bus_.embedded(frame);
    const bool isSilent = embedded && std::ranges::all_of(*embedded, &AccessibleObject::isNull);
    if (!isSilent)
        return embedded;
    // Firefox embeds nothing from going back on until the next load.
    auto showing = bus_.showingDocument(frame);
    if (!showing && showing.error() == AccessibilityProblem::refused)
        return embedded;
    return showing;
}

AccessibilityResult<std::string> AccessiblePageReader::pageOf(const AccessibleObject& frame)
{
    const auto documents = documentsOf(frame);
    if (!documents)
        return fail(documents.error());
    std::size_t count = 0;
    for (const auto& document : *documents) {
        if (document.isNull() || ++count > mostDocuments)
            continue;
        for (const auto& attribute : addressAttributes) {
            const auto address = bus_.documentAttribute(document, attribute);
            if (!address && address.error() == AccessibilityProblem::noReply)
                return fail(address.error());
            if (address && !address->isEmpty() && address->size() <= longestAddress)
                return address->toStdString();
        }
    }
    return std::string();
}

} // namespace brindlex
