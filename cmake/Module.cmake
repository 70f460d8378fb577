# SPDX-License-Identifier: GPL-3.0-or-later
# quorvane_module(NAME [DEPENDS module...] [LIBRARIES library...])
#
# A static library of all sources in the current folder (not below it). DEPENDS names the modules whose headers it
# may include: the same table that tools/check_layers.py holds the sources against.
function(quorvane_module name)
  cmake_parse_arguments(ARG "" "" "DEPENDS;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(sources)
    add_library(quorvane_${name} STATIC ${sources} ${headers})
    set(scope PUBLIC)
  else()
    add_library(quorvane_${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_link_libraries(quorvane_${name} ${scope} quorvane_flags ${ARG_LIBRARIES})
  # The test "headers" compiles each header of this set alone. One with a source of its name compiles there, as it comes
  # first in it (tools/check_layers.py sees to that).
  set(alone ${headers})
  foreach(source IN LISTS sources)
    string(REGEX REPLACE "[.]cpp$" ".h" header ${source})
    list(REMOVE_ITEM alone ${header})
  endforeach()
  target_sources(quorvane_${name} ${scope} FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${alone})
  foreach(dependency IN LISTS ARG_DEPENDS)
    target_link_libraries(quorvane_${name} ${scope} quorvane_${dependency})
  endforeach()
endfunction()

# quorvane_test(MODULE) makes one test program of every *Test.cpp in the current folder.
function(quorvane_test name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${name} ${sources})
  target_link_libraries(test_${name} PRIVATE quorvane_test_support)
  target_precompile_headers(test_${name} REUSE_FROM quorvane_test_support)
  foreach(dependency IN LISTS ARG_DEPENDS)
    target_link_libraries(test_${name} PRIVATE quorvane_${dependency})
  endforeach()
  gtest_discover_tests(test_${name} TEST_PREFIX ${name}. DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 120 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# quorvane_resources(TARGET NAME QRC) embeds what a resource file lists. A static library has to register it by
# Q_INIT_RESOURCE(NAME).
function(quorvane_resources target name qrc)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/${name}_resources.cpp)
  file(STRINGS ${qrc} files REGEX "<file")
  list(TRANSFORM files REPLACE ".*>([^<]+)</file>.*" "\\1")
  get_filename_component(folder ${qrc} DIRECTORY)
  list(TRANSFORM files PREPEND ${folder}/)
  add_custom_command(OUTPUT ${output}
    COMMAND Qt6::rcc --name ${name} --output ${output} ${qrc}
    DEPENDS ${qrc} ${files} VERBATIM)
  target_sources(${target} PRIVATE ${output})
  # Generated code is not held to our warnings.
  set_source_files_properties(${output} PROPERTIES COMPILE_OPTIONS "-w" SKIP_AUTOGEN ON)
endfunction()
