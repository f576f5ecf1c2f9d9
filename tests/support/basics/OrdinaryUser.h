#pragma once

#include <filesystem>
#include <unistd.h>

namespace brindlex {

/// Makes this process an ordinary user as long as it exists, where it is root, whom no permission
/// of a file stops. The folder is given to that user.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const std::filesystem::path& folder)
    {
        constexpr uid_t nobody = 65'534;
        if (::geteuid() != 0)
            return;
        isChanged_ = ::chown(folder.c_str(), nobody, nobody) == 0 && ::seteuid(nobody) == 0;
    }
    ~OrdinaryUser()
    {
        if (isChanged_)
            static_cast<void>(!::seteuid(0));
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool isChanged_ = false;
};

} // namespace brindlex
