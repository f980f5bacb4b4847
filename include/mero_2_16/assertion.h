#pragma once

#include "tarv_3_3/export.h"

/// What happens when a host breaks a contract, such as asking a value for another kind than it has.
namespace MERO_2_16 {

/// Receives a broken assertion: the failed expression, or a mistake in the declarations of a typed program,
/// as text, and where in the library it was found. Copy the text to keep it: a mistake in declarations lives
/// only as long as the program.
using assertion_handler_t = void (*)(const char* expression, const char* file, int line);

/// Installs `handler` for the whole process and returns the one that it replaces.
/// Null installs the default handler, which prints the expression to standard error and aborts.
/// A handler may return; the operation that failed then says in its own contract what it yields.
/// Not synchronised: install it before other threads use the library.
TARV_API assertion_handler_t set_assertion_handler(assertion_handler_t handler);

/// Calls the installed handler.
TARV_API void report_assertion(const char* expression, const char* file, int line);

} // namespace MERO_2_16
