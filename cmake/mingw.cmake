# Builds for 64-bit Windows with MinGW-w64 from another system. The libraries (pugixml, PCRE2, CLI11, nlohmann-json,
# dtl), built for Windows, are looked for in the folder that GLOTTA_MINGW_PREFIX names (as cache or environment variable).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# std::mutex and std::thread want the compiler of the POSIX thread model.
find_program(CMAKE_CXX_COMPILER NAMES x86_64-w64-mingw32-g++-posix x86_64-w64-mingw32-g++ REQUIRED)
find_program(CMAKE_C_COMPILER NAMES x86_64-w64-mingw32-gcc-posix x86_64-w64-mingw32-gcc)
find_program(CMAKE_RC_COMPILER NAMES x86_64-w64-mingw32-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES GLOTTA_MINGW_PREFIX)
if(NOT GLOTTA_MINGW_PREFIX)
  set(GLOTTA_MINGW_PREFIX "$ENV{GLOTTA_MINGW_PREFIX}")
endif()
set(CMAKE_FIND_ROOT_PATH ${GLOTTA_MINGW_PREFIX} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# pkg-config would answer for the system that builds.
set(CMAKE_DISABLE_FIND_PACKAGE_PkgConfig ON)

# Programs that run without the compiler's own libraries beside them.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_MODULE_LINKER_FLAGS_INIT -static)
