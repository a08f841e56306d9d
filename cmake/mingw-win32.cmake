# 32-bit Windows, cross-built with MinGW-w64.
set(MINGW_TRIPLET i686-w64-mingw32)
set(MINGW_BITS win32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
