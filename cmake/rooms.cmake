# A room is one folder of src/ built as one static library. Its headers are included as "room/header.h",
# and they are reachable only by a target that links the room: each room gets an include folder of its own
# with nothing but a link to itself in it, so an include against the arrows does not build.

# add_room(NAME LINKS other rooms...) makes the library from every source below the current folder, except files
# that end in _windows.cpp (or _posix.cpp on Windows).
function(add_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "_posix\\.cpp$")
  else()
    list(FILTER sources EXCLUDE REGEX "_windows\\.cpp$")
  endif()
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  room_includes(${name} PUBLIC ${name} ${CMAKE_CURRENT_SOURCE_DIR})
  if(ROOM_LINKS)
    target_link_libraries(${name} PUBLIC ${ROOM_LINKS})
  endif()
endfunction()

# room_includes(TARGET VISIBILITY NAME FOLDER) lets whoever links TARGET write #include "NAME/...", which resolves in
# FOLDER. NAME may have several parts.
function(room_includes target visibility name folder)
  set(root ${PROJECT_BINARY_DIR}/rooms/${name})
  get_filename_component(parent ${root}/${name} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  if(NOT EXISTS ${root}/${name})
    file(CREATE_LINK ${folder} ${root}/${name} SYMBOLIC COPY_ON_ERROR)
  endif()
  target_include_directories(${target} ${visibility} $<BUILD_INTERFACE:${root}>)
endfunction()

# add_room_tests(NAME LINKS targets...) makes the test program NAME_tests from every source of the current folder
# but its goldens, and gives CTest one entry for each of its cases. TIMEOUT is seconds for one case; SERIAL cases run with nothing beside them.
function(add_room_tests name)
  cmake_parse_arguments(ROOM "SERIAL" "TIMEOUT" "LINKS;ENVIRONMENT" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  list(FILTER sources EXCLUDE REGEX "/golden/") # generated programs that a test compares with
  if(NOT sources)
    return()
  endif()
  if(NOT ROOM_TIMEOUT)
    set(ROOM_TIMEOUT 120)
  endif()
  add_executable(${name}_tests ${sources} ${PROJECT_SOURCE_DIR}/tests/sanitizers.cpp)
  target_link_libraries(${name}_tests PRIVATE ${ROOM_LINKS} test_support GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(${name}_tests PRIVATE ORBA_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
                                                   ORBA_BINARY_DIR="${PROJECT_BINARY_DIR}")
  if(ROOM_SERIAL)
    set(serial RUN_SERIAL TRUE)
  endif()
  if(ROOM_ENVIRONMENT) # an empty value would take the next property's name for its own
    set(environment ENVIRONMENT "${ROOM_ENVIRONMENT}")
  endif()
  gtest_discover_tests(${name}_tests DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT ${ROOM_TIMEOUT} ${environment} LABELS ${name} ${serial})
endfunction()

# toolkit_beside(TARGET) lets a program of the build tree find the toolkit that generated programs are compiled against,
# through a file beside it.
function(toolkit_beside target)
  if(TARGET orbawidg_f)
    file(GENERATE OUTPUT $<TARGET_FILE_DIR:${target}>/wdesign.places CONTENT
"include=${PROJECT_BINARY_DIR}/include/orbawidg
module=${PROJECT_BINARY_DIR}/include/orbawidg
module_dbl=${PROJECT_BINARY_DIR}/include/orbawidg/dbl
library=$<TARGET_FILE_DIR:orbawidg>
")
  endif()
endfunction()
