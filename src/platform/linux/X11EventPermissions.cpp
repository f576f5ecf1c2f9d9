#include "platform/linux/X11EventPermissions.h"

#include <utility>

namespace brindlex {

X11EventPermissions::X11EventPermissions(X11InputStream& stream, std::filesystem::path refusal)
    : stream_(stream), refusal_(std::move(refusal))
{
    if (!refusal_.empty())
        watcher_.emplace(refusal_.parent_path(), [this](const std::string& name) {
            if (name.empty() || name == refusal_.filename())
                observers_.notify();
        });
}

bool X11EventPermissions::canListenToEvents()
{
    return !isRefused() && stream_.session() != nullptr;
}

bool X11EventPermissions::isRefused() const
{
    std::error_code problem;
    return !refusal_.empty() && std::filesystem::exists(refusal_, problem);
}

} // namespace brindlex
