#pragma once

#include "support/basics/TemporaryFolder.h"
#include "support/processes/ChildProcess.h"

#include <filesystem>
#include <optional>
#include <string>

namespace brindlex {

/// A web server on this machine, by HTTPS as `localhost` and by HTTP, that replies with what an
/// address asks for. Its certificate is made for the test, and nobody trusts it who is not given
/// it.
class SecureServer {
public:
    SecureServer();

    /// The certificate that a client has to trust.
    std::filesystem::path certificate() const { return folder_.path() / "certificate.pem"; }

    std::string content(const std::string& text) const { return secure("content/" + hex(text)); }
    std::string status(int number) const { return secure("status/" + std::to_string(number)); }
    std::string redirect(const std::string& url) const { return secure("redirect/" + hex(url)); }
    /// Redirects to itself.
    std::string loop() const { return secure("loop/"); }
    /// Takes the request and says nothing.
    std::string silence() const { return secure("silence/"); }
    /// Content without end, slow.
    std::string trickle() const { return secure("trickle/"); }
    /// Content without end, fast.
    std::string flood() const { return secure("flood/"); }
    /// Announces a content of this many bytes and sends none.
    std::string announced(std::size_t bytes) const
    {
        return secure("announced/" + std::to_string(bytes));
    }

    /// The same content without TLS.
    std::string insecureContent(const std::string& text) const;
    /// The same content under a name that is not that of the certificate.
    std::string contentUnderAnotherName(const std::string& text) const;

private:
    static std::string hex(const std::string& text);
    std::string secure(const std::string& path) const;

    TemporaryFolder folder_;
    std::optional<ChildProcess> process_;
    int securePort_ = 0;
    int plainPort_ = 0;
};

} // namespace brindlex
