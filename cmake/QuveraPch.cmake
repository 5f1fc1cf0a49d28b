# Precompiled headers: the headers that most sources include are read once per kind of target, not once per source.
# They stay short on purpose: all of QtWidgets takes longer to load than most sources take to compile, and each source
# instantiates anew whatever templates the inline functions of these headers use. pch/lean.h leaves out what it can.
#
#   pch_plain    containers and numbers         the measuring of the processor stand-in, which knows no toolkit
#   pch_check    the same                       its tests
#   pch_core     containers, strings, files     the processor stand-in, tools, readers of foreign bytes
#   pch_gui      pch_core and the widgets       folders of src/, their benchmarks
#   pch_test     pch_core and QTest             tests without widgets
#   pch_guitest  pch_gui and QTest              tests of folders
#
# A test says `#include <QTest>`: the umbrella `<QtTest>` reads the whole core of the toolkit anew in each test.
#
# A source still includes what it uses: QUVERA_PCH=OFF builds without, and the sources must compile so too.
option(QUVERA_PCH "Read the commonest headers precompiled" ON)

# What a test says in its own source runs once: optimising it costs more than it saves, and who debugs a test builds the
# preset "debug". The kinds for tests are compiled alike, or they would not fit.
set(QUVERA_TEST_OPTIONS "")
if(CMAKE_BUILD_TYPE STREQUAL "RelWithDebInfo" AND CMAKE_CXX_FLAGS_RELWITHDEBINFO MATCHES "-O2")
  set(QUVERA_TEST_OPTIONS -Og -g0)
endif()

# How the measuring of the processor stand-in is compiled. Sample loops at -O0 would make every test wait for it. No errno
# and no traps from the maths library: rounding then becomes one instruction, and results stay as they are.
set(QUVERA_MEASURING_OPTIONS -O3 -fno-math-errno -fno-trapping-math)
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  set(QUVERA_MEASURING_OPTIONS -O2 -fno-math-errno -fno-trapping-math)
endif()

# Its tests. Their true values are sums over many samples. Position independent like the kind, which is no executable.
set(QUVERA_CHECK_OPTIONS -fPIC)
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  list(APPEND QUVERA_CHECK_OPTIONS -O1)
endif()

function(quvera_pch_kind KIND)
  if(NOT QUVERA_PCH)
    return()
  endif()
  cmake_parse_arguments(ARG "" "" "HEADERS;LIBS;OPTIONS" ${ARGN})
  add_library(${KIND} OBJECT ${CMAKE_SOURCE_DIR}/cmake/pch/empty.cpp)
  target_link_libraries(${KIND} PUBLIC ${ARG_LIBS})
  target_compile_options(${KIND} PRIVATE ${ARG_OPTIONS})
  target_precompile_headers(${KIND} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/pch/lean.h ${ARG_HEADERS})
endfunction()

set(pch_core_headers <algorithm> <cmath> <cstring> <functional> <limits> <memory> <vector> <QByteArray> <QDateTime>
    <QDir> <QFile> <QList> <QObject> <QString> <QStringList> <QTimer> <QVector>)
set(pch_gui_headers <QDialog> <QKeyEvent> <QLabel> <QPainter> <QStackedWidget> <QWidget>)
set(pch_gui_libs Qt5::Widgets Qt5::Network Qt5::Xml)
set(pch_plain_headers <algorithm> <array> <cmath> <complex> <memory> <string> <vector>)
quvera_pch_kind(pch_plain HEADERS ${pch_plain_headers} OPTIONS ${QUVERA_MEASURING_OPTIONS})
quvera_pch_kind(pch_check HEADERS ${pch_plain_headers} OPTIONS ${QUVERA_CHECK_OPTIONS})
quvera_pch_kind(pch_core HEADERS ${pch_core_headers} LIBS Qt5::Core)
quvera_pch_kind(pch_gui HEADERS ${pch_core_headers} ${pch_gui_headers} LIBS ${pch_gui_libs})
quvera_pch_kind(pch_test HEADERS ${pch_core_headers} <QSignalSpy> <QTest> LIBS Qt5::Core Qt5::Test
                OPTIONS ${QUVERA_TEST_OPTIONS})
quvera_pch_kind(pch_guitest HEADERS ${pch_core_headers} ${pch_gui_headers} <QApplication> <QSignalSpy> <QTest>
                LIBS ${pch_gui_libs} Qt5::Test OPTIONS ${QUVERA_TEST_OPTIONS})

# quvera_use_pch(<target> <kind>)
function(quvera_use_pch TARGET KIND)
  if(NOT QUVERA_PCH)
    return()
  endif()
  target_precompile_headers(${TARGET} REUSE_FROM ${KIND})
endfunction()
