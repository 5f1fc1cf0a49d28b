#include "panel/panelserver.h"

#include "panel/connection.h"
#include "panel/connectionqueue.h"
#include "panel/screenfeed.h"
#include "remote/remoteclient.h"

#include <QFile>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <sys/socket.h>
#include <sys/time.h>

namespace panel {

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds kBeat(2000);
constexpr double kLateMs = 1500;
constexpr int kBacklog = 128;

struct PageFile
{
    const char *path;
    const char *file; // of the resources
    const char *type;
};

constexpr PageFile kPage[] = {
    { "/", ":/panel/index.html", "text/html; charset=utf-8" },
    { "/panel.css", ":/panel/panel.css", "text/css; charset=utf-8" },
    { "/panel.js", ":/panel/panel.js", "text/javascript; charset=utf-8" },
    { "/controls.js", ":/panel/controls.js", "text/javascript; charset=utf-8" },
    { "/help.js", ":/panel/help.js", "text/javascript; charset=utf-8" },
    { "/icon.svg", ":/panel/icon.svg", "image/svg+xml" },
};

void answer(httplib::Response &response, int status, const QString &why)
{
    response.status = status;
    response.set_content(why.toStdString() + '\n', "text/plain; charset=utf-8");
}

double nowMs()
{
    return double(std::chrono::duration_cast<milliseconds>(Clock::now().time_since_epoch()).count());
}

/// A page says when its key was pressed, by the clock that the beats tell it. One that lay on the way, before a panel
/// that stood still or a network that was gone, is not pressed into what the screen has become meanwhile.
bool isLate(const QJsonObject &wish)
{
    const QJsonValue at = wish.value(QStringLiteral("at"));
    return !at.isUndefined() && std::abs(nowMs() - at.toDouble()) > kLateMs;
}

void reuseAddress(int socket)
{
    // The address alone: a port that another program serves has to count as taken.
    const int yes = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
}

} // namespace

PanelServer::PanelServer(Bulletin &bulletin, Actions actions, Guide guide)
    : m_bulletin(bulletin), m_actions(std::move(actions)), m_guide(std::move(guide)), m_admission(0, {}, {})
{
    new_task_queue = [] { return new ConnectionQueue; };
    set_socket_options(reuseAddress);
    set_payload_max_length(Connection::kLongestBody);
    set_default_headers(
        { { "Content-Security-Policy",
            "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data:; connect-src 'self'; "
            "base-uri 'none'; form-action 'none'; frame-ancestors 'none'" },
          { "X-Content-Type-Options", "nosniff" },
          { "X-Frame-Options", "DENY" },
          { "Referrer-Policy", "no-referrer" },
          { "Cross-Origin-Resource-Policy", "same-origin" },
          { "Cross-Origin-Opener-Policy", "same-origin" },
          { "Cache-Control", "no-store" } });
    set_pre_routing_handler(
        [this](const Request &request, Response &response) { return admitOrRefuse(request, response); });
    Post("/key", [this](const Request &request, Response &response) { pressKey(request, response); });
    Post("/control", [this](const Request &request, Response &response) { control(request, response); });
}

bool PanelServer::bind(const std::string &address, int port)
{
    m_port = port;
    if (port == 0)
        m_port = bind_to_any_port(address);
    else if (!bind_to_port(address, port))
        return false;
    return m_port > 0 && ::listen(svr_sock_, kBacklog) == 0;
}

void PanelServer::admit(const std::string &token, const std::vector<std::string> &names)
{
    m_admission = Admission(m_port, token, names);
}

void PanelServer::serve()
{
    listen_after_bind();
}

void PanelServer::stop()
{
    m_bulletin.close();
    ::shutdown(svr_sock_, SHUT_RDWR); // the library's stop does nothing until serve() is under way
    httplib::Server::stop();
}

bool PanelServer::process_and_close_socket(socket_t socket)
{
    Connection connection(socket);
    const int status = ConnectionQueue::isFull() ? 503 : connection.readRequest(ConnectionQueue::somebodyWaits);
    if (status > 0)
        connection.refuse(status);
    if (status != 0)
        return false;
    connection.beginPiece();
    bool closed = false;
    return process_request(connection, true, closed, nullptr);
}

