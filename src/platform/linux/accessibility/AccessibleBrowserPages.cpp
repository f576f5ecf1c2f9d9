#include "platform/linux/accessibility/AccessibleBrowserPages.h"

#include "platform/linux/accessibility/AccessiblePageReader.h"
#include "platform/linux/accessibility/TitlePace.h"

#include <array>
#include <utility>

namespace brindlex {
namespace {

/// When to look again at a page that is still the one from before its title changed. A page that
/// loads often comes some hundred milliseconds after its title.
constexpr std::array<Seconds, 7> delaysAfterTitle{0.02, 0.03, 0.04, 0.05, 0.06, 0.1, 0.2};

} // namespace

/// What is asked and what was read. Lives on the main thread; the work on the queue and its way
/// back hold it weakly.
class AccessibleBrowserPages::Reading : public std::enable_shared_from_this<Reading> {
public:
    Reading(MainThread& mainThread, const Clock& clock, BackgroundQueue& queue, Front front,
        const AccessibilityLimits& limits)
        : mainThread_(mainThread), clock_(clock), queue_(queue),
          activeWindow_(std::move(front.activeWindow)),
          reader_(std::make_shared<AccessiblePageReader>(limits)),
          titles_(front.observeTitle([this] { lookForTitle(); }))
    {
    }

    std::optional<std::string> ask(const std::string& bundleID)
    {
        const auto window = activeWindow_();
        askedFor_ = bundleID;
        lastReturned_ = urlOf(window);
        if (window && !isFresh(*window))
            want({bundleID, *window});
        return lastReturned_;
    }

    Subscribers<std::function<void()>> observers;

private:
    struct Request {
        std::string bundleID{};
        ActiveWindow window{};
    };
    struct Page {
        std::string bundleID{};
        WindowIdentity window{};
        std::string url{};
        Seconds readAt = 0;
    };

    std::optional<std::string> urlOf(const std::optional<ActiveWindow>& window) const
    {
        if (!window || !isOf(*window) || clock_.continuousTime() - page_->readAt > pageLife)
            return {};
        return page_->url;
    }

    bool isFresh(const ActiveWindow& window) const
    {
        return isOf(window) && clock_.continuousTime() - page_->readAt < pageFreshness;
    }

    /// Whether the page known is one of this window, read for the browser last asked for.
    bool isOf(const ActiveWindow& window) const
    {
        return page_ && page_->window == window.window && page_->bundleID == askedFor_;
    }

    void lookForTitle()
    {
        if (observers.isEmpty() || !titlePace_.takes(clock_.continuousTime()))
            return;
        pageBeforeTitle_ = lastReturned_;
        lookAgain(0);
    }

    void lookAgain(std::size_t attempt)
    {
        const auto window = activeWindow_();
        if (!window)
            return;
        const Request request{askedFor_, *window};
        // What is being read may be the page from before.
        if (beingRead_)
            next_ = request;
        else
            read(request);
        if (attempt == delaysAfterTitle.size())
            return;
        nextLook_ = mainThread_.after(delaysAfterTitle[attempt], [this, attempt] {
            // Between two pages there may be none for a moment.
            if (!lastReturned_ || lastReturned_ == pageBeforeTitle_)
                lookAgain(attempt + 1);
        });
    }

    void want(Request request)
    {
        if (!beingRead_)
            read(std::move(request));
        else if (beingRead_->window.window != request.window.window
            || beingRead_->bundleID != request.bundleID)
            next_ = std::move(request);
    }

    void read(Request request)
    {
        beingRead_ = std::move(request);
        const auto began = clock_.continuousTime();
        queue_.post([self = weak_from_this(), &mainThread = mainThread_, reader = reader_,
                        window = beingRead_->window, began] {
            mainThread.post([self, began, page = reader->read(window)] {
                if (const auto alive = self.lock())
                    alive->finish(page, began);
            });
        });
    }

    void finish(const Result<std::string, PageProblem>& page, Seconds began)
    {
        const auto done = *std::exchange(beingRead_, std::nullopt);
        if (page)
            page_ = Page{done.bundleID, done.window.window, *page, began};
        else if (page.error() == PageProblem::unknown)
            page_.reset();
        if (auto request = std::exchange(next_, std::nullopt))
            read(std::move(*request));
        if (urlOf(activeWindow_()) != lastReturned_)
            observers.notify();
    }

    MainThread& mainThread_;
    const Clock& clock_;
    BackgroundQueue& queue_;
    std::function<std::optional<ActiveWindow>()> activeWindow_;
    std::shared_ptr<AccessiblePageReader> reader_;

    std::string askedFor_;
    std::optional<std::string> lastReturned_;
    std::optional<Page> page_;
    std::optional<Request> beingRead_;
    std::optional<Request> next_;

    TitlePace titlePace_;
    std::optional<std::string> pageBeforeTitle_;
    Subscription nextLook_;
    Subscription titles_;
};

AccessibleBrowserPages::AccessibleBrowserPages(MainThread& mainThread, const Clock& clock,
    BackgroundQueue& queue, Front front, const AccessibilityLimits& limits)
    : reading_(std::make_shared<Reading>(mainThread, clock, queue, std::move(front), limits)),
      queue_(queue)
{
}

AccessibleBrowserPages::~AccessibleBrowserPages() { queue_.drain(); }

std::optional<std::string> AccessibleBrowserPages::currentURL(
    const std::string& bundleID, const std::string&)
{
    return reading_->ask(bundleID);
}

Subscription AccessibleBrowserPages::observeChanges(std::function<void()> handler)
{
    return reading_->observers.add(std::move(handler));
}

} // namespace brindlex
