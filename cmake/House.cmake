# What every target of the project is built with, and the two kinds of library a room has.

add_library(house INTERFACE)
target_include_directories(house INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(house INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(WERROR)
  target_compile_options(house INTERFACE -Werror)
endif()
target_compile_definitions(house INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
  BRINDOCK_VERSION_MAJOR=${PROJECT_VERSION_MAJOR} BRINDOCK_VERSION_MINOR=${PROJECT_VERSION_MINOR}
  BRINDOCK_VERSION_REVISION=${PROJECT_VERSION_PATCH})
if(BRINDOCK_SANITIZE)
  target_compile_options(house INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer)
  target_link_options(house INTERFACE -fsanitize=address,undefined)
endif()
if(BRINDOCK_FUZZ)
  target_compile_options(house INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(WIN32)
  # Symbols are kept where packaging/symbols takes them aside.
  target_link_options(house INTERFACE -static -Wl,--gc-sections -Wl,--no-insert-timestamp
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:KEEPS_SYMBOLS>>>:-s>)
endif()

# room_logic(name sources...): plain logic, Qt Core only.
function(room_logic name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC house Qt6::Core)
  use_precompiled(${name} logic)
endfunction()

# room_windows(name sources...): windows and controls.
function(room_windows name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC house Qt6::Widgets)
  use_precompiled(${name} windows)
endfunction()

# room_pictures(name sources...): code that works on pictures without any window; Qt Gui only.
function(room_pictures name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC house Qt6::Gui)
  use_precompiled(${name} logic)
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()

# Code behind large libraries is loaded when it is asked for first, where libraries are shared ones.
get_target_property(qt_kind Qt6::Core TYPE)
if(NOT qt_kind STREQUAL "STATIC_LIBRARY")
  set(BRINDOCK_MODULES ON)
endif()

# room_module(name sources...): such a module, beside the programs.
function(room_module name)
  add_library(${name} MODULE ${ARGN})
  target_link_libraries(${name} PRIVATE house)
  set_target_properties(${name} PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  install(TARGETS ${name} LIBRARY DESTINATION ${BRINDOCK_FOLDER})
endfunction()

# window_program(name [WIN32] sources...): a program with windows. A static Qt brings along only the system's own platform; tests
# and pictures need the off-screen one too.
function(window_program name)
  qt_add_executable(${name} ${ARGN})
  if(NOT BRINDOCK_MODULES)
    qt_import_plugins(${name} INCLUDE Qt6::QOffscreenIntegrationPlugin)
  endif()
endfunction()

# library_of_system(RESULT NAME WINDOWS_TARGET): a C library, on Linux by pkg-config (some of Debian's own CMake files ask
# for more than is installed), in the Windows SDK by its CMake files.
macro(library_of_system result name windows_target)
  if(WIN32)
    find_package(${name} REQUIRED)
    set(${result} ${windows_target})
  else()
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(${name} REQUIRED IMPORTED_TARGET ${name})
    set(${result} PkgConfig::${name})
  endif()
endmacro()
