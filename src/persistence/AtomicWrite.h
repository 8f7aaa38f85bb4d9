// The one way in which the program writes a file: whole or not at all.
#pragma once

#include <filesystem>
#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// Gives a file new bytes in one step: they are written beside it, flushed to disk and renamed over
/// it, so that at any moment the old file or the new one stands there. A new file is made where
/// none is. False, with nothing changed and nothing left behind, if that can't be done: the folder
/// is missing, a folder stands in the file's place, file or folder can't be written. What a process
/// that was killed meanwhile left beside the file goes with the next one that is written there.
[[nodiscard]] bool WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes,
                                       const FileSystem& system = NativeFileSystem());

}  // namespace tarvelin
