// SPDX-License-Identifier: Apache-2.0
#include "HeapUse.h"

#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
#include <malloc.h>
#endif

std::optional<qint64> HeapUse::bytes()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    // A heap that replaces the C library's, such as a sanitizer's, leaves the figure at 0.
    const std::size_t inUse = mallinfo2().uordblks;
    if (inUse > 0)
        return qint64(inUse);
#endif
    return std::nullopt;
}
