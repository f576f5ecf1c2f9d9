#include "platform/linux/accessibility/AccessibleElementTree.h"

#include "platform/linux/accessibility/AccessibleElementReader.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <utility>

namespace brindlex {
namespace {

using Reader = AccessibleElementReader;
using Deadline = Reader::Clock::time_point;

Deadline after(Seconds time)
{
    return Reader::Clock::now()
        + std::chrono::duration_cast<Reader::Clock::duration>(std::chrono::duration<double>(time));
}

} // namespace

/// Asks on the queue and waits for the replies.
class AccessibleElementTree::Questions {
public:
    explicit Questions(BackgroundQueue& queue) : queue_(queue), reader_(std::make_shared<Reader>())
    {
    }

    /// What `question` returns, or nothing when that takes too long.
    template <typename Question>
    auto ask(Deadline deadline, Question question)
    {
        using Reply = decltype(question(*reader_, deadline));
        auto promise = std::make_shared<std::promise<Reply>>();
        auto reply = promise->get_future();
        queue_.post([promise, reader = reader_, question = std::move(question), deadline] {
            promise->set_value(question(*reader, deadline));
        });
        return reply.wait_until(deadline) == std::future_status::ready ? reply.get() : Reply();
    }

private:
    BackgroundQueue& queue_;
    /// Shared with the work on the queue; touched there only.
    std::shared_ptr<Reader> reader_;
};

class AccessibleElementTree::Element : public AccessibilityElement {
public:
    Element(std::shared_ptr<Questions> questions, Reader::Element element, Deadline last)
        : questions_(std::move(questions)), element_(std::move(element)), last_(last)
    {
    }

    void setMessagingTimeout(Seconds timeout) override { timeout_ = timeout; }

    std::optional<std::string> role() override { return ask(&Reader::role); }
    std::optional<std::string> subrole() override { return std::nullopt; }
    std::optional<std::string> roleDescription() override { return ask(&Reader::roleName); }

    std::shared_ptr<AccessibilityElement> parent() override
    {
        const auto parent = ask(&Reader::parent);
        return parent ? std::make_shared<Element>(questions_, *parent, last_) : nullptr;
    }

    std::shared_ptr<AccessibilityElement> window() override
    {
        return std::make_shared<Element>(questions_,
            Reader::Element{element_.frame, element_.frame, element_.windowOrigin, false}, last_);
    }

    std::optional<Point> position() override
    {
        const auto frame = ask(&Reader::frame);
        return frame ? std::optional(frame->origin) : std::nullopt;
    }

    std::optional<Size> size() override
    {
        const auto frame = ask(&Reader::frame);
        return frame ? std::optional(frame->size) : std::nullopt;
    }

private:
    template <typename Reply>
    Reply ask(Reply (Reader::*question)(const Reader::Element&, Deadline))
    {
        return questions_->ask(std::min(after(timeout_), last_),
            [question, element = element_](Reader& reader, Deadline deadline) {
                return (reader.*question)(element, deadline);
            });
    }

    std::shared_ptr<Questions> questions_;
    Reader::Element element_;
    Deadline last_;
    Seconds timeout_ = usualTimePerPoint;
};

AccessibleElementTree::AccessibleElementTree(
    X11Connection& connection, BackgroundQueue& queue, Seconds timePerPoint)
    : connection_(connection), queue_(queue), timePerPoint_(timePerPoint),
      questions_(std::make_shared<Questions>(queue))
{
}

AccessibleElementTree::~AccessibleElementTree() { queue_.drain(); }

std::shared_ptr<AccessibilityElement> AccessibleElementTree::elementAt(Point point, Seconds timeout)
{
    const auto last = after(timePerPoint_);
    const auto window = windowAt(connection_, point);
    if (!window)
        return nullptr;
    const auto found = questions_->ask(std::min(after(timeout), last),
        [window = *window, point](Reader& reader, Deadline deadline) {
            return reader.elementAt(window, point, deadline);
        });
    return found ? std::make_shared<Element>(questions_, *found, last) : nullptr;
}

} // namespace brindlex
