#pragma once

/// Marks what the shared library exports; everything else stays hidden in it.
#if defined(__GNUC__)
#define TARV_API __attribute__((visibility("default")))
#else
#define TARV_API
#endif
