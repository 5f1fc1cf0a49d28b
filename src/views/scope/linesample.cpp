#include "views/scope/linesample.h"

#include <algorithm>

void lineSample(qint16 *dst, const qint16 *src, int n, int step, int size, int cycles)
{
    if (n < 1 || step < 1 || size < 1 || cycles < 1)
        return;
    dst[0] = src[0];
    if (n == 1)
        return;

    const int last = size - 1;
    const float span = float(step) * float(size / cycles);
    const float delta = span / float(n - 1);
    for (int i = 1; i < n; ++i) {
        const float p = i * delta;
        const int a = int(std::min(p, float(last)));
        const int b = int(std::min(p + 0.999f, float(last)));
        if (a == b)
            dst[i] = src[a];
        else
            dst[i] = qint16(src[a] + (p - a) / (b - a) * (src[b] - src[a]));
    }
}
