// The layout of the JSON that the program writes.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "model/Resource.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// A table has a line for each of its rows: an array or object of plain values stands on one line,
/// any other has a line for each member, as the document itself always has. Levels are indented by
/// a blank; no line end at the end.
[[nodiscard]] std::string ReadableJson(const nlohmann::json& document);

/// Adds the members "Metall", "Kristall" and "Deuterium", with `suffix` after each name, as texts
/// with four decimals.
void AddResources(nlohmann::json& object, const PerResource<FixedPoint>& amounts,
                  const std::string& suffix = "");

}  // namespace tarvelin
