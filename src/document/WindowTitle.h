// The caption of a window that shows a plan.
#pragma once

#include <filesystem>
#include <string>

namespace tarvelin {

/// With the name of the plan's file, without its folders.
[[nodiscard]] std::string WindowTitleFor(const std::filesystem::path& File);

}  // namespace tarvelin
