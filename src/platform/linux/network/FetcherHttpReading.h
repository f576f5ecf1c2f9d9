#pragma once

#include "platform/HttpReading.h"
#include "platform/MainThread.h"

#include <filesystem>

namespace brindlex {

/// Reads each document by a process of its own, `brindlex-fetch`, which has the network library and
/// ends with its document. The program itself never loads it.
class FetcherHttpReading : public HttpReading {
public:
    /// By the fetcher at the path. The certificates that are trusted are those of the file, or
    /// those of the system where none is named.
    FetcherHttpReading(MainThread& mainThread, std::filesystem::path fetcher,
        std::filesystem::path trustedCertificates = {});

    Subscription read(const std::string& url, const Limits& limits, Finished finished) override;

private:
    MainThread& mainThread_;
    const std::filesystem::path fetcher_;
    const std::filesystem::path trusted_;
};

} // namespace brindlex
