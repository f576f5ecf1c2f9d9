#include "inputmethod/views/InputMethodSmartRulesSection.h"

#include "ui/controls/ChooserValues.h"

namespace brindlex {
namespace {

/// The figure that is stored, with what follows it.
template <typename Value>
auto figureWith(const char* unit)
{
    return [unit](Value value) {
        return QString::fromStdString(optionOfValue(value)) + QLatin1String(unit);
    };
}

constexpr int figureWidth = 96;

Card& sectionOf(Page& page, const ViewContext& context)
{
    return page.section(context.text<"inputMethod.smart.title">());
}

} // namespace

template <typename Value>
Chooser* InputMethodSmartRulesSection::makeChooser(
    const QString& name, Value SmartInputMethodConfig::*field)
{
    return new Chooser(context_.theme, name, [this, field](const std::string& option) {
        settings_.changeSmart([&](SmartInputMethodConfig& config) {
            config.*field = valueWithOption<Value>(option);
        });
    });
}

InputMethodSmartRulesSection::InputMethodSmartRulesSection(
    Page& page, const ViewContext& context, InputMethodSettings& settings)
    : context_(context), settings_(settings),
      enabled_(new ToggleSwitch(context.theme, context.text<"inputMethod.smart.enabled">(),
          [this](bool isOn) {
              settings_.changeSmart([&](SmartInputMethodConfig& config) { config.enabled = isOn; });
          })),
      learningEnabled_(
          new ToggleSwitch(context.theme, context.text<"inputMethod.smart.learningEnabled">(),
              [this](bool isOn) {
                  settings_.changeSmart(
                      [&](SmartInputMethodConfig& config) { config.learningEnabled = isOn; });
              })),
      priority_(makeChooser(
          context.text<"inputMethod.smart.priority">(), &SmartInputMethodConfig::priority)),
      threshold_(makeChooser(
          context.text<"inputMethod.smart.threshold">(), &SmartInputMethodConfig::thresholdRatio)),
      window_(makeChooser(
          context.text<"inputMethod.smart.window">(), &SmartInputMethodConfig::windowSize)),
      limit_(makeChooser(
          context.text<"inputMethod.smart.appLimit">(), &SmartInputMethodConfig::appLimit)),
      stats_((makeRows(sectionOf(page, context)), page), context, settings)
{
    show();
}

void InputMethodSmartRulesSection::show()
{
    const auto& config = settings_.smartConfig();
    enabled_->show(config.enabled);
    learningEnabled_->show(config.learningEnabled);
    priority_->show(priorities(), optionOfValue(config.priority));
    threshold_->show(optionsOfAllValues<SmartInputMethodThresholdRatio>(
                         figureWith<SmartInputMethodThresholdRatio>("%")),
        optionOfValue(config.thresholdRatio));
    window_->show(
        optionsOfAllValues<SmartInputMethodWindowSize>(figureWith<SmartInputMethodWindowSize>("")),
        optionOfValue(config.windowSize));
    limit_->show(limits(), optionOfValue(config.appLimit));
    stats_.show();
}

void InputMethodSmartRulesSection::makeRows(Card& card)
{
    card.setting(context_.text<"inputMethod.smart.enabled">(),
        context_.text<"inputMethod.smart.enabledDescription">(), enabled_);
    card.setting(context_.text<"inputMethod.smart.learningEnabled">(),
        context_.text<"inputMethod.smart.learningEnabledDescription">(), learningEnabled_);
    card.setting(context_.text<"inputMethod.smart.priority">(), {}, priority_);
    card.setting(context_.text<"inputMethod.smart.threshold">(), {}, threshold_);
    card.setting(context_.text<"inputMethod.smart.window">(), {}, window_);
    card.setting(context_.text<"inputMethod.smart.appLimit">(),
        context_.text<"inputMethod.smart.appLimitDescription">(), limit_);
    for (auto* const chooser : {threshold_, window_})
        chooser->setMinimumWidth(figureWidth);
}

std::vector<Chooser::Option> InputMethodSmartRulesSection::priorities() const
{
    return optionsOfAllValues<SmartInputMethodPriority>([this](SmartInputMethodPriority priority) {
        switch (priority) {
        case SmartInputMethodPriority::afterManualRules:
            return context_.text<"inputMethod.smart.priority.afterManualRules">();
        case SmartInputMethodPriority::beforeManualAppRules:
            return context_.text<"inputMethod.smart.priority.beforeManualAppRules">();
        case SmartInputMethodPriority::highest:
            return context_.text<"inputMethod.smart.priority.highest">();
        }
        return QString();
    });
}

std::vector<Chooser::Option> InputMethodSmartRulesSection::limits() const
{
    return optionsOfAllValues<SmartInputMethodAppLimit>([this](SmartInputMethodAppLimit limit) {
        const auto count = applicationCount(limit);
        return count ? QStringLiteral("Top %1").arg(*count)
                     : context_.text<"inputMethod.smart.appLimit.unlimited">();
    });
}

} // namespace brindlex
