# SPDX-License-Identifier: MIT
# Runs one example program in a fresh working directory and compares its standard output with the expected
# output file byte for byte. With UPDATE set the expected file is rewritten instead.
# EMULATOR, when given, runs the program (wine for a cross-built Windows program).
#   cmake [-DEMULATOR=wine] -DPROGRAM=... -DARGS=a;b -DEXPECTED=... -DWORK_DIR=... [-DUPDATE=ON] -P RunExample.cmake
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" ${ARGS}
  WORKING_DIRECTORY "${WORK_DIR}"
  OUTPUT_VARIABLE out
  ERROR_VARIABLE err
  RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} exited with ${rc}\n--- stdout\n${out}\n--- stderr\n${err}")
endif()
string(REPLACE "\r\n" "\n" out "${out}")
if(UPDATE)
  file(WRITE "${EXPECTED}" "${out}")
  message(STATUS "rewrote ${EXPECTED}")
  return()
endif()
file(READ "${EXPECTED}" expected)
if(NOT out STREQUAL expected)
  file(WRITE "${WORK_DIR}/actual_output.txt" "${out}")
  execute_process(COMMAND diff -u "${EXPECTED}" "${WORK_DIR}/actual_output.txt" OUTPUT_VARIABLE difference)
  message(FATAL_ERROR "output differs from ${EXPECTED}:\n${difference}")
endif()
