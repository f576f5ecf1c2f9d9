#include "platform/linux/inputsources/Fcitx5Selection.h"

#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto freshFor = 50ms;
/// A window that is seen to have the keyboard earlier may be the one that is just losing it.
constexpr auto timeToBeSure = 300ms;

} // namespace

std::optional<std::string> Fcitx5Selection::method() const
{
    return request_ ? request_->method : read_;
}

bool Fcitx5Selection::isStale(Time now) const
{
    return !isKeeping() && (!readAt_ || now - *readAt_ > freshFor);
}

void Fcitx5Selection::pause()
{
    context_.reset();
    ++selection_;
}

std::optional<int> Fcitx5Selection::beginRead()
{
    if (std::exchange(isReading_, true))
        return {};
    return selection_;
}

bool Fcitx5Selection::endRead(int selection)
{
    isReading_ = false;
    return selection == selection_;
}

Fcitx5Selection::Change Fcitx5Selection::take(const Observation& seen, Time now)
{
    if (!seen.isSteady())
        return Change::none;
    // Without an input context nothing is said about what the user types with.
    auto read = seen.method->empty() ? std::nullopt : seen.method;
    const bool isNew = !hasRead() || read_ != read;
    const bool isElsewhere = context_ != seen.contextAfter;
    readAt_ = now;
    read_ = std::move(read);
    context_ = seen.contextAfter;
    if (!isNew)
        return Change::none;
    return isElsewhere ? Change::context : Change::choice;
}

int Fcitx5Selection::select(const std::string& method, std::uint32_t window, Time now)
{
    request_ = Request{method, window, {}, now};
    return ++selection_;
}

bool Fcitx5Selection::acknowledge(
    int selection, const std::string& before, const std::string& after)
{
    if (selection != selection_ || !isKeeping())
        return false;
    request_->context = before == after ? before : "";
    return true;
}

SelectionStatus Fcitx5Selection::confirm(bool isReplyAnError)
{
    // While no window types through the daemon nothing is selected; the active one may soon do so.
    if (!isReplyAnError && (!read_ || read_ == method()))
        return SelectionStatus::done;
    request_.reset();
    return isReplyAnError ? SelectionStatus::notConnected : SelectionStatus::refused;
}

std::optional<int> Fcitx5Selection::beginCheck()
{
    if (!isKeeping() || std::exchange(isChecking_, true))
        return {};
    return selection_;
}

Fcitx5Selection::Verdict Fcitx5Selection::endCheck(int selection, const Observation& seen, Time now)
{
    isChecking_ = false;
    if (selection != selection_ || !isKeeping() || !seen.isSteady())
        return Verdict::keep;
    const auto verdict = judge(seen, now);
    if (verdict == Verdict::requestAgain) {
        // The keyboard may move on before the daemon gets to the request.
        request_->context.clear();
        request_->madeAt = now;
    } else if (verdict != Verdict::keep) {
        request_.reset();
        take(seen, now);
    }
    return verdict;
}

Fcitx5Selection::Verdict Fcitx5Selection::judge(const Observation& seen, Time now) const
{
    if (seen.activeWindow != 0 && seen.activeWindow != request_->window)
        return Verdict::left;
    if (seen.contextAfter.empty())
        return Verdict::keep;
    if (seen.method != request_->method)
        return seen.contextAfter == request_->context ? Verdict::chosen : Verdict::requestAgain;
    return now - request_->madeAt > timeToBeSure ? Verdict::reached : Verdict::keep;
}

} // namespace brindlex
