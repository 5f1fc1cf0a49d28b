// UDP requests: whatever a datagram holds, the remote control goes on and answers the next identification.
#include "services/iremote.h"

#include <QApplication>

#include <arpa/inet.h>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <sys/socket.h>
#include <unistd.h>

namespace {

int connectedSocket()
{
    static int argc = 1;
    static char name[] = "fuzz_remote";
    static char *argv[] = { name, nullptr };
    static const auto *application = new QApplication(argc, argv); // for the life of the process
    Q_UNUSED(application)
    std::setlocale(LC_NUMERIC, "C");
    static const auto *remote = new IRemote;
    Q_UNUSED(remote)
    while (IRemote::port() == 0)
        usleep(1000);
    const int descriptor = socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(IRemote::port());
    const timeval patience = { 30, 0 };
    setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    if (connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        abort();
    return descriptor;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const int descriptor = connectedSocket();
    if (size > 65507)
        return 0;
    send(descriptor, data, size, 0);
    static const char identify[12] = {};
    send(descriptor, identify, sizeof identify, 0);
    // The answer to the input, if it has one, comes first; the identification's own has the command 0.
    for (;;) {
        char answer[2048];
        const ssize_t received = recv(descriptor, answer, sizeof answer, 0);
        if (received < 0)
            abort();
        uint32_t command = 1;
        if (received == 32)
            std::memcpy(&command, answer, 4);
        if (command == 0)
            break;
    }
    QCoreApplication::processEvents();
    return 0;
}
