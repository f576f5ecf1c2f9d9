#include "mouse/views/MouseBindingSection.h"

#include "ui/controls/Buttons.h"

#include <algorithm>

namespace brindlex {
namespace {

template <typename Binding>
auto placeOf(const std::vector<Binding>& bindings, const Uuid& id)
{
    return std::find_if(
        bindings.begin(), bindings.end(), [&](const Binding& binding) { return binding.id == id; });
}

} // namespace

template <typename Binding>
MouseBindingSection<Binding>::MouseBindingSection(Page& page, const ViewContext& context,
    MouseSettings& settings, const KeyRecording& recording, const Operations& operations,
    const Words& words)
    : page_(page), context_(context), settings_(settings), recording_(recording),
      operations_(operations), title_(words.title),
      card_(page.section(words.title, words.description)), rows_(card_, 0),
      empty_(
          new EmptyState(context.theme, Glyph::mouse, words.empty, words.add, [this] { add(); })),
      addRow_(makeButton(
          context.theme, ButtonRole::add, words.add, [this] { add(); }, Glyph::add))
{
    card_.add(empty_);
    card_.add(addRow_);
    show();
}

template <typename Binding>
void MouseBindingSection<Binding>::show()
{
    std::vector<Uuid> ids;
    for (const auto& binding : bindings())
        ids.push_back(binding.id);
    rows_.show(ids, [this](const Uuid& id) { return makeRow(id); });
    for (const auto& binding : bindings())
        rows_.row(binding.id)->show(binding);
    empty_->setVisible(ids.empty());
    addRow_->setVisible(!ids.empty());
}

template <typename Binding>
MouseBindingRow<Binding>* MouseBindingSection<Binding>::makeRow(const Uuid& id)
{
    return new MouseBindingRow<Binding>(context_, recording_, *placeOf(bindings(), id),
        {[this](const Binding& binding) { (settings_.*operations_.replace)(binding); },
            [this, id] { remove(id); }});
}

template <typename Binding>
void MouseBindingSection<Binding>::add()
{
    const auto id = (settings_.*operations_.add)();
    rows_.row(id)->focusChooser();
}

template <typename Binding>
void MouseBindingSection<Binding>::remove(const Uuid& id)
{
    const auto place = placeOf(bindings(), id);
    if (place == bindings().end())
        return;
    const auto removed = *place;
    const auto index = static_cast<std::size_t>(place - bindings().begin());
    (settings_.*operations_.remove)(id);
    page_.offerUndo(
        title_, [this, removed, index] { (settings_.*operations_.restore)(removed, index); });
}

template class MouseBindingSection<MouseClickBinding>;
template class MouseBindingSection<MouseGestureBinding>;

MouseClickSection::MouseClickSection(
    Page& page, const ViewContext& context, MouseSettings& settings, const KeyRecording& recording)
    : MouseBindingSection(page, context, settings, recording,
        {[](const MouseConfig& config) -> const std::vector<MouseClickBinding>& {
             return config.click.bindings;
         },
            &MouseSettings::addClickBinding, &MouseSettings::replaceClickBinding,
            &MouseSettings::removeClickBinding, &MouseSettings::restoreClickBinding},
        {context.text<"mouse.click.title">(), context.text<"mouse.click.description">(),
            context.text<"mouse.click.addBinding">(), context.text<"mouse.click.empty.message">()})
{
}

} // namespace brindlex
