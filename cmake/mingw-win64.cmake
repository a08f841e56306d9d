# 64-bit Windows, cross-built with MinGW-w64.
set(MINGW_TRIPLET x86_64-w64-mingw32)
set(MINGW_BITS win64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
