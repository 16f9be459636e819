# SPDX-License-Identifier: MIT
# The headers that most sources include are compiled once for each kind of source. A source names what it includes all
# the same: -DQORVIX_PRECOMPILED_HEADERS=OFF builds without this.
option(QORVIX_PRECOMPILED_HEADERS "Compile the headers that most sources include once" ON)

# qorvix_precompile(KIND HEADERS ... USES ...): the headers of one kind of source.
function(qorvix_precompile kind)
  cmake_parse_arguments(KIND "" "" "HEADERS;USES" ${ARGN})
  if(NOT QORVIX_PRECOMPILED_HEADERS)
    return()
  endif()
  set(source ${PROJECT_BINARY_DIR}/precompiled/${kind}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Carries the precompiled headers.\n")
  add_library(precompiled_${kind} OBJECT ${source})
  target_link_libraries(precompiled_${kind} PRIVATE ${KIND_USES} qorvix_warnings)
  target_precompile_headers(precompiled_${kind} PRIVATE ${KIND_HEADERS})
endfunction()

# qorvix_use_precompiled(TARGET KIND)
function(qorvix_use_precompiled target kind)
  if(NOT QORVIX_PRECOMPILED_HEADERS)
    return()
  endif()
  target_precompile_headers(${target} REUSE_FROM precompiled_${kind})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 forgets which of the precompiled headers are the system's, and warns of what they do.
    target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
  endif()
endfunction()

set(often_included <algorithm> <array> <filesystem> <fstream> <functional> <map> <memory> <optional> <set> <span> <sstream>
                   <string> <string_view> <system_error> <utility> <vector>)
set(often_included_of_qt <QAbstractItemView> <QAction> <QApplication> <QDialog> <QFileDialog> <QHeaderView> <QLabel>
                         <QLayout> <QMainWindow> <QMenu> <QMessageBox> <QPushButton> <QString> <QTableView> <QTimer>
                         <QTreeWidget> <QWidget>)
qorvix_precompile(core HEADERS ${often_included})
if(QORVIX_WINDOW)
  qorvix_precompile(window HEADERS ${often_included} ${often_included_of_qt} USES Qt6::Widgets)
endif()
if(QORVIX_PRECOMPILED_HEADERS AND QORVIX_WINDOW)
  qorvix_no_optimising_under_sanitizers(precompiled_window)
endif()
