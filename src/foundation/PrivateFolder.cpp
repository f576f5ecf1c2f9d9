#include "foundation/PrivateFolder.h"

#include <cerrno>
#include <sys/stat.h>

namespace brindlex {

int makePrivateFolder(const std::filesystem::path& folder)
{
    int error = 0;
    std::filesystem::path made;
    for (const auto& name : folder) {
        made /= name;
        const bool isThere
            = ::mkdir(made.c_str(), S_IRWXU) == 0 || errno == EEXIST || errno == EISDIR;
        if (!isThere && error == 0)
            error = errno;
    }
    return error;
}

} // namespace brindlex
