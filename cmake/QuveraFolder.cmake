# Folders of src/ and their tests.
#
# Each folder is an OBJECT library, so that the program links the objects in one fixed order, and a SHARED library
# that the folder's tests link. A folder sees the folders before it in this list and nothing else.

set(QUVERA_FOLDER_ORDER platform model storage settings device board record detect task report widgets pages views
                        setup user memory services shell)
# Folders of equal rank do not see each other.
set(QUVERA_NEIGHBOURS views setup user memory services)

# Folders that a tool without a screen can link: nothing but the toolkit's core is under them, and of the folders before
# them they see each other only.
set(QUVERA_CORE_FOLDERS platform model storage record)

# How the preset "coverage" compiles. The counts stand in the mapped file as the program runs, so that a process that is
# ended at once is counted, too. Inline functions are hidden, for a test's own copy, which counts nothing, would be called.
set(QUVERA_COUNTING -fprofile-instr-generate -fprofile-update=atomic -fcoverage-mapping -fvisibility-inlines-hidden
    "SHELL:-mllvm -runtime-counter-relocation")

# quvera_link_quickly(<target>): for what is linked by the hundred and never leaves the build folder. The program itself
# keeps the compiler's own linker.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=gold QUVERA_HAS_GOLD)
function(quvera_link_quickly TARGET)
  if(QUVERA_HAS_GOLD)
    target_link_options(${TARGET} PRIVATE -fuse-ld=gold)
  endif()
endfunction()