httplib::Server::HandlerResponse PanelServer::admitOrRefuse(const Request &request, Response &response)
{
    Admission::Request asked;
    asked.host = request.get_header_value_count("Host") == 1 ? request.get_header_value("Host") : std::string();
    asked.origin = request.get_header_value("Origin");
    asked.site = request.get_header_value("Sec-Fetch-Site");
    asked.mode = request.get_header_value("Sec-Fetch-Mode");
    asked.cookie = request.get_header_value("Cookie");
    asked.authorization = request.get_header_value("Authorization");
    asked.token = request.get_param_value("token");
    asked.changes = request.method != "GET" && request.method != "HEAD";
    asked.contentType = request.get_header_value("Content-Type");
    switch (m_admission.judge(asked)) {
    case Admission::Answer::Welcome:
        break;
    case Admission::Answer::Enter:
        response.set_header("Set-Cookie", m_admission.cookie() + "; Path=/; HttpOnly; SameSite=Lax");
        response.set_redirect("/", 303);
        return HandlerResponse::Handled;
    case Admission::Answer::ForeignHost:
        answer(response, 421, QStringLiteral("The panel does not go by that name."));
        return HandlerResponse::Handled;
    case Admission::Answer::ForeignPage:
        answer(response, 403, QStringLiteral("Another page asks for this."));
        return HandlerResponse::Handled;
    case Admission::Answer::NoToken:
        answer(response, 401, QStringLiteral("Open the address that the panel printed: it ends with a token."));
        return HandlerResponse::Handled;
    case Admission::Answer::NotJson:
        answer(response, 415, QStringLiteral("application/json is expected."));
        return HandlerResponse::Handled;
    }
    if (asked.changes)
        return HandlerResponse::Unhandled;
    if (!get(request, response))
        answer(response, 404, QStringLiteral("There is no such page."));
    return HandlerResponse::Handled;
}

bool PanelServer::sendPage(const std::string &path, Response &response) const
{
    for (const PageFile &page : kPage) {
        if (path != page.path)
            continue;
        QFile file(QString::fromLatin1(page.file));
        if (!file.open(QIODevice::ReadOnly))
            return false;
        response.status = 200;
        response.set_content(file.readAll().toStdString(), page.type);
        return true;
    }
    std::string type;
    const QByteArray bytes = m_guide.read(path, &type);
    if (bytes.isNull())
        return false;
    response.status = 200;
    response.set_content(bytes.toStdString(), type);
    return true;
}

// Paths are compared, not matched: a pattern costs what the peer wants it to.
bool PanelServer::get(const Request &request, Response &response)
{
    if (request.path == "/events") {
        stream(response);
        return true;
    }
    if (request.path == "/controls") {
        response.status = 200;
        response.set_content(m_actions.controls().toStdString(), "application/json");
        return true;
    }
    if (request.path == "/screen.png") {
        const QByteArray png = m_actions.picture();
        if (png.isEmpty())
            return false;
        response.status = 200;
        response.set_content(png.toStdString(), "image/png");
        return true;
    }
    return sendPage(request.path, response);
}

void PanelServer::stream(Response &response)
{
    if (++m_viewers > kMostViewers) {
        --m_viewers;
        response.set_header("Retry-After", "5");
        answer(response, 503, QStringLiteral("Too many look on already"));
        return;
    }
    response.status = 200;
    const auto reader = std::make_shared<Bulletin::Reader>(m_bulletin);
    response.set_content_provider(
        "text/event-stream",
        [this, reader, nextBeat = Clock::now()](size_t, httplib::DataSink &sink) mutable {
            const auto wait = std::chrono::ceil<milliseconds>(nextBeat - Clock::now());
            const auto news = m_bulletin.news(*reader, std::max(wait, milliseconds(0)));
            if (m_bulletin.isClosed())
                return false;
            Connection::current()->beginPiece();
            bool sent = true;
            for (const Bulletin::Message &message : news)
                sent = sent && sink.write(message->data(), message->size());
            if (Clock::now() < nextBeat)
                return sent;
            // The page knows by it that the panel is there, the panel that somebody still looks.
            nextBeat = Clock::now() + kBeat;
            const std::string beat
                = eventText("beat", QJsonDocument(QJsonObject { { "at", nowMs() } }).toJson(QJsonDocument::Compact));
            return sent && sink.write(beat.data(), beat.size());
        },
        [this](bool) { --m_viewers; });
}

void PanelServer::pressKey(const Request &request, Response &response)
{
    const QJsonObject wish = QJsonDocument::fromJson(QByteArray::fromStdString(request.body)).object();
    const int code = RemoteClient::keyCode(wish.value(QStringLiteral("key")).toString());
    if (!RemoteClient::isKey(code))
        answer(response, 400, QStringLiteral("There is no such key."));
    else if (isLate(wish))
        answer(response, 409, QStringLiteral("The key came too late"));
    else if (!m_actions.pressKey(code))
        answer(response, 429, QStringLiteral("Too many keys wait."));
    else
        response.status = 204;
}

void PanelServer::control(const Request &request, Response &response)
{
    const QJsonDocument wish = QJsonDocument::fromJson(QByteArray::fromStdString(request.body));
    if (isLate(wish.object()))
        return answer(response, 409, QStringLiteral("That came too late"));
    const QString why = wish.isObject() ? m_actions.control(wish.object()) : QStringLiteral("An object is expected.");
    if (why.isEmpty())
        response.status = 204;
    else
        answer(response, 400, why);
}

} // namespace panel
