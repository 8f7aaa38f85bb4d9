# add_header_library(TARGET NAME): a header-only library from this machine's /usr/include. The cross
# compiler sees its folder alone, as the headers beside it belong to another platform.
function(add_header_library target name)
  set(folder ${CMAKE_BINARY_DIR}/headers/${name})
  file(MAKE_DIRECTORY ${folder})
  file(CREATE_LINK /usr/include/${name} ${folder}/${name} SYMBOLIC)
  if(NOT TARGET ${target})
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} SYSTEM INTERFACE ${folder})
  endif()
endfunction()
