#pragma once

#include "foundation/Json.h"
#include "platform/UserDefaults.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace brindlex {

/// The content of a file of preferences. Values are shared, so that a copy costs little whatever
/// they hold.
using PreferenceDocument = std::map<std::string, std::shared_ptr<const PreferenceValue>>;

/// A value as a document holds it.
std::shared_ptr<const PreferenceValue> storedPreference(PreferenceValue value);

/// The value under a key, or nothing.
const PreferenceValue* valueIn(const PreferenceDocument& document, const std::string& key);

/// Reads one JSON object.
Result<PreferenceDocument, JsonProblem> parsePreferences(std::string_view text);

/// The document as one JSON object that a person can read, with its keys in order. Bytes that are
/// not UTF-8 become U+FFFD, and what JSON does not have becomes null.
std::string preferencesText(const PreferenceDocument& document);

/// Whether both have equal values under the same keys.
bool isSameDocument(const PreferenceDocument& one, const PreferenceDocument& other);

/// What is to hold after two processes have changed the same preferences: the values, and the
/// absences, of `memory` under the keys that were changed there, and those of `file` under all
/// others.
PreferenceDocument merged(const PreferenceDocument& file, const PreferenceDocument& memory,
    const std::set<std::string>& changedKeys);

} // namespace brindlex
