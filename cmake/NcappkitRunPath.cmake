# SPDX-License-Identifier: MIT
# Installed programs find the installed library wherever the tree is installed or moved to: their run path
# names the library folder relative to the program's own folder ($ORIGIN on ELF systems, @loader_path on
# macOS), so no LD_LIBRARY_PATH is needed. Programs in the build tree keep CMake's build run path.
#
#   add_executable(nckit ...)
#   ncappkit_set_install_rpath(nckit)   # for every program installed into bin/
function(ncappkit_set_install_rpath target)
  if(WIN32)
    return()  # Windows finds the DLL next to the program, where it is installed
  endif()
  file(RELATIVE_PATH bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  if(APPLE)
    set(origin "@loader_path")
  else()
    set(origin "$ORIGIN")
  endif()
  if(bin_to_lib STREQUAL "")
    set(rpath "${origin}")
  else()
    set(rpath "${origin}/${bin_to_lib}")
  endif()
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "${rpath}")
endfunction()
