// Bytes of a Modbus TCP connection. The first byte says in what pieces the rest arrives. Every frame must get exactly
// one answer of the same transaction, and nothing may be answered twice or not at all.
#include "services/modbusframer.h"
#include "services/modbusregisters.h"
#include "services/modbusresponder.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

/// A responder whose client is the other end of a socket pair.
struct Bench
{
    Bench() : context(modbus_new_tcp(nullptr, 0)), responder(context, registers)
    {
        modbus_set_response_timeout(context, 0, 1000);
        if (::socketpair(AF_UNIX, SOCK_STREAM, 0, pair) != 0)
            std::abort();
        ::fcntl(pair[1], F_SETFL, O_NONBLOCK);
        modbus_set_socket(context, pair[0]);
        registers.mb_mapping_add_map(0, 50);
        registers.mb_mapping_add_map(100, 172);
        registers.mb_mapping_add_map(kScopeStart, kScopeRegisters);
        registers.openBigData();
        if (!std::freopen("/dev/null", "w", stdout)) // a line for every request
            std::abort();
    }

    modbus_t *context;
    ModbusRegisters registers;
    ModbusResponder responder;
    int pair[2] = { -1, -1 };
};

void checkAnswer(int socket, const quint8 *frame)
{
    quint8 answer[512];
    const ssize_t got = ::recv(socket, answer, sizeof answer, 0);
    if (got < 9 || got != 6 + (answer[4] << 8 | answer[5]))
        std::abort(); // none, a torn one, or two
    if (std::memcmp(answer, frame, 2) != 0 || (answer[7] & 0x7F) != (frame[7] & 0x7F))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static auto *bench = new Bench; // for the life of the process: it is the same server for every master
    if (size == 0)
        return 0;
    const size_t piece = size_t(data[0]) + 1;
    ModbusFramer framer;
    framer.clear();
    bench->responder.clearLock();
    for (size_t at = 1; at < size && !framer.isBroken();) {
        const size_t bytes = qMin(qMin(piece, size - at), size_t(framer.room()));
        std::memcpy(framer.space(), data + at, bytes);
        framer.filled(int(bytes));
        at += bytes;
        const quint8 *frame = nullptr;
        int length = 0;
        while (framer.next(&frame, &length)) {
            if (length < 8 || length > 260 || !bench->responder.answer(frame, length))
                std::abort();
            checkAnswer(bench->pair[1], frame);
        }
        if (framer.room() == 0)
            std::abort(); // no room for the rest of a frame
    }
    return 0;
}
