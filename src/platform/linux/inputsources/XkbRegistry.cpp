#include "platform/linux/inputsources/XkbRegistry.h"

#include "foundation/Text.h"

#include <xkbcommon/xkbregistry.h>

#include <algorithm>
#include <libintl.h>
#include <malloc.h>
#include <memory>

namespace brindlex {
namespace {

constexpr auto catalogueOfLayouts = "xkeyboard-config";
constexpr auto rules = "evdev";

struct ReleaseContext {
    void operator()(rxkb_context* context) const { rxkb_context_unref(context); }
};

std::string textOrEmpty(const char* text) { return text ? text : ""; }

std::string languageOf(rxkb_layout* layout)
{
    auto* code = rxkb_layout_get_iso639_first(layout);
    return code ? textOrEmpty(rxkb_iso639_code_get_code(code)) : std::string();
}

std::string codeOf(const XkbLayout& layout)
{
    return layout.variant.empty() ? layout.layout : layout.layout + " (" + layout.variant + ")";
}

} // namespace

std::vector<XkbLayoutName> XkbRegistry::names(const std::vector<XkbLayout>& layouts)
{
    const bool isComplete = std::all_of(layouts.begin(), layouts.end(),
        [this](const XkbLayout& layout) { return known_.contains(layout); });
    if (!isComplete)
        read(layouts);
    std::vector<XkbLayoutName> result;
    result.reserve(layouts.size());
    for (const auto& layout : layouts)
        result.push_back(known_[layout]);
    return result;
}

void XkbRegistry::read(const std::vector<XkbLayout>& layouts)
{
    for (const auto& layout : layouts)
        known_.try_emplace(layout, XkbLayoutName{wellFormed(codeOf(layout)), {}});
    {
        const std::unique_ptr<rxkb_context, ReleaseContext> context(
            rxkb_context_new(RXKB_CONTEXT_LOAD_EXOTIC_RULES));
        if (!context || !rxkb_context_parse(context.get(), rules))
            return;
        std::map<std::string, std::string> languages;
        for (auto* item = rxkb_layout_first(context.get()); item; item = rxkb_layout_next(item)) {
            const XkbLayout layout{textOrEmpty(rxkb_layout_get_name(item)),
                textOrEmpty(rxkb_layout_get_variant(item))};
            auto language = languageOf(item);
            // A variant without a language of its own has that of its layout, which comes first.
            if (layout.variant.empty())
                languages.emplace(layout.layout, language);
            else if (language.empty())
                language = languages[layout.layout];
            const auto wanted = known_.find(layout);
            if (wanted != known_.end())
                wanted->second = {
                    translated(catalogueOfLayouts, textOrEmpty(rxkb_layout_get_description(item))),
                    language};
        }
    }
    ::malloc_trim(0);
}

std::string translated(const std::string& catalogue, const std::string& text)
{
    if (catalogue.empty() || text.empty())
        return wellFormed(text);
    ::bind_textdomain_codeset(catalogue.c_str(), "UTF-8");
    return wellFormed(::dgettext(catalogue.c_str(), text.c_str()));
}

} // namespace brindlex
