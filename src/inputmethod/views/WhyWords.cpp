#include "inputmethod/views/WhyWords.h"

#include "catalogue/TimeWords.h"

namespace brindlex {
namespace {

/// What is said of the same everywhere; `manualRule` says that the application's own rule was used
/// at a time, which is given in words.
template <typename ManualRule>
QString wordsOf(const ViewContext& context, const InputMethodSettings& settings,
    const std::string& bundleID, ManualRule manualRule)
{
    const auto words = [&](Date time) {
        return timeInWords(time, settings.now(), context.strings.language(), localTimeZone());
    };
    return match(
        settings.why(bundleID),
        [&](const SwitchExplanation::NotUsedYet&) { return context.text<"why.notUsedYet">(); },
        [&](const SwitchExplanation::ManualRule& rule) { return manualRule(words(rule.usedAt)); },
        [&](const SwitchExplanation::LearnedRule& rule) {
            return context.text<"why.learnedFormat">(rule.changes, words(rule.usedAt));
        },
        [&](const SwitchExplanation::WebsiteRule& rule) {
            return context.text<"why.websiteRuleFormat">(rule.domainSuffix, words(rule.usedAt));
        },
        [&](const SwitchExplanation::Overridden& change) {
            return context.text<"why.overriddenFormat">(words(change.at));
        });
}

} // namespace

QString whyUnderRule(
    const ViewContext& context, const InputMethodSettings& settings, const AppIdentifier& app)
{
    return wordsOf(context, settings, app.bundleID,
        [&](const std::string& used) { return context.text<"why.manualRuleFormat">(used); });
}

QString whyInTable(
    const ViewContext& context, const InputMethodSettings& settings, const AppIdentifier& app)
{
    return wordsOf(context, settings, app.bundleID, [&](const std::string& used) {
        return context.text<"why.websiteRuleFormat">(app.displayName, used);
    });
}

} // namespace brindlex
