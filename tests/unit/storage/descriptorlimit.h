#pragma once

#include <sys/resource.h>

/// While it lives, this process gets no descriptor of this number or above it: with 0, none at all.
class DescriptorLimit
{
public:
    explicit DescriptorLimit(rlim_t number)
    {
        ::getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit few { number, m_before.rlim_max };
        ::setrlimit(RLIMIT_NOFILE, &few);
    }
    ~DescriptorLimit() { ::setrlimit(RLIMIT_NOFILE, &m_before); }
    DescriptorLimit(const DescriptorLimit &) = delete;
    DescriptorLimit &operator=(const DescriptorLimit &) = delete;

private:
    rlimit m_before {};
};
