#include "support/LocalWebServer.h"

#include "foundation/FatalError.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace brindlex {
namespace {

constexpr int patience = 2'000; // in milliseconds

std::string hostOf(const std::string& request)
{
    const std::string header = "\r\nHost: ";
    const auto start = request.find(header);
    if (start == std::string::npos)
        return "nowhere";
    const auto from = start + header.size();
    return request.substr(from, request.find_first_of(":\r", from) - from);
}

/// Reads up to the end of the headers.
std::string requestFrom(int connection)
{
    std::string request;
    char bytes[4096];
    pollfd waiting{connection, POLLIN, 0};
    while (request.find("\r\n\r\n") == std::string::npos && poll(&waiting, 1, patience) > 0) {
        const auto count = recv(connection, bytes, sizeof bytes, 0);
        if (count <= 0)
            break;
        request.append(bytes, static_cast<std::size_t>(count));
    }
    return request;
}

} // namespace

std::string pageFor(const std::string& request)
{
    const auto host = hostOf(request);
    return "<!doctype html><html><head><meta charset=utf-8><title>" + host
        + "</title><link rel=icon href=data:,>"
          "<style>body{font:22px sans-serif;margin:3em;background:#f6f3ee;color:#333}"
          "h1{font-weight:600;color:#2b5d74}"
          "textarea{font:24px sans-serif;width:90%;height:5em;padding:.6em;border:1px solid #bbb;"
          "border-radius:8px}</style></head><body><h1>"
        + host + "</h1><textarea autofocus aria-label=Text></textarea></body></html>";
}

LocalWebServer::LocalWebServer()
{
    listening_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    const auto place = reinterpret_cast<sockaddr*>(&address);
    if (bind(listening_, place, size) != 0 || listen(listening_, 16) != 0
        || getsockname(listening_, place, &size) != 0)
        fatalError("Cannot listen on this machine.");
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
}

LocalWebServer::~LocalWebServer()
{
    isEnding_ = true;
    shutdown(listening_, SHUT_RDWR);
    thread_.join();
    close(listening_);
}

void LocalWebServer::serve()
{
    while (!isEnding_) {
        const auto connection = accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0)
            continue;
        const auto page = pageFor(requestFrom(connection));
        const auto answer = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: "
            + std::to_string(page.size()) + "\r\nConnection: close\r\n\r\n" + page;
        send(connection, answer.data(), answer.size(), MSG_NOSIGNAL);
        close(connection);
    }
}

} // namespace brindlex
