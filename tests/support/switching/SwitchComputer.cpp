#include "support/switching/SwitchComputer.h"

namespace brindlex {

SwitchEnvironment SwitchComputer::environment()
{
    return {
        .now =
            [this] {
                calls.push_back("now");
                return now;
            },
        .currentInputSourceID =
            [this] {
                calls.push_back("currentInputSourceID");
                return inputSourceID;
            },
        .currentInputSourceLocalizedName = [this]() -> std::optional<std::string> {
            calls.push_back("currentInputSourceLocalizedName");
            const auto name = inputSourceID ? names.find(*inputSourceID) : names.end();
            if (name == names.end())
                return {};
            return name->second;
        },
        .selectInputSource =
            [this](const std::string& wanted) {
                calls.push_back("selectInputSource");
                selections.push_back(wanted);
                if (refusedSources.contains(wanted))
                    return false;
                inputSourceID = wanted;
                return true;
            },
        .isSupportedBrowser =
            [this](const std::optional<std::string>& bundleID) {
                calls.push_back("isSupportedBrowser");
                return bundleID && browsers.contains(*bundleID);
            },
        .currentFrontmostBundleID =
            [this] {
                calls.push_back("currentFrontmostBundleID");
                return frontmostBundleID;
            },
        .appIdentifier
        = [this](const std::optional<std::string>& bundleID) -> std::optional<AppIdentifier> {
            calls.push_back("appIdentifier");
            if (!bundleID)
                return {};
            return AppIdentifier{*bundleID, "Name of " + *bundleID};
        },
        .currentBrowserHost =
            [this](const std::optional<std::string>&) {
                calls.push_back("currentBrowserHost");
                return page;
            },
        .systemTime =
            [this] {
                calls.push_back("systemTime");
                return systemTime;
            },
        .whyUndone =
            [this] {
                calls.push_back("whyUndone");
                return whyUndone;
            },
        .noteSwitch
        = [this](const InputMethodSwitchDecision& decision) { switches.push_back(decision); },
        .noteAgreement
        = [this](const InputMethodSwitchDecision& decision) { agreements.push_back(decision); },
    };
}

} // namespace brindlex
