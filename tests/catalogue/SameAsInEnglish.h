#pragma once

#include <map>
#include <set>
#include <string_view>

namespace brindlex {

/// The texts that are the same in English and in another language, as that language uses the word.
inline const std::map<std::string_view, std::set<std::string_view>> sameAsInEnglish{
    {"zh-Hans",
        {"finder.templates.type.excel", "finder.templates.type.powerPoint",
            "finder.templates.type.word", "keys.control", "keys.option", "keys.shift", "keys.super",
            "keys.tab"}},
    {"zh-Hant",
        {"finder.templates.type.excel", "finder.templates.type.powerPoint",
            "finder.templates.type.word", "keys.control", "keys.option", "keys.shift", "keys.super",
            "keys.tab", "logs.subsystem.finder", "tab.finder"}},
    {"ja",
        {"finder.templates.type.excel", "finder.templates.type.powerPoint",
            "finder.templates.type.word", "keys.control", "keys.delete", "keys.option",
            "keys.shift", "keys.super", "keys.tab", "logs.subsystem.finder",
            "mouse.action.missionControl", "tab.finder"}},
    {"fr",
        {"about.versionLineFormat", "aboutDetail.commitFormat", "clipboard.category.image",
            "clipboard.item.image", "finder.status.title", "finder.templates.extensionLabel",
            "finder.templates.type.excel", "finder.templates.type.powerPoint",
            "finder.templates.type.word", "inputMethod.smart.status.active", "keys.control",
            "keys.option", "keys.super", "keys.tab", "logTable.message", "logs.subsystem.finder",
            "mouse.action.missionControl", "mouse.action.picker", "mouse.direction.picker",
            "mouse.gesture.distance", "tab.finder"}},
    {"es",
        {"aboutDetail.commitFormat", "finder.templates.type.excel",
            "finder.templates.type.powerPoint", "finder.templates.type.word", "keys.control",
            "keys.option", "keys.tab", "logs.subsystem.finder", "mouse.action.missionControl",
            "tab.finder", "tab.general"}},
    {"de",
        {"about.versionLineFormat", "aboutDetail.commitFormat", "clipboard.category.text",
            "finder.openers.selectedApp", "finder.templates.type.excel",
            "finder.templates.type.powerPoint", "finder.templates.type.text",
            "finder.templates.type.word", "finder.terminalCommands.nameLabel",
            "inputMethod.smart.header.app", "inputMethod.smart.header.status", "keys.option",
            "keys.super", "keys.tab", "logs.subsystem.app", "logs.subsystem.finder",
            "mouse.action.missionControl", "permissions.automation.title", "tab.finder"}},
    {"ko",
        {"finder.templates.type.excel", "finder.templates.type.powerPoint",
            "finder.templates.type.word", "keys.control", "keys.delete", "keys.option",
            "keys.shift", "keys.super", "keys.tab", "logs.subsystem.finder",
            "mouse.action.missionControl", "tab.finder"}},
};

} // namespace brindlex
