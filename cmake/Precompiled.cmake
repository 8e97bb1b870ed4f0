# The toolkit's and the tests' headers, compiled once a kind of source. They make a build from nothing much faster, and could
# hide a missing #include: only the presets that are built most often use them, the others and clang-tidy go without.

option(BRINDOCK_PCH "Precompile the headers of libraries" OFF)

# precompiled_kind(kind FROM targets... HEADERS headers...): such headers, for sources that use these targets.
function(precompiled_kind kind)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FROM;HEADERS")
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/precompiled/${kind}.cpp CONTENT "")
  add_library(precompiled_${kind} OBJECT ${PROJECT_BINARY_DIR}/precompiled/${kind}.cpp)
  target_link_libraries(precompiled_${kind} PRIVATE house ${arg_FROM})
  set_target_properties(precompiled_${kind} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  list(TRANSFORM arg_HEADERS REPLACE "(.+)" "<\\1>")
  target_precompile_headers(precompiled_${kind} PRIVATE ${arg_HEADERS})
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # What the compiler's cache needs to see that a source uses them.
    target_compile_options(precompiled_${kind} PRIVATE -fpch-preprocess)
  endif()
endfunction()

# use_precompiled(target kind)
function(use_precompiled target kind)
  if(BRINDOCK_PCH)
    target_precompile_headers(${target} REUSE_FROM precompiled_${kind})
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
      target_compile_options(${target} PRIVATE -fpch-preprocess)
    endif()
  endif()
endfunction()

if(BRINDOCK_PCH)
  set(core_headers algorithm array deque functional map memory optional sstream string unordered_map utility vector
    QByteArray QByteArrayView QDateTime QHash QList QString QStringList)
  set(widget_headers QAbstractTableModel QApplication QIcon QLabel QMainWindow QMenuBar QPainter QVBoxLayout QWidget)
  precompiled_kind(logic FROM Qt6::Core HEADERS ${core_headers})
  precompiled_kind(windows FROM Qt6::Widgets HEADERS ${core_headers} ${widget_headers})
endif()
