#include "support/network/SecureServer.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"

#include <sstream>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto timeToMakeACertificate = 20s;

void makeCertificate(const std::filesystem::path& certificate, const std::filesystem::path& key)
{
    const auto end
        = run({.command = {"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt",
                   "ec_paramgen_curve:prime256v1", "-nodes", "-days", "2", "-subj", "/CN=localhost",
                   "-addext", "subjectAltName=DNS:localhost", "-keyout", key, "-out", certificate}},
            timeToMakeACertificate);
    if (end != ProcessEnd{0, {}})
        fatalError("No certificate could be made.");
}

} // namespace

SecureServer::SecureServer()
{
    const auto key = folder_.path() / "key.pem";
    const auto output = folder_.path() / "output";
    makeCertificate(certificate(), key);
    process_.emplace(ChildProcess::Start{
        .command = {"python3", SECURE_SERVER, certificate(), key}, .output = output});
    if (!eventually([&] { return contentOf(output).ends_with("\n"); }))
        fatalError("The web server did not start.");
    std::istringstream(contentOf(output)) >> securePort_ >> plainPort_;
    if (plainPort_ == 0)
        fatalError("The web server did not start.\n" + contentOf(output));
}

std::string SecureServer::insecureContent(const std::string& text) const
{
    return "http://localhost:" + std::to_string(plainPort_) + "/content/" + hex(text);
}

std::string SecureServer::contentUnderAnotherName(const std::string& text) const
{
    return "https://127.0.0.1:" + std::to_string(securePort_) + "/content/" + hex(text);
}

std::string SecureServer::hex(const std::string& text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result;
    for (const unsigned char byte : text) {
        result += digits[byte / 16];
        result += digits[byte % 16];
    }
    return result;
}

std::string SecureServer::secure(const std::string& path) const
{
    return "https://localhost:" + std::to_string(securePort_) + "/" + path;
}

} // namespace brindlex
