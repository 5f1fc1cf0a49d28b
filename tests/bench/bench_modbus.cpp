// Latency of Modbus reads as a master sees it, and processor time of the server, beside a bare libmodbus server and a
// small Python one, each in a process of its own on this machine, asked in turn. The server of the program is published
// to meanwhile as by a live stream. Eight requests in one segment show whether answers wait for each other.
#include "services/modbusblocks.h"
#include "services/modbusserver.h"
#include "unit/services/modbusclient.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

namespace {

constexpr int kRounds = 20;
constexpr int kRequests = 1000; // of one round
constexpr int kPipelined = 100; // bursts of one round
constexpr int kBurst = 8;

double now()
{
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now().time_since_epoch()).count(); // us
}

/// A server in a child process that tells its port through a pipe.
struct Peer
{
    std::string name;
    pid_t process = -1;
    quint16 port = 0;
    std::unique_ptr<ModbusClient> client;
    std::vector<double> single[2]; // us, 50 and 125 registers
    std::vector<double> burst; // us for all eight
    double processorTime = 0; // us a request
    int requests = 0;
};

Peer start(const std::string &name, const std::function<void(int)> &serve)
{
    Peer peer;
    peer.name = name;
    int ends[2];
    if (::pipe(ends) != 0)
        return peer;
    std::fflush(stdout);
    peer.process = ::fork();
    if (peer.process == 0) {
        ::close(ends[0]);
        if (std::freopen("/dev/null", "w", stdout))
            std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
        serve(ends[1]);
        ::_exit(0);
    }
    ::close(ends[1]);
    char text[16] = {};
    if (::read(ends[0], text, sizeof text - 1) > 0)
        peer.port = quint16(std::atoi(text));
    ::close(ends[0]);
    return peer;
}

void tellPort(int pipe, int port)
{
    ::dprintf(pipe, "%d\n", port);
    ::close(pipe);
}

void serveOurs(int pipe)
{
    auto registers = std::make_shared<ModbusRegisters>();
    for (const __modbus_data_header *block : modbusBlocks())
        registers->mb_mapping_add_map(block->start, block->length);
    ModbusServer server(0, registers);
    tellPort(pipe, server.port());
    for (;;) { // as the datagrams of a live stream come: five aggregations and waves a second
        for (const __modbus_data_header *block : modbusBlocks()) {
            if (ModbusRegisters::startsBigBlock(int(block->start)))
                registers->mb_set_bd_buffer(block->start, block->length, block + 1);
            else
                registers->mb_mapping_setdata(block->start, block->length, block + 1);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
}

void serveBare(int pipe)
{
    modbus_t *context = modbus_new_tcp(nullptr, 0);
    modbus_mapping_t *map = modbus_mapping_new_start_address(0, 0, 0, 0, 0, 0, 0, 300);
    int listening = modbus_tcp_listen(context, 5);
    sockaddr_in address = {};
    socklen_t size = sizeof address;
    ::getsockname(listening, reinterpret_cast<sockaddr *>(&address), &size);
    tellPort(pipe, ntohs(address.sin_port));
    uint8_t request[MODBUS_TCP_MAX_ADU_LENGTH];
    for (;;) {
        modbus_tcp_accept(context, &listening);
        for (int length; (length = modbus_receive(context, request)) > 0;)
            modbus_reply(context, request, length, map);
        modbus_close(context);
    }
}

const char *const kPythonServer = R"(
import os, socket, struct, sys
s = socket.socket(); s.bind(('127.0.0.1', 0)); s.listen(5)
os.write(int(sys.argv[1]), b'%d\n' % s.getsockname()[1]); os.close(int(sys.argv[1]))
while True:
    c, _ = s.accept(); c.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1); b = b''
    while True:
        d = c.recv(4096)
        if not d: break
        b += d
        while len(b) >= 12:
            t, p, l, u, f, a, n = struct.unpack('>HHHBBHH', b[:12]); b = b[6 + l:]
            c.sendall(struct.pack('>HHHBBB', t, 0, 3 + 2 * n, u, f, 2 * n) + bytes(2 * n))
)";

