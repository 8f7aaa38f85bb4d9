# How all our targets are compiled.
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(TARVELIN_SANITIZER "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

add_library(tarvelin_options INTERFACE)
target_compile_features(tarvelin_options INTERFACE cxx_std_20)
target_include_directories(tarvelin_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_definitions(tarvelin_options INTERFACE TARVELIN_VERSION="${PROJECT_VERSION}")

# The order and precision of floating-point operations are part of the results: no fused
# multiply-add. Nothing reads errno after a mathematical function; without it a rounding is a single
# instruction.
target_compile_options(tarvelin_options INTERFACE -ffp-contract=off -fno-math-errno)

target_compile_options(
  tarvelin_options
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wdouble-promotion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wcast-align
            -Wformat=2
            -Wimplicit-fallthrough)

# GCC 12 warns of overlapping copies in every sum of a literal and a std::string (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(tarvelin_options INTERFACE -Wno-restrict)
endif()

if(TARVELIN_SANITIZER)
  set(sanitizer -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(tarvelin_options INTERFACE ${sanitizer} -D_GLIBCXX_ASSERTIONS)
  target_link_options(tarvelin_options INTERFACE ${sanitizer})
endif()
