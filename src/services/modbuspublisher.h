#pragma once

class UniTask;

/// Hands what the task measured to the Modbus slave. Main thread.
namespace ModbusPublisher {

/// Publishes from now on what \a task takes in.
void follow(UniTask *task);
/// The task is gone: its values read as zeros.
void clear();
/// Limit set in use and settings; at start and whenever the set-up is left.
void publishSettings();

} // namespace ModbusPublisher
