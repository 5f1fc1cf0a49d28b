// The panel for browsers: the first byte says whom the rest is for. '1': a panel that asks for a token, '2': the reader
// of what a picture says, else a panel without a token. Whatever a connection says, it is answered or closed, and keys,
// controls and pictures are for those alone who may have them.
#include "fuzztarget.h"
#include "panel/controltable.h"
#include "panel/panelserver.h"
#include "panel/picturenotes.h"

#include <QJsonDocument>

#include <string>
#include <sys/socket.h>
#include <unistd.h>

using FuzzTarget::expect;

namespace {

const std::string kToken = "0123456789abcdefXYZ";
const QByteArray kPicture = "the picture";
constexpr size_t kMost = 100'000; // bytes that a connection holds before somebody reads them

struct Deeds
{
    int keys = 0;
    int controls = 0;
};

Deeds done;

panel::Actions actions()
{
    panel::Actions all;
    all.pressKey = [](int code) {
        expect(code >= 0 && code <= 51, "a key that there is not");
        ++done.keys;
        return true;
    };
    all.picture = [] { return kPicture; };
    all.controls = [] { return panel::controlsAsJson({ QStringLiteral("dip") }); };
    all.control = [](const QJsonObject &wish) {
        QString why;
        const QString command = panel::commandFor(wish, { QStringLiteral("dip") }, &why);
        expect(command.isEmpty() != why.isEmpty(), "a wish is a command or says why not");
        for (const QChar sign : command)
            expect(sign >= QLatin1Char(' ') && sign <= QLatin1Char('~'), "a command is one line");
        ++done.controls;
        return why;
    };
    return all;
}

/// A panel without a port: connections are handed to it.
panel::PanelServer *panelWith(const std::string &token)
{
    static panel::Bulletin closed;
    closed.close(); // a viewer's stream ends at once
    auto *server = new panel::PanelServer(closed, actions(), panel::Guide(QString()));
    server->admit(token, { "panel.workshop" });
    return server;
}

std::string answerTo(panel::PanelServer &server, const std::string &request)
{
    int ends[2];
    expect(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) == 0, "no connection can be made");
    expect(::send(ends[0], request.data(), request.size(), MSG_NOSIGNAL) == ssize_t(request.size()), "it is not taken");
    ::shutdown(ends[0], SHUT_WR);
    server.process_and_close_socket(ends[1]);
    std::string answer;
    char bytes[4096];
    for (ssize_t size = 0; (size = ::recv(ends[0], bytes, sizeof bytes, 0)) > 0;)
        answer.append(bytes, size_t(size));
    ::close(ends[0]);
    return answer;
}

bool holds(const std::string &text, const char *part)
{
    return text.find(part) != std::string::npos;
}

/// What stands before the first empty line: what follows is no header, whatever it looks like.
std::string headOf(const std::string &request)
{
    const size_t end = request.find("\n\r\n");
    return end == std::string::npos ? request : request.substr(0, end + 1);
}

void checkRequest(const std::string &request, bool isAsked)
{
    static panel::PanelServer *open = panelWith({}), *guarded = panelWith(kToken); // for the life of the process
    const std::string head = headOf(request);
    done = Deeds();
    const std::string answer = answerTo(isAsked ? *guarded : *open, request);
    expect(answer.empty() || answer.compare(0, 9, "HTTP/1.1 ") == 0, "an answer has a status");
    expect(answer.empty() || (answer[9] >= '2' && answer[9] <= '5'), "the status is none");
    expect(done.keys + done.controls <= 1, "one request does two things");
    if (done.keys + done.controls > 0) {
        expect(holds(request, "application/json"), "a form presses keys");
        expect(request.compare(0, 4, "GET ") != 0, "an address presses keys");
        expect(!holds(head, "\r\nContent-Encoding: gzip"), "a packed body is unpacked");
        expect(!holds(head, "\nTransfer-Encoding: chunked"), "a body comes in pieces");
    }
    const bool isInside = done.keys + done.controls > 0 || holds(answer, kPicture.constData());
    if (isAsked && request.find(kToken) == std::string::npos) {
        // The address may write it in other signs; it leads to a cookie and to nothing else.
        expect(!isInside, "somebody is let in without a token");
        expect(!holds(answer, kToken.c_str()) || holds(request, "%"), "the token is given away");
    }
    if (holds(head, "\r\nOrigin: http://evil.example\r\n"))
        expect(!isInside, "a foreign page is let in");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0 || size > kMost)
        return 0;
    if (data[0] == '2') {
        const QJsonObject notes = panel::notesOf(FuzzTarget::bytes(data + 1, size - 1));
        expect(notes.size() <= 32 && !QJsonDocument(notes).toJson().isEmpty(), "more notes than anybody writes");
        return 0;
    }
    checkRequest(std::string(reinterpret_cast<const char *>(data + 1), size - 1), data[0] == '1');
    return 0;
}
