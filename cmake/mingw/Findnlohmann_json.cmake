# nlohmann-json for the cross compiler.
include(HeaderLibrary)
add_header_library(nlohmann_json::nlohmann_json nlohmann)
set(nlohmann_json_FOUND TRUE)
