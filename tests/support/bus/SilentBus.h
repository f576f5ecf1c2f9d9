#pragma once

#include "foundation/FileHandle.h"
#include "support/basics/TemporaryFolder.h"

#include <string>

namespace brindlex {

/// What looks like a message bus, takes every connection and never says a word.
class SilentBus {
public:
    SilentBus();

    std::string address() const;

private:
    TemporaryFolder folder_;
    FileHandle socket_;
};

} // namespace brindlex
