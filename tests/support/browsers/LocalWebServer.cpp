#include "support/browsers/LocalWebServer.h"

#include "foundation/FatalError.h"

#include <cerrno>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace brindlex {
namespace {

std::string hostOf(const std::string& request)
{
    const std::string header = "\r\nHost: ";
    const auto start = request.find(header);
    if (start == std::string::npos)
        return "nowhere";
    const auto from = start + header.size();
    return request.substr(from, request.find_first_of(":\r", from) - from);
}

/// A client that is still sending its request.
struct Client {
    int connection;
    std::string request{};
};

/// Takes what the client has sent and replies to a whole request; false when the client is done
/// with.
bool serve(Client& client)
{
    char bytes[4096];
    const auto count = recv(client.connection, bytes, sizeof bytes, MSG_DONTWAIT);
    if (count <= 0)
        return false;
    client.request.append(bytes, static_cast<std::size_t>(count));
    if (client.request.find("\r\n\r\n") == std::string::npos)
        return true;
    const auto page = pageFor(client.request);
    const auto reply = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: "
        + std::to_string(page.size()) + "\r\nConnection: close\r\n\r\n" + page;
    send(client.connection, reply.data(), reply.size(), MSG_NOSIGNAL);
    return false;
}

} // namespace

std::string pageFor(const std::string& request)
{
    const auto host = hostOf(request);
    const std::string next = host.ends_with("example.org") ? "one.example.com" : "www.example.org";
    return "<!doctype html><html><head><meta charset=utf-8><title>" + host
        + "</title><link rel=icon href=data:,>"
          "<style>body{font:22px sans-serif;margin:1.6em;background:#f6f3ee;color:#333}"
          "h1{font-weight:600;color:#2b5d74}"
          "textarea{font:24px sans-serif;width:90%;height:4em;padding:.6em;border:1px solid #bbb;"
          "border-radius:8px}</style></head><body><h1>"
        + host + "</h1><textarea autofocus aria-label=Text oninput=\"if (value.includes('\\n'))"
        + " location = 'http://" + next + "/'; else document.title = '" + host
        + ": ' + value\"></textarea></body></html>";
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
    shutdown(listening_, SHUT_RDWR);
    thread_.join();
    close(listening_);
}

void LocalWebServer::serve()
{
    // A browser opens connections ahead of need and leaves them silent: none may hold up another.
    std::vector<Client> clients;
    while (true) {
        std::vector<pollfd> waiting{{listening_, POLLIN, 0}};
        for (const auto& client : clients)
            waiting.push_back({client.connection, POLLIN, 0});
        poll(waiting.data(), waiting.size(), -1);
        for (auto index = clients.size(); index-- > 0;)
            if (waiting[index + 1].revents != 0 && !brindlex::serve(clients[index])) {
                close(clients[index].connection);
                clients.erase(clients.begin() + static_cast<std::ptrdiff_t>(index));
            }
        if (waiting.front().revents == 0)
            continue;
        const auto connection = accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0 && errno == EINVAL)
            break; // No longer listening.
        if (connection >= 0)
            clients.push_back({connection});
    }
    for (const auto& client : clients)
        close(client.connection);
}

} // namespace brindlex
