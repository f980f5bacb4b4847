#pragma once

/// `TARV_API` marks what the shared library exports; everything else stays hidden in it. `TARV_HIDDEN` marks
/// the members of an exported class that only the library itself calls.
#if defined(__GNUC__)
#define TARV_API __attribute__((visibility("default")))
#define TARV_HIDDEN __attribute__((visibility("hidden")))
#else
#define TARV_API
#define TARV_HIDDEN
#endif
