#include "inputmethod/views/InputMethodRulesSection.h"

#include "applications/views/ApplicationIcon.h"
#include "inputmethod/views/WhyWords.h"
#include "ui/controls/Buttons.h"

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

constexpr int iconSize = 32;

} // namespace

InputMethodRulesSection::InputMethodRulesSection(Page& page, const ViewContext& context,
    InputMethodSettings& settings, ApplicationChoosing chooseApplication)
    : page_(page), context_(context), settings_(settings),
      chooseApplication_(std::move(chooseApplication)),
      card_(page.section(context.text<"inputMethod.rules.title">())), rows_(card_, 0)
{
    const auto addApp = context.text<"inputMethod.rules.addApp">();
    empty_ = new EmptyState(context.theme, Glyph::keyboard,
        context.text<"inputMethod.rules.empty.message">(), addApp, [this] { add(); });
    addRow_ = makeButton(
        context.theme, ButtonRole::add, addApp, [this] { add(); }, Glyph::add);
    card_.add(empty_);
    card_.add(addRow_);
    show();
}

void InputMethodRulesSection::show()
{
    std::vector<Uuid> ids;
    for (const auto& rule : settings_.config().rules)
        ids.push_back(rule.id);
    rows_.show(ids, [this](const Uuid& id) { return makeRow(id); });
    for (const auto& rule : settings_.config().rules)
        rows_.row(rule.id)->show(rule.inputSourceID, whyUnderRule(context_, settings_, rule.app));
    empty_->setVisible(ids.empty());
    addRow_->setVisible(!ids.empty());
}

InputRuleRow* InputMethodRulesSection::makeRow(const Uuid& id)
{
    const auto& rules = settings_.config().rules;
    const auto rule = std::find_if(
        rules.begin(), rules.end(), [&](const InputMethodRule& each) { return each.id == id; });
    return new InputRuleRow(context_, settings_, applicationIcon(context_.theme, rule->app),
        iconSize, QString::fromStdString(rule->app.displayName),
        {[this, id](const std::string& source) { settings_.setAppRuleSource(id, source); },
            [this, id] { remove(id); }});
}

void InputMethodRulesSection::add()
{
    chooseApplication_([this](const std::filesystem::path& bundle) {
        if (const auto id = settings_.addAppRule(bundle))
            rows_.row(*id)->focusChooser();
    });
}

void InputMethodRulesSection::remove(const Uuid& id)
{
    const auto before = settings_.config().rules;
    const auto rule = std::find_if(
        before.begin(), before.end(), [&](const InputMethodRule& each) { return each.id == id; });
    if (rule == before.end())
        return;
    settings_.removeAppRule(id);
    page_.offerUndo(QString::fromStdString(rule->app.displayName),
        [this, removed = *rule, index = static_cast<std::size_t>(rule - before.begin())] {
            settings_.restoreAppRule(removed, index);
        });
}

} // namespace brindlex