# quvera_folder(<folder> [FIRST <files...>] [LIBS <libraries...>] [OPTIMISED <files...>] [SCREEN <files...>]
#               [APART <folders...>])
# All sources, headers and forms of the folder and of the folders in it.
#   FIRST: sources whose static objects are built before those of the others, in this order.
#   OPTIMISED: units with hot loops, compiled with -O3 when not debugging.
#   SCREEN: sources and headers of a core folder that need the screen's toolkit: a library beside it, qv_<folder>_screen.
#   APART: folders in it that the instrument does without; each has a library and a CMakeLists.txt of its own.
function(quvera_folder FOLDER)
  cmake_parse_arguments(ARG "" "" "FIRST;LIBS;OPTIMISED;SCREEN;APART" ${ARGN})
  set(objects qv_${FOLDER}_objects)
  file(GLOB sources CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *.cpp *.h */*.cpp */*.h)
  file(GLOB forms CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *.ui */*.ui)
  foreach(apart IN LISTS ARG_APART)
    list(FILTER sources EXCLUDE REGEX "^${apart}/")
  endforeach()
  if(ARG_FIRST OR ARG_SCREEN)
    list(REMOVE_ITEM sources ${ARG_FIRST} ${ARG_SCREEN})
  endif()
  # Forms become headers by declared commands, so that a changed form compiles its source again in the same build.
  qt5_wrap_ui(form_headers ${forms})
  add_library(${objects} OBJECT ${ARG_FIRST} ${sources} ${forms} ${form_headers})
  set_source_files_properties(${form_headers} PROPERTIES SKIP_AUTOMOC ON)
  if(ARG_OPTIMISED AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT FOLDER IN_LIST QUVERA_COVERAGE)
    set_source_files_properties(${ARG_OPTIMISED} PROPERTIES COMPILE_OPTIONS "-O3" SKIP_PRECOMPILE_HEADERS ON)
  endif()
  set(below "")
  foreach(name IN LISTS QUVERA_FOLDER_ORDER)
    if(name STREQUAL FOLDER)
      break()
    endif()
    if(name IN_LIST QUVERA_NEIGHBOURS AND FOLDER IN_LIST QUVERA_NEIGHBOURS)
      continue()
    endif()
    if(FOLDER IN_LIST QUVERA_CORE_FOLDERS AND NOT name IN_LIST QUVERA_CORE_FOLDERS)
      continue()
    endif()
    list(APPEND below qv_${name})
    if(TARGET qv_${name}_screen AND NOT FOLDER IN_LIST QUVERA_CORE_FOLDERS)
      list(APPEND below qv_${name}_screen)
    endif()
  endforeach()
  if(FOLDER IN_LIST QUVERA_CORE_FOLDERS)
    quvera_folder_libraries(qv_${FOLDER} pch_core "${below}" Qt5::Core Threads::Threads ${ARG_LIBS})
  else()
    quvera_folder_libraries(qv_${FOLDER} pch_gui "${below}"
                            Qt5::Core Qt5::Gui Qt5::Widgets Qt5::Xml Qt5::Network Threads::Threads ${ARG_LIBS})
  endif()
  if(FOLDER IN_LIST QUVERA_COVERAGE)
    target_compile_options(${objects} PRIVATE ${QUVERA_COUNTING})
    target_link_options(qv_${FOLDER} PRIVATE -fprofile-instr-generate)
  endif()
  if(ARG_SCREEN)
    add_library(qv_${FOLDER}_screen_objects OBJECT ${ARG_SCREEN})
    quvera_folder_libraries(qv_${FOLDER}_screen pch_gui "${below};qv_${FOLDER}"
                            Qt5::Core Qt5::Gui Qt5::Widgets Qt5::Xml Qt5::Network Threads::Threads)
  endif()
  foreach(apart IN LISTS ARG_APART)
    add_subdirectory(${apart})
  endforeach()
endfunction()

# The two libraries of a folder, by the name of the shared one: how they are compiled and what they are linked with.
function(quvera_folder_libraries LIBRARY PCH BELOW)
  set(objects ${LIBRARY}_objects)
  set_target_properties(${objects} PROPERTIES AUTOMOC ON)
  target_include_directories(${objects} PUBLIC ${CMAKE_SOURCE_DIR}/src PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  target_link_libraries(${objects} PUBLIC ${ARGN})
  quvera_use_pch(${objects} ${PCH})
  add_library(${LIBRARY} SHARED $<TARGET_OBJECTS:${objects}>)
  target_include_directories(${LIBRARY} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${LIBRARY} PUBLIC ${BELOW} ${ARGN})
  quvera_link_quickly(${LIBRARY})
endfunction()

# Where the sources and the executables are. A header, not definitions for each compiler call: those would keep the
# compiler's cache from serving the same sources in another folder.
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/generated/testpaths.h @ONLY
  CONTENT "#pragma once\n#define QUVERA_SOURCE_DIR \"@CMAKE_SOURCE_DIR@\"\n#define QUVERA_BIN_DIR \"@CMAKE_BINARY_DIR@/bin\"\n")
set_property(TARGET Qt5::Test PROPERTY INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
# Who defines QT_NETWORK_LIB makes each <QTest> read the whole network library, for comparisons that no test makes.
set_property(TARGET Qt5::Network PROPERTY INTERFACE_COMPILE_DEFINITIONS "")

# quvera_moc(<target> <sources...>): the meta-object code of tests, in NAME.moc for NAME.cpp, which includes it, and as a
# source for a header with Q_OBJECT. One short call for each source: a scan of the whole target, as AUTOMOC makes it,
# takes a hundred times as long, and there are many tests.
function(quvera_moc TARGET)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${TARGET}_moc)
  file(MAKE_DIRECTORY ${folder})
  foreach(source IN LISTS ARGN)
    get_filename_component(source ${source} ABSOLUTE)
    get_filename_component(name ${source} NAME_WE)
    set(output ${folder}/${name}.moc)
    if(source MATCHES "\\.h$")
      file(STRINGS ${source} classes REGEX "Q_OBJECT")
      if(NOT classes)
        continue()
      endif()
      set(output ${folder}/moc_${name}.cpp)
    endif()
    add_custom_command(OUTPUT ${output}
      COMMAND Qt5::moc --no-notes -I ${CMAKE_SOURCE_DIR}/src -I ${CMAKE_SOURCE_DIR}/tests ${source} -o ${output}
              --output-dep-file --dep-file-path ${output}.d
      DEPENDS ${source}
      DEPFILE ${output}.d
      VERBATIM)
    target_sources(${TARGET} PRIVATE ${output})
  endforeach()
  target_include_directories(${TARGET} PRIVATE ${folder})
endfunction()

# quvera_fail_on_warnings(<test>): what the toolkit says about a connection that it cannot make fails the test, for the
# program goes on without it.
function(quvera_fail_on_warnings TEST)
  set_tests_properties(${TEST} PROPERTIES
    FAIL_REGULAR_EXPRESSION "QObject::(dis)?connect: ;QObject::(dis)?connect\\(;QMetaObject::connectSlotsByName")
endfunction()

# What "ctest -L source" runs.
add_custom_target(source_tests)

# quvera_test(<name> SOURCES <files...> [FOLDER <folder of src>] [LIBS <libraries...>] [LABELS <labels...>] [TIMEOUT <s>]
#             [VARIANTS <words...>] [LONG_VARIANTS <words...>])
#   VARIANTS: one test <name><word> for each word, which the executable finds in QUVERA_TEST_VARIANT.
#   LONG_VARIANTS: the same, of minutes each: they run by "ctest -C Long -L long" only.
function(quvera_test NAME)
  cmake_parse_arguments(ARG "" "FOLDER;TIMEOUT" "SOURCES;LIBS;LABELS;VARIANTS;LONG_VARIANTS" ${ARGN})
  add_executable(${NAME} ${ARG_SOURCES})
  quvera_moc(${NAME} ${ARG_SOURCES})
  set_target_properties(${NAME} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_compile_options(${NAME} PRIVATE ${QUVERA_TEST_OPTIONS})
  quvera_link_quickly(${NAME})
  if("source" IN_LIST ARG_LABELS)
    add_dependencies(source_tests ${NAME})
  endif()
  target_include_directories(${NAME} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests
                             ${CMAKE_BINARY_DIR}/generated)
  target_link_libraries(${NAME} PRIVATE Qt5::Test ${ARG_LIBS})
  if(ARG_FOLDER)
    target_link_libraries(${NAME} PRIVATE qv_${ARG_FOLDER})
    if(ARG_FOLDER IN_LIST QUVERA_CORE_FOLDERS)
      # Their tests may use more than the folder does.
      target_link_libraries(${NAME} PRIVATE Qt5::Gui Qt5::Widgets Qt5::Xml Qt5::Network)
      if(TARGET qv_${ARG_FOLDER}_screen)
        target_link_libraries(${NAME} PRIVATE qv_${ARG_FOLDER}_screen)
      endif()
    endif()
    quvera_use_pch(${NAME} pch_guitest)
  elseif("${ARG_LIBS}" MATCHES "Qt5::Widgets")
    target_link_libraries(${NAME} PRIVATE Qt5::Xml Qt5::Network) # the kind knows them
    quvera_use_pch(${NAME} pch_guitest)
  elseif(NOT "${ARG_LIBS}" MATCHES "Qt5::Gui")
    quvera_use_pch(${NAME} pch_test)
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  set(tests ${NAME})
  if(ARG_VARIANTS OR ARG_LONG_VARIANTS)
    list(TRANSFORM ARG_VARIANTS PREPEND ${NAME} OUTPUT_VARIABLE tests)
  endif()
  foreach(test IN LISTS tests)
    add_test(NAME ${test} COMMAND ${CMAKE_SOURCE_DIR}/tests/with-root $<TARGET_FILE:${NAME}>)
    set_tests_properties(${test} PROPERTIES TIMEOUT ${ARG_TIMEOUT} LABELS "${ARG_LABELS}")
    quvera_fail_on_warnings(${test})
  endforeach()
  foreach(variant IN LISTS ARG_LONG_VARIANTS)
    add_test(NAME ${NAME}${variant} CONFIGURATIONS Long
             COMMAND ${CMAKE_SOURCE_DIR}/tests/with-root $<TARGET_FILE:${NAME}>)
    set_tests_properties(${NAME}${variant} PROPERTIES TIMEOUT ${ARG_TIMEOUT} LABELS "${ARG_LABELS};long")
    quvera_fail_on_warnings(${NAME}${variant})
  endforeach()
  foreach(variant IN LISTS ARG_VARIANTS ARG_LONG_VARIANTS)
    set_tests_properties(${NAME}${variant} PROPERTIES ENVIRONMENT QUVERA_TEST_VARIANT=${variant})
  endforeach()
endfunction()
