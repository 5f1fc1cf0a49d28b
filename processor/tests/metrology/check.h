#pragma once

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

/// A test harness of a page, so that the measuring library and its tests need nothing but a compiler and FFTW.
///
///   TEST(dipEndsAtItsSample) { CHECK(a == b); CHECK_NEAR(value, expected, tolerance); }
///   TEST_MAIN()
///
/// A failed check is printed with its place and its values, and the test goes on. The program runs the tests named on
/// its command line, or all, and ends with the number of failed tests (at most 125).
namespace check {

struct Test
{
    const char *name;
    std::function<void()> body;
};

inline std::vector<Test> &tests()
{
    static std::vector<Test> list;
    return list;
}

inline int &failures()
{
    static int count = 0;
    return count;
}

struct Registration
{
    Registration(const char *name, void (*body)()) { tests().push_back({ name, body }); }
};

/// Prints at most twenty failures of a test: a wrong loop need not fill the screen.
inline void fail(const char *file, int line, const std::string &text)
{
    if (++failures() <= 20)
        std::printf("  %s:%d: %s\n", file, line, text.c_str());
}

inline void near(const char *file, int line, const char *expression, double value, double expected, double tolerance)
{
    if (std::fabs(value - expected) <= tolerance)
        return; // not a number fails
    char text[300];
    std::snprintf(text, sizeof(text), "%s is %.9g, expected %.9g within %.3g (off by %.3g)", expression, value,
                  expected, tolerance, value - expected);
    fail(file, line, text);
}

inline int run(int argc, char **argv)
{
    int failed = 0;
    int ran = 0;
    for (const Test &test : tests()) {
        bool wanted = argc < 2;
        for (int i = 1; i < argc; ++i)
            wanted = wanted || std::strcmp(argv[i], test.name) == 0;
        if (!wanted)
            continue;
        failures() = 0;
        test.body();
        ++ran;
        failed += failures() > 0 ? 1 : 0;
        std::printf("%s %s\n", failures() > 0 ? "FAIL" : "PASS", test.name);
        std::fflush(stdout);
    }
    std::printf("%d of %d tests passed\n", ran - failed, ran);
    return ran == 0 ? 125 : std::min(failed, 125);
}

} // namespace check

#define TEST(name)                                                                                                     \
    static void name();                                                                                                \
    static const check::Registration registration_##name(#name, name);                                                 \
    static void name()

#define CHECK(condition)                                                                                               \
    do {                                                                                                               \
        if (!(condition))                                                                                              \
            check::fail(__FILE__, __LINE__, #condition);                                                               \
    } while (false)

#define CHECK_NEAR(value, expected, tolerance) check::near(__FILE__, __LINE__, #value, value, expected, tolerance)

#define TEST_MAIN()                                                                                                    \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        return check::run(argc, argv);                                                                                 \
    }
