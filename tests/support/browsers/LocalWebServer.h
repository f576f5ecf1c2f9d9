#pragma once

#include <string>
#include <thread>

namespace brindlex {

/// A web server on this machine that replies to every request with a page named after the host that
/// was asked for.
class LocalWebServer {
public:
    LocalWebServer();
    ~LocalWebServer();
    LocalWebServer(const LocalWebServer&) = delete;
    LocalWebServer& operator=(const LocalWebServer&) = delete;

    int port() const { return port_; }

private:
    void serve();

    int listening_ = -1;
    int port_ = 0;
    std::thread thread_;
};

/// The page that a request is replied to with; what is typed into its field stands in its title
/// too. Return goes to a page below `example.org`, from there to one below `example.com`.
std::string pageFor(const std::string& request);

} // namespace brindlex
