# What every target of the project is built with, and the two kinds of library a room has.

add_library(house INTERFACE)
target_include_directories(house INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(house INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_compile_definitions(house INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
  BRINDOCK_VERSION_MAJOR=${PROJECT_VERSION_MAJOR} BRINDOCK_VERSION_MINOR=${PROJECT_VERSION_MINOR}
  BRINDOCK_VERSION_REVISION=${PROJECT_VERSION_PATCH})
if(BRINDOCK_SANITIZE)
  target_compile_options(house INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer)
  target_link_options(house INTERFACE -fsanitize=address,undefined)
endif()
if(WIN32)
  target_link_options(house INTERFACE -static -s -Wl,--gc-sections)
endif()

# room_logic(name sources...): plain logic, Qt Core only.
function(room_logic name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC house Qt6::Core)
endfunction()

# room_windows(name sources...): windows and controls.
function(room_windows name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC house Qt6::Widgets)
endfunction()

# window_program(name [WIN32] sources...): a program with windows. A static Qt brings along only the system's own platform; tests
# and pictures need the off-screen one too.
function(window_program name)
  qt_add_executable(${name} ${ARGN})
  get_target_property(kind Qt6::Core TYPE)
  if(kind STREQUAL "STATIC_LIBRARY")
    qt_import_plugins(${name} INCLUDE Qt6::QOffscreenIntegrationPlugin)
  endif()
endfunction()
