#pragma once

#include "panel/admission.h"
#include "panel/bulletin.h"
#include "panel/guide.h"

#include <QJsonObject>
#include <QString>

#include <atomic>
#include <functional>
#include <httplib.h>

namespace panel {

/// What the server hands on. Called in the threads of connections.
struct Actions
{
    /// Presses a key; false when too many wait.
    std::function<bool(int code)> pressKey;
    std::function<QByteArray()> picture;
    /// What there is besides the instrument, for the page to draw; empty on an instrument that is not on a desk.
    std::function<QByteArray()> controls;
    /// Does what a control asks for. Empty, or one line why not.
    std::function<QString(const QJsonObject &wish)> control;
};

/// The panel's page for browsers: the page itself, the stream of what is new, keys and controls.
class PanelServer : private httplib::Server
{
public:
    static constexpr int kMostViewers = 40;

    PanelServer(Bulletin &bulletin, Actions actions, Guide guide);
    /// Takes the address; false when it cannot be had.
    bool bind(const std::string &address, int port);
    int port() const { return m_port; }
    /// Who is let in; before serve().
    void admit(const std::string &token, const std::vector<std::string> &names);
    /// Serves until stop(), which may come first.
    void serve();
    /// Serves the one request of a connection, and closes it. Any thread.
    bool process_and_close_socket(socket_t socket) override;
    void stop();

private:
    using Request = httplib::Request;
    using Response = httplib::Response;

    HandlerResponse admitOrRefuse(const Request &request, Response &response);
    bool sendPage(const std::string &path, Response &response) const;
    bool get(const Request &request, Response &response);
    void stream(Response &response);
    void pressKey(const Request &request, Response &response);
    void control(const Request &request, Response &response);

    Bulletin &m_bulletin;
    Actions m_actions;
    Guide m_guide;
    Admission m_admission;
    std::atomic<int> m_viewers { 0 };
    int m_port = 0;
};

} // namespace panel
