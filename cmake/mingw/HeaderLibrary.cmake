# kopfbibliothek(TARGET NAME): a library of headers from this machine's /usr/include. Its folder alone is
# shown to the cross compiler, as the headers beside it are of another platform.
function(kopfbibliothek ziel name)
  set(ordner ${CMAKE_BINARY_DIR}/kopfdateien/${name})
  file(MAKE_DIRECTORY ${ordner})
  file(CREATE_LINK /usr/include/${name} ${ordner}/${name} SYMBOLIC)
  if(NOT TARGET ${ziel})
    add_library(${ziel} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${ziel} SYSTEM INTERFACE ${ordner})
  endif()
endfunction()
