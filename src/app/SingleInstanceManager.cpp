#include "app/SingleInstanceManager.h"

#include "app/ProgramIdentity.h"

namespace brindlex {

SingleInstanceManager::SingleInstanceManager(ProgramInstances& instances)
    : instances_(instances) { }

std::optional<ProgramInstances::ProcessIdentifier> SingleInstanceManager::existingInstance() const
{
    for (const auto instance : instances_.running(programIdentity::bundleIdentifier))
        if (instance != instances_.current())
            return instance;
    return {};
}

} // namespace brindlex
