# CLI11 for the cross compiler.
include(HeaderLibrary)
add_header_library(CLI11::CLI11 CLI)
set(CLI11_FOUND TRUE)
