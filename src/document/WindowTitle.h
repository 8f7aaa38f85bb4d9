// The caption of a window that shows a plan.
#pragma once

#include <filesystem>
#include <string>

namespace tarvelin {

/// Without a file.
inline constexpr const char* kWindowTitle = "Tarvelin  |  Kelva Aufbau-Simulator";

/// With the name of the plan's file, without its folders.
[[nodiscard]] std::string WindowTitleFor(const std::filesystem::path& File);

}  // namespace tarvelin
