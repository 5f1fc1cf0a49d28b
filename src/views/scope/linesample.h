#pragma once

#include <QtGlobal>

/// Stretches \a step cycles of a source of \a size samples, which holds \a cycles cycles, onto \a n points of \a dst;
/// in between lines are drawn, values are cut towards zero. Reads inside the source whatever the numbers are; nothing
/// is written when one of them is below 1.
void lineSample(qint16 *dst, const qint16 *src, int n, int step, int size, int cycles);
