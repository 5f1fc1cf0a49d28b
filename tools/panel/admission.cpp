#include "panel/admission.h"

#include <algorithm>
#include <arpa/inet.h>

namespace panel {

namespace {

/// The time that this takes tells nothing about where the texts differ.
bool areEqual(const std::string &one, const std::string &other)
{
    if (one.size() != other.size())
        return false;
    unsigned char difference = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        difference = static_cast<unsigned char>(difference | (one[i] ^ other[i]));
    return difference == 0;
}

bool isAddress(const std::string &text)
{
    unsigned char bytes[sizeof(in6_addr)];
    return ::inet_pton(AF_INET, text.c_str(), bytes) == 1
        || (text.size() > 2 && text.front() == '[' && text.back() == ']'
            && ::inet_pton(AF_INET6, text.substr(1, text.size() - 2).c_str(), bytes) == 1);
}

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
    return text;
}

} // namespace

Admission::Admission(int port, std::string token, std::vector<std::string> names)
    : m_port(port), m_token(std::move(token)), m_names(std::move(names))
{
    m_names.emplace_back("localhost");
    std::transform(m_names.begin(), m_names.end(), m_names.begin(), lower);
}

// A name elsewhere can be made to lead to this machine, an address cannot.
bool Admission::isOwnHost(const std::string &host) const
{
    const std::string port = ':' + std::to_string(m_port);
    if (host.size() <= port.size() || host.compare(host.size() - port.size(), port.size(), port) != 0)
        return m_port == 80 && (isAddress(host) || std::count(m_names.begin(), m_names.end(), lower(host)));
    const std::string name = lower(host.substr(0, host.size() - port.size()));
    return isAddress(name) || std::count(m_names.begin(), m_names.end(), name) > 0;
}

std::string Admission::cookie() const
{
    // The port is part of the name: programs on one machine share their cookies.
    return "quvera-panel-" + std::to_string(m_port) + '=' + m_token;
}

bool Admission::showsToken(const Request &request) const
{
    if (m_token.empty() || areEqual(request.authorization, "Bearer " + m_token))
        return true;
    const std::string wanted = cookie();
    std::size_t at = 0;
    while (at < request.cookie.size()) {
        at = std::min(request.cookie.find_first_not_of("; ", at), request.cookie.size());
        const std::size_t end = std::min(request.cookie.find(';', at), request.cookie.size());
        if (areEqual(request.cookie.substr(at, end - at), wanted))
            return true;
        at = end;
    }
    return false;
}

Admission::Answer Admission::judge(const Request &request) const
{
    if (!isOwnHost(request.host))
        return Answer::ForeignHost;
    // A link that a person follows to the panel is the one thing that may come from elsewhere.
    const bool follows = !request.changes && request.mode == "navigate";
    if (!request.origin.empty() && request.origin != "http://" + request.host)
        return Answer::ForeignPage;
    if (!request.site.empty() && request.site != "same-origin" && request.site != "none" && !follows)
        return Answer::ForeignPage;
    if (!m_token.empty() && !request.token.empty() && !request.changes)
        return areEqual(request.token, m_token) ? Answer::Enter : Answer::NoToken;
    if (!showsToken(request))
        return Answer::NoToken;
    // Forms cannot send this type, so no page without a script of its own can.
    if (request.changes && request.contentType != "application/json")
        return Answer::NotJson;
    return Answer::Welcome;
}

} // namespace panel
