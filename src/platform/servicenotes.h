#pragma once

/// Tells the service manager that started the program how it is doing: once that it is ready, and then, for as long as
/// its event loop turns, that it is alive, so that a program that stands still is started anew. Without such a manager,
/// as on a desk, nothing is done. Main thread, behind the making of the application object.
class ServiceNotes
{
public:
    static void begin();
};
