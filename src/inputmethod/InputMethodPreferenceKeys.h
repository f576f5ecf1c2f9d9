#pragma once

#include "inputmethod/InputMethodConfig.h"
#include "inputmethod/SmartInputMethodConfig.h"
#include "preferences/PreferenceKey.h"

namespace brindlex {

extern template struct PreferenceForm<InputMethodConfig>;
extern template struct PreferenceForm<SmartInputMethodConfig>;

/// The preferences of the switching of input sources.
struct InputMethodPreferenceKeys {
    PreferenceKey<InputMethodConfig> inputMethodConfig{{}, "inputMethodConfig"};
    PreferenceKey<SmartInputMethodConfig> smartInputMethodConfig{{}, "smartInputMethodConfig"};
};

} // namespace brindlex
