#include "mero_2_16/assertion.h"

#include <cstdio>
#include <cstdlib>

namespace MERO_2_16 {

namespace {

void printAndAbort(const char* expression, const char* file, int line) {
    std::fprintf(stderr, "%s:%d: assertion failed: %s\n", file, line, expression);
    std::abort();
}

assertion_handler_t installedHandler = printAndAbort;

} // namespace

assertion_handler_t set_assertion_handler(assertion_handler_t handler) {
    const assertion_handler_t previous = installedHandler;
    installedHandler = handler != nullptr ? handler : printAndAbort;
    return previous;
}

void report_assertion(const char* expression, const char* file, int line) {
    installedHandler(expression, file, line);
}

} // namespace MERO_2_16
