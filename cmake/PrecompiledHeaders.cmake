# Headers of the toolkit and the standard library, precompiled once for each kind of target: they are more than a third
# of a file's compile time. What the project writes itself is never among them.

option(BRINDOCK_PCH "Precompile the toolkit's headers" ON)

set(core_headers <QByteArray> <QByteArrayView> <QHash> <QObject> <QString> <QStringList> <QTimer> <algorithm> <array>
  <functional> <memory> <optional> <utility> <vector>)
set(widget_headers ${core_headers} <QAbstractItemModel> <QAction> <QApplication> <QDialog> <QLabel> <QLineEdit>
  <QMainWindow> <QPainter> <QPushButton> <QTreeView> <QVBoxLayout>)

# precompile_for(kind headers... LIBRARIES libraries...): the headers for targets that use the libraries.
function(precompile_for kind)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LIBRARIES")
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/${kind}.cpp CONTENT "// Precompiles headers.\n")
  add_library(${kind} OBJECT ${PROJECT_BINARY_DIR}/${kind}.cpp)
  set_target_properties(${kind} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
  target_link_libraries(${kind} PRIVATE house ${arg_LIBRARIES})
  target_precompile_headers(${kind} PRIVATE ${arg_HEADERS})
endfunction()

# precompiled(target kind): the target's files begin with the headers of that kind.
function(precompiled target kind)
  if(BRINDOCK_PCH)
    target_precompile_headers(${target} REUSE_FROM ${kind})
  endif()
endfunction()

if(BRINDOCK_PCH)
  # The compiler's cache takes part only so.
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(house INTERFACE -fpch-preprocess)
  endif()
  precompile_for(core_pch HEADERS ${core_headers} LIBRARIES Qt6::Core)
  precompile_for(widget_pch HEADERS ${widget_headers} LIBRARIES Qt6::Widgets)
  if(BUILD_TESTING)
    precompile_for(test_pch HEADERS ${core_headers} <gtest/gtest.h> LIBRARIES Qt6::Core GTest::gtest)
  endif()
endif()
