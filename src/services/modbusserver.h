#pragma once

#include <QtGlobal>

#include <memory>
#include <thread>

class ModbusRegisters;

/// The Modbus TCP server: listens on all addresses and serves one client at a time from a thread of its own. No client
/// can stop it: it waits only for readiness of its sockets, and a client that does not take its answers is let go.
class ModbusServer
{
public:
    /// Starts the thread. Port 0: any free one, as port() tells.
    ModbusServer(quint16 port, std::shared_ptr<ModbusRegisters> registers);
    /// Asks the thread to end and waits at most a second for it.
    ~ModbusServer();
    ModbusServer(const ModbusServer &) = delete;
    ModbusServer &operator=(const ModbusServer &) = delete;

    /// The port that is listened on; waits for the thread to get that far. 0: listening failed. Any thread.
    quint16 port() const;

private:
    struct Shared;

    std::shared_ptr<Shared> m_shared; // outlives this object should the thread hang in a write to standard output
    std::thread m_thread;
};
