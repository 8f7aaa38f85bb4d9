# nlohmann-json for the cross compiler.
include(HeaderLibrary)
kopfbibliothek(nlohmann_json::nlohmann_json nlohmann)
set(nlohmann_json_FOUND TRUE)
