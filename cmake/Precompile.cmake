# Most of the time of a build goes into reading the same headers again for every source: they are
# compiled once and shared. A source names all it uses all the same; with OFF a build shows what
# it forgot.
option(ORB_PRECOMPILE_HEADERS "Compile the headers of the standard library and of Qt once" ON)

# Precompiles headers for one target.
function(orb_precompile target)
  if(ORB_PRECOMPILE_HEADERS)
    target_precompile_headers(${target} PRIVATE ${ARGN})
    # Without it ccache cannot tell which headers a source was compiled with.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
endfunction()

# A library of nothing but precompiled headers, which other targets are compiled with.
function(orb_precompiled name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK;OPTIONS;HEADERS")
  if(NOT ORB_PRECOMPILE_HEADERS)
    return()
  endif()
  set(source "${PROJECT_BINARY_DIR}/precompiled/${name}.cpp")
  file(CONFIGURE OUTPUT "${source}" CONTENT "// Compiled for its headers alone.\n")
  add_library(${name} STATIC "${source}")
  # The warnings too: -Wpedantic changes which macros there are.
  target_link_libraries(${name} PRIVATE ${arg_LINK} orb_warnings)
  target_compile_options(${name} PRIVATE ${arg_OPTIONS})
  orb_precompile(${name} ${arg_HEADERS})
endfunction()

# Compiles a target with the precompiled headers of another.
function(orb_use_precompiled target name)
  if(ORB_PRECOMPILE_HEADERS)
    target_precompile_headers(${target} REUSE_FROM ${name})
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
endfunction()

set(standardHeaders <algorithm> <array> <cmath> <cstddef> <cstdint> <filesystem> <functional> <memory> <optional>
  <span> <string> <string_view> <system_error> <utility> <vector>)
set(drawingHeaders <QColor> <QFont> <QImage> <QPainter> <QRectF> <QString>)
set(widgetHeaders ${drawingHeaders} <QAction> <QApplication> <QCheckBox> <QClipboard> <QComboBox> <QDialog> <QFile>
  <QFormLayout> <QGridLayout> <QHBoxLayout> <QLabel> <QLineEdit> <QListWidget> <QMenu> <QMouseEvent> <QPushButton>
  <QRadioButton> <QScreen> <QShortcut> <QStringList> <QVBoxLayout> <QWidget>)
set(testHeaders ${standardHeaders} <map> <random> <set> <sstream> <gmock/gmock.h> <gtest/gtest.h>)

orb_precompiled(orb_standard_headers HEADERS ${standardHeaders})
if(ORB_WINDOW)
  orb_precompiled(orb_drawing_headers LINK Qt6::Gui HEADERS ${standardHeaders} ${drawingHeaders})
  orb_precompiled(orb_widgets_headers LINK Qt6::Widgets HEADERS ${standardHeaders} ${widgetHeaders})
endif()
if(ORB_BUILD_TESTS)
  orb_precompiled(orb_test_headers LINK GTest::gmock OPTIONS ${ORB_TEST_OPTIONS} HEADERS ${testHeaders})
endif()
