#pragma once

/// Calls of the system that the tests of outputs let fail: refusedcalls.cpp has functions of their names, which stand
/// before those of the C library. A reason is a number of errno; 0: the call goes through.
struct RefusedCalls
{
    int renameWithFlags = 0; // reason of each
    int plainRename = -1; // which of those without flags has an error of the disk, counted down to 0; -1: none
    int nextWrite = 0; // reason
    bool nextWriteTakesNothing = false; // and tells no error
    int nextClose = 0; // reason
    int sync = 0; // reason of each
};

extern RefusedCalls g_refused;
