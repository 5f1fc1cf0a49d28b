#pragma once

#include <chrono>
#include <condition_variable>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>

/// A card that takes no more of a copy than so many pieces while this lives: a test finds the copy under way however
/// slowly it looks. Whoever should let it go on may fail to: after a minute it goes on by itself.
class HeldCopy
{
public:
    explicit HeldCopy(int pieces) { set(pieces); }
    ~HeldCopy() { release(); }
    HeldCopy(const HeldCopy &) = delete;
    HeldCopy &operator=(const HeldCopy &) = delete;

    /// From now on so many pieces more.
    void let(int pieces) { set(pieces); }
    void release() { set(kAll); }

    /// Behind each piece.
    static void pass()
    {
        std::unique_lock<std::mutex> lock(s_mutex);
        if (!s_changed.wait_for(lock, std::chrono::seconds(60), [] { return s_left != 0; }))
            s_left = kAll;
        if (s_left > 0)
            --s_left;
    }

private:
    static constexpr int kAll = -1;

    static void set(int pieces)
    {
        const std::lock_guard<std::mutex> lock(s_mutex);
        s_left = pieces;
        s_changed.notify_all();
    }

    static inline std::mutex s_mutex;
    static inline std::condition_variable s_changed;
    static inline int s_left = kAll; // pieces
};

/// Stands before the system's call that brings each piece of a copy to the card.
extern "C" int sync_file_range(int fd, off64_t offset, off64_t length, unsigned int flags)
{
    using Call = int(int, off64_t, off64_t, unsigned int);
    static const auto real = reinterpret_cast<Call *>(::dlsym(RTLD_NEXT, "sync_file_range"));
    HeldCopy::pass();
    return real(fd, offset, length, flags);
}