void servePython(int pipe)
{
    const std::string descriptor = std::to_string(pipe);
    ::execlp("python3", "python3", "-c", kPythonServer, descriptor.c_str(), nullptr);
}

/// Microseconds until `count` requests sent in one segment are answered.
double ask(Peer &peer, int registers, int count)
{
    QByteArray requests;
    for (int i = 0; i < count; ++i)
        requests += modbusFrame(quint16(i), readInput(100, registers));
    const int expected = count * (9 + 2 * registers);
    const double begin = now();
    const bool whole = peer.client->send(requests) && peer.client->receive(expected).size() == expected;
    peer.requests += count;
    return whole ? now() - begin : 1e9;
}

double percentile(std::vector<double> values, double p)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[size_t(p * double(values.size() - 1))];
}

void stop(Peer &peer)
{
    peer.client.reset();
    ::kill(peer.process, SIGKILL);
    rusage usage = {};
    ::wait4(peer.process, nullptr, 0, &usage);
    const double used = 1e6 * double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec)
        + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
    peer.processorTime = peer.requests ? used / peer.requests : 0;
}

void ratio(const char *what, double figure, double limit, double goal)
{
    const double value = limit > 0 ? figure / limit : 0;
    if (goal > 0)
        std::printf("ratio %s: %.2f (goal: at most %.2f)%s\n", what, value, goal, value <= goal ? "" : " MISSED");
    else
        std::printf("ratio %s: %.2f\n", what, value);
}

} // namespace

int main()
{
    std::vector<Peer> peers;
    peers.push_back(start("quvera", serveOurs));
    peers.push_back(start("bare libmodbus", serveBare));
    peers.push_back(start("python", servePython));
    if (peers.back().port == 0) {
        stop(peers.back());
        peers.pop_back();
        std::printf("no python3: left out\n");
    }
    for (Peer &peer : peers) {
        peer.client = std::make_unique<ModbusClient>(peer.port);
        ask(peer, 125, 10); // warm
    }
    const int registers[] = { 50, 125 };
    for (int round = 0; round < kRounds; ++round) {
        for (Peer &peer : peers) {
            for (int k = 0; k < 2; ++k) {
                for (int i = 0; i < kRequests; ++i)
                    peer.single[k].push_back(ask(peer, registers[k], 1));
            }
            // The bare server delays answers to a burst by 40 ms: a few show it.
            for (int i = 0; i < (peer.name == "bare libmodbus" ? 1 : kPipelined); ++i)
                peer.burst.push_back(ask(peer, 125, kBurst));
        }
    }
    for (Peer &peer : peers) {
        stop(peer);
        std::printf("%-15s 50: p50 %6.1f us, p99 %6.1f us  125: p50 %6.1f us, p99 %6.1f us  8 in a row: p50 %8.1f us, "
                    "max %8.1f us  server %5.1f us a request\n",
                    peer.name.c_str(), percentile(peer.single[0], 0.5), percentile(peer.single[0], 0.99),
                    percentile(peer.single[1], 0.5), percentile(peer.single[1], 0.99), percentile(peer.burst, 0.5),
                    percentile(peer.burst, 1.0), peer.processorTime);
    }
    const Peer &ours = peers[0];
    const Peer &bare = peers[1];
    for (int k = 0; k < 2; ++k) {
        const std::string what = "Modbus, " + std::to_string(registers[k]) + " registers, ";
        ratio((what + "p50 / bare libmodbus").c_str(), percentile(ours.single[k], 0.5), percentile(bare.single[k], 0.5),
              1.05);
        ratio((what + "p99 / bare libmodbus").c_str(), percentile(ours.single[k], 0.99),
              percentile(bare.single[k], 0.99), 1.5);
    }
    ratio("Modbus, server time a request / bare libmodbus", ours.processorTime, bare.processorTime, 0);
    ratio("Modbus, eight in a row / eight single requests (no Nagle step)", percentile(ours.burst, 0.5),
          kBurst * percentile(ours.single[1], 0.5), 1.0);
    if (peers.size() > 2) {
        ratio("Modbus, 125 registers, p50 / python", percentile(ours.single[1], 0.5),
              percentile(peers[2].single[1], 0.5), 0);
    }
    return 0;
}
