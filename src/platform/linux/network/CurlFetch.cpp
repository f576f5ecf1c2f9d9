#include "platform/linux/network/CurlFetch.h"

#include <curl/curl.h>

#include <memory>

namespace brindlex {
namespace {

using Kind = HttpProblem::Kind;

struct CleanUp {
    void operator()(CURL* transfer) const { curl_easy_cleanup(transfer); }
};

/// What has come so far. It is full when it would have to hold more than the limit.
struct Received {
    std::size_t limit = 0;
    std::string bytes{};
    bool isFull = false;
};

std::size_t receive(const char* bytes, std::size_t, std::size_t count, void* into)
{
    auto& received = *static_cast<Received*>(into);
    received.isFull = count > received.limit - received.bytes.size();
    if (received.isFull)
        return 0;
    received.bytes.append(bytes, count);
    return count;
}

/// `CURLE_UNSUPPORTED_PROTOCOL` is an address that is not of HTTPS, whether given or redirected to.
Kind kindOf(CURLcode problem, const Received& received)
{
    if (received.isFull || problem == CURLE_FILESIZE_EXCEEDED)
        return Kind::tooLarge;
    if (problem == CURLE_OPERATION_TIMEDOUT)
        return Kind::timedOut;
    return problem == CURLE_UNSUPPORTED_PROTOCOL ? Kind::insecure : Kind::unreachable;
}

void limit(CURL* transfer, const HttpReading::Limits& limits)
{
    curl_easy_setopt(transfer, CURLOPT_PROTOCOLS_STR, "https");
    curl_easy_setopt(transfer, CURLOPT_REDIR_PROTOCOLS_STR, "https");
    curl_easy_setopt(transfer, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(transfer, CURLOPT_MAXREDIRS, static_cast<long>(HttpReading::mostRedirects));
    curl_easy_setopt(transfer, CURLOPT_TIMEOUT_MS, static_cast<long>(limits.time * 1'000));
    curl_easy_setopt(transfer, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limits.bytes));
    curl_easy_setopt(transfer, CURLOPT_NOSIGNAL, 1L);
}

} // namespace

Result<std::string, HttpProblem> fetch(
    const std::string& url, const HttpReading::Limits& limits, const std::string& trusted)
{
    const std::unique_ptr<CURL, CleanUp> transfer(curl_easy_init());
    if (!transfer)
        return fail(HttpProblem{Kind::unreachable, "The transfer cannot be made"});
    Received received{.limit = limits.bytes};
    limit(transfer.get(), limits);
    curl_easy_setopt(transfer.get(), CURLOPT_URL, url.c_str());
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEFUNCTION, receive);
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEDATA, &received);
    if (!trusted.empty())
        curl_easy_setopt(transfer.get(), CURLOPT_CAINFO, trusted.c_str());

    const auto problem = curl_easy_perform(transfer.get());
    long status = 0;
    curl_easy_getinfo(transfer.get(), CURLINFO_RESPONSE_CODE, &status);
    if (problem != CURLE_OK)
        return fail(HttpProblem{kindOf(problem, received), curl_easy_strerror(problem)});
    if (status < 200 || status > 299)
        return fail(HttpProblem{Kind::status, std::to_string(status)});
    return received.bytes;
}

} // namespace brindlex
