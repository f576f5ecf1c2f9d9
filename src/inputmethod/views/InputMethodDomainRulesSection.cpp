#include "inputmethod/views/InputMethodDomainRulesSection.h"

#include "inputmethod/DomainRecommendation.h"
#include "ui/controls/Buttons.h"

#include <algorithm>

namespace brindlex {
namespace {

constexpr int glyphSize = 20;

QString asQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

InputMethodDomainRulesSection::InputMethodDomainRulesSection(
    Page& page, const ViewContext& context, InputMethodSettings& settings)
    : page_(page), context_(context), settings_(settings),
      enabled_(new ToggleSwitch(context.theme, context.text<"inputMethod.domainRules.enabled">(),
          [this](bool isOn) {
              settings_.change(
                  [&](InputMethodConfig& config) { config.domainRulesEnabled = isOn; });
          })),
      empty_(new EmptyState(
          context.theme, Glyph::globe, context.text<"inputMethod.domainRules.empty.message">())),
      field_(new SearchField(
          context.theme, context.text<"inputMethod.domainRules.searchPlaceholder">())),
      suggestions_(new SuggestionList(
          context.theme, *field_, page, [this](const QString& domain) { add(domain); })),
      card_(page.section(context.text<"inputMethod.domainRules.title">())), rows_(card_, 1)
{
    card_.setting(context.text<"inputMethod.domainRules.enabled">(),
        context.text<"inputMethod.domainRules.enabledDescription">(), enabled_);
    card_.add(empty_);
    makeField(card_);
    show();
}

void InputMethodDomainRulesSection::show()
{
    enabled_->show(settings_.config().domainRulesEnabled);
    std::vector<Uuid> ids;
    for (const auto& rule : settings_.config().domainRules)
        ids.push_back(rule.id);
    rows_.show(ids, [this](const Uuid& id) { return makeRow(id); });
    for (const auto& rule : settings_.config().domainRules)
        rows_.row(rule.id)->show(rule.inputSourceID);
    empty_->setVisible(ids.empty());
}

void InputMethodDomainRulesSection::makeField(Card& card)
{
    QObject::connect(
        field_, &QLineEdit::textEdited, field_, [this](const QString& typed) { suggest(typed); });
    QObject::connect(field_, &QLineEdit::returnPressed, field_, [this] { add(field_->text()); });
    auto* const row = new Row(context_.theme);
    row->fill(field_).end(makeButton(context_.theme, ButtonRole::plain,
        context_.text<"inputMethod.domainRules.add">(), [this] { add(field_->text()); }));
    card.add(row);
}

InputRuleRow* InputMethodDomainRulesSection::makeRow(const Uuid& id)
{
    const auto& rules = settings_.config().domainRules;
    const auto rule = std::find_if(rules.begin(), rules.end(),
        [&](const DomainInputMethodRule& each) { return each.id == id; });
    return new InputRuleRow(context_, settings_,
        glyphIcon(context_.theme, Glyph::globe, &ThemeTokens::subdued), glyphSize,
        QString::fromStdString(rule->domainSuffix),
        {[this, id](const std::string& source) { settings_.setDomainRuleSource(id, source); },
            [this, id] { remove(id); }});
}

void InputMethodDomainRulesSection::suggest(const QString& typed)
{
    const auto icon = glyphIcon(context_.theme, Glyph::globe, &ThemeTokens::subdued);
    std::vector<Suggestion> suggestions;
    for (const auto& website :
        suggestedDomains(typed.toStdString(), settings_.config().domainRules))
        suggestions.push_back(
            {asQString(website.domainSuffix), asQString(website.displayName), icon});
    suggestions_->suggest(suggestions);
}

void InputMethodDomainRulesSection::add(const QString& text)
{
    const auto id = settings_.addDomainRule(text.toStdString());
    if (!id)
        return;
    field_->clear();
    rows_.row(*id)->focusChooser();
}

void InputMethodDomainRulesSection::remove(const Uuid& id)
{
    const auto before = settings_.config().domainRules;
    const auto rule = std::find_if(before.begin(), before.end(),
        [&](const DomainInputMethodRule& each) { return each.id == id; });
    if (rule == before.end())
        return;
    settings_.removeDomainRule(id);
    page_.offerUndo(QString::fromStdString(rule->domainSuffix),
        [this, removed = *rule, index = static_cast<std::size_t>(rule - before.begin())] {
            settings_.restoreDomainRule(removed, index);
        });
}

} // namespace brindlex
