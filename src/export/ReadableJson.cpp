// Writes a JSON value level by level.
#include "export/ReadableJson.h"

#include <algorithm>
#include <utility>

namespace tarvelin {

namespace {

using nlohmann::json;

void Append(std::string& text, const json& value, std::size_t depth) {
    if (!value.is_structured() || value.empty()) {
        text += value.dump();
        return;
    }
    const bool onOneLine = depth > 0 && std::ranges::none_of(value, &json::is_structured);
    const std::string gap(onOneLine ? 0 : depth, ' ');
    const char* const lineEnd = onOneLine ? "" : "\n";
    const char* between = lineEnd;
    text += value.is_array() ? "[" : "{";
    for (const auto& [key, member] : value.items()) {
        text += std::exchange(between, onOneLine ? ", " : ",\n") + gap + (onOneLine ? "" : " ");
        text += value.is_array() ? "" : json(key).dump() + ": ";
        Append(text, member, depth + 1);
    }
    text += lineEnd + gap + (value.is_array() ? "]" : "}");
}

}  // namespace

std::string ReadableJson(const json& document) {
    std::string text;
    Append(text, document, 0);
    return text;
}

void AddResources(json& object, const PerResource<FixedPoint>& amounts, const std::string& suffix) {
    for (const Resource resource : kResources) {
        object[std::string(kResourceNames[resource]) + suffix] =
            FourDecimalsText(amounts[resource]);
    }
}

}  // namespace tarvelin
