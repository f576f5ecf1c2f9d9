#pragma once

#include <string>
#include <vector>

namespace brindlex {

/// The texts as calls of the system take them: pointers, and a null behind the last. The texts
/// outlive what is returned.
inline std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace brindlex
