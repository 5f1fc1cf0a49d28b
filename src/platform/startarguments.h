#pragma once

/// What the program is called with.
class StartArguments
{
public:
    /// Ends the program when it is not to run: after its help or its version was asked for, or when an argument is none
    /// of the toolkit's. For the time before the static objects, some of which make their folders.
    static void settle(int argc, char **argv);
};
