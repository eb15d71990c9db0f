// SPDX-License-Identifier: Apache-2.0
#include "HeapUse.h"

#include <cstddef>

#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
#include <malloc.h>
#endif

extern "C" {
/// That of the sanitizers, which replace the heap of the C library; null without them.
[[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();
}

std::optional<qint64> HeapUse::bytes()
{
    if (__sanitizer_get_current_allocated_bytes)
        return qint64(__sanitizer_get_current_allocated_bytes());
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    // Another heap that replaces the C library's leaves the figure at 0.
    const std::size_t inUse = mallinfo2().uordblks;
    if (inUse > 0)
        return qint64(inUse);
#endif
    return std::nullopt;
}
