# CLI11 for the cross compiler.
include(HeaderLibrary)
kopfbibliothek(CLI11::CLI11 CLI)
set(CLI11_FOUND TRUE)
