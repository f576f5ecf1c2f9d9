#include "platform/simulated/SimulatedInputSources.h"

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

template <typename Value>
bool agrees(const std::optional<Value>& wanted, const std::optional<Value>& value)
{
    return !wanted || wanted == value;
}

bool matches(const InputSourceFilter& filter, const InputSourceProperties& source)
{
    return agrees(filter.id, source.id) && agrees(filter.category, source.category)
        && agrees(filter.isSelectCapable, source.isSelectCapable)
        && agrees(filter.isEnabled, source.isEnabled);
}

} // namespace

std::optional<InputSourceProperties> SimulatedInputSources::current()
{
    const auto* source = responds_ && selected_ ? find(*selected_) : nullptr;
    if (!source)
        return {};
    return *source;
}

std::optional<std::vector<InputSourceProperties>> SimulatedInputSources::list(
    const InputSourceFilter& filter)
{
    if (!responds_)
        return {};
    std::vector<InputSourceProperties> found;
    std::copy_if(sources_.begin(), sources_.end(), std::back_inserter(found),
        [&](const InputSourceProperties& source) { return matches(filter, source); });
    return found;
}

int SimulatedInputSources::select(const InputSourceProperties& source)
{
    const auto id = source.id.value_or("");
    journal_.add("select " + id);
    attempts_.push_back(id);
    if (failures_ > 0) {
        --failures_;
        return failureStatus_;
    }
    const auto* installed = find(id);
    if (!responds_ || !installed || installed->isSelectCapable == false
        || installed->isEnabled == false)
        return invalidSource;
    become(id, SelectionCause::choice);
    return 0;
}

Subscription SimulatedInputSources::observeSelectionChanges(SelectionHandler handler)
{
    return journal_.addObservation("selection", selectionObservers_.add(std::move(handler)));
}

Subscription SimulatedInputSources::observeEnabledSourcesChanges(std::function<void()> handler)
{
    return journal_.addObservation(
        "enabled sources", enabledSourcesObservers_.add(std::move(handler)));
}

InputSourceProperties SimulatedInputSources::keyboard(
    const std::string& id, const std::string& name)
{
    return {id, std::string(keyboardInputSourceCategory), name, true, true};
}

void SimulatedInputSources::install(const InputSourceProperties& source)
{
    sources_.push_back(source);
    if (!selected_ && source.id)
        selected_ = source.id;
    notifyOfSources();
}

void SimulatedInputSources::remove(const std::string& id)
{
    std::erase_if(sources_, [&](const InputSourceProperties& source) { return source.id == id; });
    notifyOfSources();
    if (selected_ == id && !sources_.empty() && sources_.front().id)
        become(*sources_.front().id, SelectionCause::place);
}

void SimulatedInputSources::userSelects(const std::string& id)
{
    if (find(id))
        become(id, SelectionCause::choice);
}

void SimulatedInputSources::placeBrings(const std::string& id)
{
    if (find(id))
        become(id, SelectionCause::place);
}

void SimulatedInputSources::undoWith(const std::string& id)
{
    if (find(id))
        become(id, SelectionCause::undoing);
}

void SimulatedInputSources::failSelections(int count, int status)
{
    failures_ = count;
    failureStatus_ = status;
}

const InputSourceProperties* SimulatedInputSources::find(const std::string& id) const
{
    const auto found = std::find_if(sources_.begin(), sources_.end(),
        [&](const InputSourceProperties& source) { return source.id == id; });
    return found == sources_.end() ? nullptr : &*found;
}

void SimulatedInputSources::notifyOfSources()
{
    // Who comes later is not notified of what was there before.
    if (!enabledSourcesObservers_.isEmpty())
        mainThread_.post([this] { enabledSourcesObservers_.notify(); });
}

void SimulatedInputSources::become(const std::string& id, SelectionCause cause)
{
    if (std::exchange(selected_, id) == id)
        return;
    const auto notify = [this, cause] { selectionObservers_.notify(cause); };
    if (delay_ > 0)
        delayed_.push_back(mainThread_.after(delay_, notify));
    else
        mainThread_.post(notify);
}

} // namespace brindlex
