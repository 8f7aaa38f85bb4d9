// The program's name and the file's.
#include "document/WindowTitle.h"

#include "util/Utf8.h"

namespace tarvelin {

std::string WindowTitleFor(const std::filesystem::path& File) {
    return std::string(kWindowTitle) + "      ( " + PathToUtf8(File.filename()) + " )";
}

}  // namespace tarvelin
