#pragma once

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

namespace tarv_3_3::internal {

/// Whether another thread may be running. The question costs less than an atomic addition.
inline bool mayHaveThreads() {
#if __has_include(<sys/single_threaded.h>)
    return __libc_single_threaded == 0;
#else
    return true;
#endif
}

} // namespace tarv_3_3::internal
