# Cross-builds for 64-bit Windows with MinGW-w64 and the static libraries that packaging/windows/sdk makes.
# BRINDOCK_WINDOWS_SDK, as a cache variable or in the environment, names their folder.

if(NOT BRINDOCK_WINDOWS_SDK)
  if(DEFINED ENV{BRINDOCK_WINDOWS_SDK})
    set(BRINDOCK_WINDOWS_SDK $ENV{BRINDOCK_WINDOWS_SDK})
  elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(BRINDOCK_WINDOWS_SDK $ENV{XDG_CACHE_HOME}/brindock/windows-sdk)
  else()
    set(BRINDOCK_WINDOWS_SDK $ENV{HOME}/.cache/brindock/windows-sdk)
  endif()
endif()
set(BRINDOCK_WINDOWS_SDK ${BRINDOCK_WINDOWS_SDK} CACHE PATH "Folder of the cross-built libraries")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES BRINDOCK_WINDOWS_SDK)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

set(CMAKE_FIND_ROOT_PATH ${BRINDOCK_WINDOWS_SDK} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
list(PREPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/windows)

# moc, uic and rcc are this machine's own.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
