#pragma once

/// Calls of the system that the tests of outputs let fail. Those of the test's program come before the C library's.
namespace RefusedCalls {

extern int flags; // why a new name is refused that is given with flags; 0: it is not
extern int plain; // of the new names given without, the one that is refused for an error of the disk; -1: none
extern int write; // answer to the next piece: 0 for none of it taken, -EINTR for a signal; 1: as the system does
extern int close; // why the next file cannot be closed; 0: it can
extern int sync; // why the disk does not take what was written; 0: it does

} // namespace RefusedCalls
