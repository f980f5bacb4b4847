#pragma once

#include <filesystem>
#include <string_view>

#include "OpenFile.h"

namespace seek {

/// Puts `contents` in the place of the regular file `read`, which was opened at `path`. No step of it loses
/// the file:
///
/// - The new text is written to a temporary file in the same folder, brought to the disk, and takes the
///   file's name in one step. Whoever opens the file sees all of the old text or all of the new one.
/// - The new file has the owner, the group, the mode and the access list of the old one.
/// - What was deleted, replaced or changed since it was opened is left so. Where the file system cannot
///   exchange two names, what happens to the file in the very moment of the last step is lost.
/// - A signal that ends the program does so when the temporary file is gone; SIGKILL and those of a crash,
///   as SIGSEGV, leave it behind.
///
/// Throws a FileError when something stands in the way, or `std::bad_alloc`. The file is then as it was,
/// unless only the last step failed, which brings the folder to the disk.
void replaceFile(const std::filesystem::path& path, const OpenFile& read, std::string_view contents);

} // namespace seek
