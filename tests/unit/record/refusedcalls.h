#pragma once

/// Calls of the system that the tests of outputs let fail. Those of the test's program come before the C library's.
namespace RefusedCalls {

extern int flags; // why a new name is refused that is given with flags; 0: it is not
extern int plain; // of the new names given without, the one that is refused for an error of the disk; -1: none

} // namespace RefusedCalls
