// The only way the program writes a file: completely or not at all.
#pragma once

#include <filesystem>
#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// Replaces the content of a file, or makes it, in one step: the bytes go to a temporary file
/// beside it, are flushed to disk, and the file is renamed, so that at any moment either the old or
/// the new content is there. False, with nothing changed or left behind, if the folder is missing,
/// a folder has the file's name, or file or folder can't be written. A temporary file left by a
/// killed process is deleted by the next write in that folder.
[[nodiscard]] bool WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes,
                                       const FileSystem& system = NativeFileSystem());

}  // namespace tarvelin
