#pragma once

#include <string>

namespace tarv_program {

/// Writes to standard output. Throws `Failure` when it cannot be written.
void print(const std::string& text);

/// Writes a whole file. Throws `Failure` when that fails.
void writeFile(const std::string& path, const std::string& contents);

/// As 2026-11-22: the day that SOURCE_DATE_EPOCH names, so that builds can be repeated, or else today.
std::string dateOfToday();

} // namespace tarv_program
