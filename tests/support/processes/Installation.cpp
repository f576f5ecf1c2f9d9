#include "support/processes/Installation.h"

#include "foundation/FatalError.h"
#include "support/processes/CommandOutput.h"
#include "support/processes/ProcessTable.h"

#include <unistd.h>
#include <utility>

namespace brindlex {

std::filesystem::path buildFolder() { return fileOf(getpid()).parent_path().parent_path(); }

Installation::Installation(std::filesystem::path prefix) : prefix_(std::move(prefix))
{
    const auto output = outputOf({"cmake", "--install", buildFolder(), "--prefix", prefix_});
    if (output.status != 0)
        fatalError("Cannot install the build: " + output.text);
}

} // namespace brindlex
