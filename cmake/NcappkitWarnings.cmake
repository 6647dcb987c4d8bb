# SPDX-License-Identifier: MIT
# Strict warnings for the library and everything built with it in this tree.
function(ncappkit_set_warnings target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /permissive-)
    if(NCAPPKIT_WARNINGS_AS_ERRORS)
      target_compile_options(${target} PRIVATE /WX)
    endif()
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast
      -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wconversion -Wsign-conversion -Wdouble-promotion)
    if(NCAPPKIT_WARNINGS_AS_ERRORS)
      target_compile_options(${target} PRIVATE -Werror)
    endif()
  endif()
endfunction()
