#pragma once

#include <string>
#include <vector>

namespace panel {

/// Who may ask for what: keeps foreign web pages and, beyond the machine, strangers from the panel's keys.
///
/// Host names the panel itself (an address, "localhost", a name that was given), or a page elsewhere has its own name
/// lead here. Origin, where a browser sends it, is the panel's own. With a token every request shows it, in the cookie
/// that the address with the token sets.
class Admission
{
public:
    struct Request
    {
        std::string host; // header fields; empty when there is none
        std::string origin;
        std::string site; // Sec-Fetch-Site
        std::string mode; // Sec-Fetch-Mode
        std::string cookie;
        std::string authorization;
        std::string token; // of the address
        bool changes = false; // presses a key, changes the supply
        std::string contentType;
    };
    enum class Answer {
        Welcome,
        Enter, // the token of the address is right: it goes into a cookie
        ForeignHost,
        ForeignPage,
        NoToken,
        NotJson
    };

    /// @param token empty: none is asked for. @param names host names besides addresses and "localhost".
    Admission(int port, std::string token, std::vector<std::string> names);

    Answer judge(const Request &request) const;
    /// The cookie that lets in from now on.
    std::string cookie() const;

private:
    bool isOwnHost(const std::string &host) const;
    bool showsToken(const Request &request) const;

    int m_port;
    std::string m_token;
    std::vector<std::string> m_names;
};

} // namespace panel
