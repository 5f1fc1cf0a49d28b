#pragma once

/// Marks a function with a hot loop: on x86-64 it is compiled twice, for any processor and for those with AVX2, and the
/// loader takes the one that fits. Neither uses fused multiply-add, so both give the same bits. Sanitizers run before
/// the loader's choice is made and get the plain function.
#if defined(__x86_64__) && defined(__gnu_linux__) && defined(__GNUC__) && !defined(__clang__)                          \
    && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define PROCESSOR_VECTOR_CODE __attribute__((target_clones("avx2", "default")))
#else
#define PROCESSOR_VECTOR_CODE
#endif
