# Reads a PE file's import and export tables with objdump and fails when it imports
# anything but Windows system DLLs, or exports anything but the expected names.
#   cmake -DOBJDUMP=<objdump> -DFILE=<dll> -DEXPORTS=<a;b;c> -P CheckImports.cmake
cmake_minimum_required(VERSION 3.25)
foreach(var OBJDUMP FILE EXPORTS)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "CheckImports: ${var} is not set")
  endif()
endforeach()

# System DLLs present on every supported Windows; anything else would have to ship with us.
set(allowed
  kernel32.dll user32.dll gdi32.dll advapi32.dll ole32.dll oleaut32.dll comctl32.dll
  comdlg32.dll shell32.dll shlwapi.dll uxtheme.dll gdiplus.dll windowscodecs.dll
  msvcrt.dll ucrtbase.dll version.dll msimg32.dll imm32.dll oleacc.dll winmm.dll)

execute_process(COMMAND ${OBJDUMP} -p ${FILE}
  OUTPUT_VARIABLE dump RESULT_VARIABLE rc ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "objdump failed on ${FILE}: ${err}")
endif()

string(REGEX MATCHALL "DLL Name: [^\r\n]+" lines "${dump}")
set(imports)
foreach(line IN LISTS lines)
  string(REGEX REPLACE "DLL Name: *" "" dll "${line}")
  string(STRIP "${dll}" dll)
  string(TOLOWER "${dll}" dll)
  list(APPEND imports ${dll})
endforeach()
if(NOT imports)
  message(FATAL_ERROR "no import table found in ${FILE}")
endif()

set(bad)
foreach(dll IN LISTS imports)
  if(dll MATCHES "^(libstdc|libgcc|libwinpthread)")
    list(APPEND bad "${dll} (the C++ runtime must be linked statically)")
  elseif(NOT dll IN_LIST allowed AND NOT dll MATCHES "^api-ms-win-crt-[a-z0-9-]+\\.dll$")
    list(APPEND bad "${dll} (not a Windows system DLL on the allow-list)")
  endif()
endforeach()
message(STATUS "imports of ${FILE}: ${imports}")

# The export table lists its names after "[Ordinal/Name Pointer] Table".
set(exports)
string(FIND "${dump}" "[Ordinal/Name Pointer] Table" at)
if(at GREATER -1)
  string(SUBSTRING "${dump}" ${at} -1 table)
  # The table ends at the first blank line; relocation listings follow it.
  string(REGEX REPLACE "\r" "" table "${table}")
  string(FIND "${table}" "\n\n" end)
  if(end GREATER -1)
    string(SUBSTRING "${table}" 0 ${end} table)
  endif()
  string(REGEX MATCHALL "\\[ *[0-9]+\\] [A-Za-z_][A-Za-z0-9_@]*" entries "${table}")
  foreach(entry IN LISTS entries)
    string(REGEX REPLACE "^\\[ *[0-9]+\\] " "" name "${entry}")
    list(APPEND exports ${name})
  endforeach()
endif()
list(SORT exports)
set(expected ${EXPORTS})
list(SORT expected)
message(STATUS "exports of ${FILE}: ${exports}")
if(NOT exports STREQUAL expected)
  list(APPEND bad "exports are [${exports}], expected exactly [${expected}]")
endif()

if(bad)
  list(JOIN bad "\n  " text)
  message(FATAL_ERROR "${FILE}:\n  ${text}")
endif()
