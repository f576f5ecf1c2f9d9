#include "inputmethod/DomainRecommendation.h"

#include "foundation/Text.h"
#include "inputmethod/NormalizedDomain.h"

#include <algorithm>
#include <array>
#include <string>

namespace brindlex {
namespace {

constexpr std::array recommendations{
    DomainRecommendation{"Baidu", "baidu.com"},
    DomainRecommendation{"Google", "google.com"},
    DomainRecommendation{"GitHub", "github.com"},
    DomainRecommendation{"Stack Overflow", "stackoverflow.com"},
    DomainRecommendation{"ChatGPT", "chatgpt.com"},
    DomainRecommendation{"OpenAI", "openai.com"},
    DomainRecommendation{"YouTube", "youtube.com"},
    DomainRecommendation{"Bilibili", "bilibili.com"},
    DomainRecommendation{"Zhihu", "zhihu.com"},
    DomainRecommendation{"Xiaohongshu", "xiaohongshu.com"},
    DomainRecommendation{"Weibo", "weibo.com"},
    DomainRecommendation{"WeChat Public Platform", "mp.weixin.qq.com"},
    DomainRecommendation{"Notion", "notion.so"},
    DomainRecommendation{"Gmail", "mail.google.com"},
    DomainRecommendation{"Google Docs", "docs.google.com"},
    DomainRecommendation{"Microsoft 365", "microsoft365.com"},
};

/// The fewest characters that say anything.
constexpr std::size_t leastTyped = 2;

bool isBelow(std::string_view domain, std::string_view parent)
{
    return domain.ends_with("." + std::string(parent));
}

bool hasRule(const std::vector<DomainInputMethodRule>& rules, std::string_view suffix)
{
    return std::any_of(rules.begin(), rules.end(),
        [&](const DomainInputMethodRule& rule) { return rule.domainSuffix == suffix; });
}

} // namespace

std::span<const DomainRecommendation> domainRecommendations() { return recommendations; }

std::vector<DomainRecommendation> suggestedDomains(
    std::string_view typed, const std::vector<DomainInputMethodRule>& rules)
{
    const auto query = lowercased(trimmed(typed));
    if (characters(query).size() < leastTyped)
        return {};
    const auto domain = normalizedDomain(query);
    const auto fits = [&](std::string_view suffix) {
        if (!domain)
            return suffix.find(query) != std::string_view::npos;
        return suffix == *domain || isBelow(suffix, *domain) || isBelow(*domain, suffix);
    };
    std::vector<DomainRecommendation> suggested;
    for (const auto& candidate : recommendations)
        if (!hasRule(rules, candidate.domainSuffix) && fits(candidate.domainSuffix))
            suggested.push_back(candidate);
    return suggested;
}

} // namespace brindlex
