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

namespace processor {

/// Four numbers in vector registers (an extension of GCC and Clang), for the loops that a compiler does not find by
/// itself. Hand them on by reference: by value they would need AVX in the caller.
typedef double Four __attribute__((vector_size(32)));

/// columns[i][j] = rows[j][i].
__attribute__((always_inline)) inline void transpose(const Four *rows, Four *columns)
{
    const Four even01 = __builtin_shufflevector(rows[0], rows[1], 0, 4, 2, 6);
    const Four odd01 = __builtin_shufflevector(rows[0], rows[1], 1, 5, 3, 7);
    const Four even23 = __builtin_shufflevector(rows[2], rows[3], 0, 4, 2, 6);
    const Four odd23 = __builtin_shufflevector(rows[2], rows[3], 1, 5, 3, 7);
    columns[0] = __builtin_shufflevector(even01, even23, 0, 1, 4, 5);
    columns[1] = __builtin_shufflevector(odd01, odd23, 0, 1, 4, 5);
    columns[2] = __builtin_shufflevector(even01, even23, 2, 3, 6, 7);
    columns[3] = __builtin_shufflevector(odd01, odd23, 2, 3, 6, 7);
}

} // namespace processor
