#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The absolute paths of the local files in a list of URIs, one on each line and ended by any kind
/// of line end, in their order (RFC 2483). Comments, other lines than "file:" URIs, files of other
/// computers and paths with a zero byte are left out, and with them the word that GNOME's file
/// manager writes before its list. Bytes of a path that are not UTF-8 stay what they are.
std::vector<std::string> pathsOfUriList(std::string_view list);

/// The paths as a list of URIs.
std::string uriListOf(const std::vector<std::string>& paths);

/// The paths as files that are copied, in the form of GNOME's file manager.
std::string copiedFilesOf(const std::vector<std::string>& paths);

} // namespace brindlex
